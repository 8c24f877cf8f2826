#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "nodo/panel/controlli.h"

namespace qf17 {

struct Nodo;
struct UnitaLavoro;
struct Acciaio;
class Piattaforma;

// The main panel as data: its controls, and the screen's own state that the node does not keep.
struct InsDati {
  Controlli c;
  // 1 while the panel is refreshed: every event that writes the model returns at once, so that
  // what a refresh itself raises changes nothing.
  std::int16_t Aggiornamento = 0;
  std::int16_t GruppoEditor = 0;  // the bolt group under the pointer or of the last bolt button
  int primaSoll = 1;              // the load set on the first row of the load table
  bool cambiato = false;          // a geometry box changed the node
  bool manina = false;            // the pointer is a hand over a hot area of the schema
  // The section combos' lists: table rows, rebuilt when the table's size changes.
  std::vector<std::int16_t> listaCorrente, listaAste;
  int numeroProfiliListe = -1;
  // Called after a change of the model while a 3D view is live (the node's Vista3DAttiva).
  std::function<void()> ricostruisci3D;
};

// The numeric and text boxes of the panel, in the order their events look them up.
enum class FamigliaCasella {
  BeffTxt,
  FzTxt,
  SpessTxt,
  TextSald,
  TetaTxt,
  Txt1,
  Txt2,
  Txt3,
  Tb_sol_descr
};
struct Casella {
  FamigliaCasella famiglia;
  int indice = -1;  // the control array's index; -1 for a single box
};
std::string_view NomeCasella(FamigliaCasella famiglia);

// Enter or leaving a box: its text, read by the leading-number rule, into its field; the text
// is not rewritten. A load box changes its force only when the value differs by 0.0001 or more
// from the stored daN (a near-equality guard that compares the display value, kept as it is).
// Geometry boxes mark the node changed and rebuild a live 3D view.
void TbValuta(InsDati& p, Nodo& nodo, const UnitaLavoro& unita, Casella casella);
// Escape: the field's value back into the box, in the box's own form.
void TbRipristina(InsDati& p, const Nodo& nodo, const UnitaLavoro& unita, Piattaforma& piattaforma,
                  Casella casella);
// Every box of the panel written from the node.
void pnn1_aggiorna_textbox(InsDati& p, const Nodo& nodo, const UnitaLavoro& unita,
                           Piattaforma& piattaforma);

// A number in at most three figures: longer texts are rounded to a whole number (halves up),
// and a whole number of more than three digits keeps three, the rest zeros (12345.6 -> 12300).
std::string Numero3Cifre(double valore);
// The six section cells of member 0..3 (0 the chord) in `geomp`: h, b, a, e, the area in cm2
// and the largest axial force (area x SAmm / 10 by allowable stresses, area x fy / 10 by limit
// states), the last two doubled for a double or opposed member and in three figures.
void pnn2_ScriviDatiProfilo(InsDati& p, const Nodo& nodo, int asta);

// The load table of four rows from set `prima` on its first row (-1: where it stands), kept
// inside the list of sets; its scroll bar, the count, the list buttons and the load case boxes
// (allowable stresses only).
void pnn1_aggiorna_sollecitazioni(InsDati& p, Nodo& nodo, const UnitaLavoro& unita, int prima);
// "Agg. sing.": a new set of zero forces named "Soll " and its number, shown; the button stops
// at 199 sets (imports may reach 200) with its message.
void Bt_agg_sing_sol(InsDati& p, Nodo& nodo, const UnitaLavoro& unita, Piattaforma& piattaforma);
// "Rim. ultimo" and "Rim. tutto" (which asks first).
void RimuoviUltSoll(InsDati& p, Nodo& nodo, const UnitaLavoro& unita);
void RimuoviTutteSoll(InsDati& p, Nodo& nodo, const UnitaLavoro& unita, Piattaforma& piattaforma);
// A click on a row's number: that set goes, the later ones move up with their names.
void Lb_sol_num_Click(InsDati& p, Nodo& nodo, const UnitaLavoro& unita, int riga);
// The load case box of a row: case II when ticked.
void CasCar_Click(InsDati& p, Nodo& nodo, int riga, bool spuntata);
void VScrollSoll_Change(InsDati& p, Nodo& nodo, const UnitaLavoro& unita, int valore);

}  // namespace qf17
