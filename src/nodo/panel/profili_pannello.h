#pragma once

#include <array>
#include <cstdint>

namespace qf17 {

struct Sessione;
struct InsDati;

// The section combos, their lists (made again when the table's size changed), the selections
// of the chord and of the members (skipped for a combo whose flag says its list already shows
// the right one), the section cells, the mode buttons and sketches, the captions, and what each
// member's presence enables; the chord's bolt button is off for an I or H chord.
void pnn1_aggiorna_profili(InsDati& p, Sessione& s, std::array<bool, 4> giaValide = {});
// The steel, bolt class and exposure combos and the steel's standard.
void pnn1_aggiorna_materiali(InsDati& p, Sessione& s);
// The mode buttons of member m (1..3) from the node, and its sketch drawn again.
void pnn2_aggionaOpButton_Disegni(InsDati& p, const Sessione& s, int m);
// The dimension labels beside member m's sketch (0 the chord).
void pnn2_disegna_label_sezione_aste(InsDati& p, int m);

// A click on the section combo i (0 the chord) at list place `posto`: the node takes the row
// that the list holds there; bolts stay where they are.
void Cb_Asta_Click(InsDati& p, Sessione& s, int i, int posto);
// The presence box of member i: the member's flag (and its second profile's) follow the box.
void AstaCh_Click(InsDati& p, Sessione& s, int i, bool spuntata);
// The option button k (member k / 3 + 1, choice k % 3) set: single, double, or opposed, which
// a channel takes as single; both set the side to 1.
void OpB_aste_c_Click(InsDati& p, Sessione& s, int k);
// The side label of member i + 1: only an angle turns over.
void Cambia_lato_asta_L(InsDati& p, Sessione& s, int indice);
// The method option: steels as the materials keep them per method, the load case boxes shown or
// hidden, the capacity cells again.
void TipoVer_Click(InsDati& p, Sessione& s, std::int16_t metodo);
// The steel and bolt class combos at list place `posto`.
void Cb_Acciaio_Click(InsDati& p, Sessione& s, int posto);
void Cb_Vite_Click(InsDati& p, Sessione& s, int posto);
// The exposure combo at place `posto` (0..2).
void ComboEsposizione_Click(InsDati& p, Sessione& s, int posto);

}  // namespace qf17
