#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "bulloni/area_bullonata.h"

namespace qf17 {

struct Nodo;
struct Opzioni;
class Piattaforma;

// One of the five rows of the bolt list.
struct RigaBullone {
  bool visibile = false;
  std::string Lbul, Xbul, Ybul, Fibul;
};

// The list's scroll bar: first visible bolt, from `minimo` to `massimo`.
struct BarraScorrimento {
  bool visibile = false;
  int minimo = 1, massimo = 1, valore = 1, grande = 5, piccolo = 1;
};

// What the bolt layout editor shows, by control, while it is open on one group; its events are
// the functions below. The bolt tables are the node's own: the list edits them in place.
struct FormBulloni {
  std::int16_t GruppoBulloni = 1;  // 1 chord, 2..4 members A..C
  std::int16_t NumBulloniEdit = 0;
  std::string Caption;
  std::string TollForoBull;
  std::array<std::string, 2> Passo, Fi3;
  std::array<RigaBullone, 5> righe;
  BarraScorrimento Scroll1;
  std::array<std::string, 3> MbpTxt;  // diameter, rows, columns
  std::string MargSx, MargDx, MargSu, MargIn;
  AreaEditor area;
  std::vector<PrimitivaAnteprima> anteprima;  // DisBulloni, redrawn by the actions that say so
  std::string suggerimento;                   // the hint waiting for Timer1
  std::string Help;                           // the hint shown
  double larghezzaPicture = 0, altezzaPicture = 0;
};

// The captions of the four groups.
std::string TitoloFormBulloni(std::int16_t gruppo);

// The panel's bolt button of group `gruppo` (1 chord, 2..4 members A..C): the guards with their
// messages, then the form opened on the group for a picture of the given size. No value when
// the editor does not open (an I or H chord with a valid gusset says nothing: it is welded).
std::optional<FormBulloni> ApriFormBulloni(const Nodo& nodo, const Opzioni& opzioni,
                                           Piattaforma& piattaforma, std::int16_t gruppo,
                                           const CaselleLunghezze& caselle, double larghezzaPicture,
                                           double altezzaPicture);

// Default margins by method, the current pitch readouts and the minimum pitches; run on opening
// and by Enter in any MbpTxt box (so Enter overwrites typed margins).
void CalcolaValori(FormBulloni& form, const Nodo& nodo, const Opzioni& opzioni);

// The list for `n` bolts: up to five rows, the scroll bar from six on.
void ImpostaListaBulloni(FormBulloni& form, int n);
// Bolts primo..ultimo into rows 0, 1, ...
void RefreshTextBull(FormBulloni& form, const Nodo& nodo, int primo, int ultimo);
// The scroll bar moved to `valore`.
void Scroll1Cambia(FormBulloni& form, const Nodo& nodo, int valore);

// Appends a rows x columns matrix spread over the area inside the margins; false, with the
// list as it was, when a rule rejects it. A bolt number beyond the table is an ErroreFatale.
bool CreaMatriceBulloni(Nodo& nodo, FormBulloni& form, int righe, int colonne, double diametro,
                        double margineDx, double margineSx, double margineIn, double margineSu);
// The "Aggiungi" button: the boxes read by Val, the matrix, and on rejection "Matrice non
// valida". True when added.
bool Matrice(FormBulloni& form, Nodo& nodo, Piattaforma& piattaforma);

// Enter or leaving one of the row boxes (colonna 0 x, 1 y, 2 diameter): its value into the bolt
// of the row's number, straight into the node's table. The preview is not redrawn.
void CasellaBullone(FormBulloni& form, Nodo& nodo, int riga, int colonna, const std::string& testo);
// "Agg. singolo", "Rimuovi ultimo" and "Rimuovi tutto" (which asks first).
void Singolo(FormBulloni& form, const Nodo& nodo);
void Rimuovi(FormBulloni& form, const Nodo& nodo);
void RimuoviT(FormBulloni& form, const Nodo& nodo, Piattaforma& piattaforma);
// For i from primo to ultimo, bolt i + 1 over bolt i, in the open group.
void CopiaIndietro(Nodo& nodo, std::int16_t gruppo, int primo, int ultimo);
// Double click on the number of row `riga`: the bolt after the one shown goes (on the last row,
// the last bolt), as the family's list always did; the first five are shown, no redraw.
void LbulDblClick(FormBulloni& form, Nodo& nodo, int riga);
// "Disegna bulloni": the preview drawn again.
void DisegnaBp(FormBulloni& form, const Nodo& nodo);
// "OK": the working count becomes the group's. (Annulla and Esc change nothing: coordinates
// already typed stay in the tables, only the count falls back.)
void MatBulOK(const FormBulloni& form, Nodo& nodo);

// Hints: the pointer over a control with a hint stores its text; the timer's tick shows it; the
// pointer over the form, its frames or the picture hides it.
enum class ControlloConSuggerimento { DisegnaBp, Singolo, Rimuovi, RimuoviT, Xbul, Ybul, Fibul };
void PuntatoreSu(FormBulloni& form, ControlloConSuggerimento controllo);
void Timer1(FormBulloni& form);
void NascondiSuggerimento(FormBulloni& form);

}  // namespace qf17
