#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "bulloni/form_bulloni.h"
#include "verifica/verifica.h"

namespace qf17 {

struct Sessione;
struct InsDati;

// The size of the bolt editor's picture a front end gives it.
struct DimensioniPicture {
  double larghezza = 600, altezza = 300;
};

// The panel's tooltips, one per control: name, index (-1 for a single control) and text.
struct ToolTipPannello {
  std::string_view controllo;
  int indice;
  std::string_view testo;
};
extern const std::array<ToolTipPannello, 63> kToolTipPannello;
void InsDati_ImpostaToolTip(InsDati& p);

// The whole panel from the session, as after start-up or a load: tooltips, sections, boxes,
// materials, the method, the load table from its first set, the title.
void AggiornaPannello(InsDati& p, Sessione& s);

// The pointer over the schema at (x, y): the bolt group of the hot area under it (the chord's
// only for a bolted chord), 0 for none; a hand over a hot area.
void Sezioni_MouseMove(InsDati& p, const Nodo& nodo, double x, double y);
// A click on the schema: the bolt editor of the group under the pointer, when its size allows
// ("Dimensione non valida" otherwise).
std::optional<FormBulloni> Sezioni_Click(InsDati& p, Sessione& s, DimensioniPicture picture = {});
// The bolt buttons, group 1 the chord, 2..4 members A..C, with their guards and messages.
std::optional<FormBulloni> Bt_bul_Click(InsDati& p, Sessione& s, std::int16_t gruppo,
                                        DimensioniPicture picture = {});
// The editor closed, by any means: the live 3D view again.
void FormBulloniChiusa(InsDati& p, Sessione& s);

// The verify button: the warning on groups without bolts, then the run.
EsitoVerifica VerificaButt(InsDati& p, Sessione& s);
// Open, save and save as: the panel refreshed after a load; the title follows the node's name.
bool Car_Nodo(InsDati& p, Sessione& s);
bool Bt_salva(InsDati& p, Sessione& s);
bool Bt_salva_con_nome(InsDati& p, Sessione& s);
// "Rim. doppi" and "Max e min" on the load table.
void RimuoviDoppieSoll(InsDati& p, Sessione& s);
void MaxMinSoll(InsDati& p, Sessione& s);
// "Legenda della relazione di calcolo": HelpQF17.pdf of the Help folder, in the viewer.
void LegendaButt(Sessione& s);

}  // namespace qf17
