// The section of a strip seen from its end: the profile (or the pair) with each row of holes cut
// across the part the bolt passes.

#include <cmath>
#include <utility>
#include <vector>

#include "disegno/esecutivo/profili_comuni.h"
#include "disegno/esecutivo/profili_disegno.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "disegno/esecutivo/tavola.h"
#include "nodo/sessione.h"
#include "verifica/comuni.h"

namespace qf17 {

namespace {

using profili::Colore;

// One hole row of the section: the bolt's height in the strip and its diameter.
struct FilaFori {
  double y = 0;
  double fi = 0;
};

std::vector<FilaFori> FileFori(const Nodo& n, int gruppo) {
  std::vector<FilaFori> file;
  for (int k = 1; k <= n.nBull[gruppo]; ++k) {
    const FilaFori f{n.yBull(gruppo, k), n.FiBull(gruppo, k)};
    bool nuova = true;
    for (const FilaFori& g : file) {
      if (std::abs(g.y - f.y) < 1e-9 && g.fi == f.fi) nuova = false;
    }
    if (nuova) file.push_back(f);
  }
  return file;
}

// The walls of the hole at height y through the part from u0 to u1.
void Pareti(Sessione& s, double y, double fi, double u0, double u1) {
  const double r = DiamForo(s.opzioni, fi) * s.opzioni[21] / 2;
  profili::Linea(s, {u0, y - r}, {u1, y - r}, Colore(s, 0));
  profili::Linea(s, {u0, y + r}, {u1, y + r}, Colore(s, 0));
}

// The bolt's axis through the parts from a to b, passing them by a tenth of its diameter.
void AsseBullone(Sessione& s, double y, double fi, double a, double b) {
  const double oltre = 0.1 * fi * s.opzioni[21];
  profili::Linea(s, {a - oltre, y}, {b + oltre, y}, Colore(s, 1), profili::kTrattoPunto);
}

}  // namespace

void SezioneConFori(Tavola& t, StatoEsecutivo& stato, int asta) {
  Sessione& s = t.S();
  const Nodo& n = s.nodo;
  const double k = s.opzioni[21];
  const Profilo& p = asta == 0 ? n.Corrente : n.Aste[asta];
  s.disegno.ColoreCorrente = Colore(s, 2);
  s.disegno.StileLinea = profili::kContinua;
  if (p.Tipo == static_cast<std::int16_t>(TipoProfilo::DoppioT)) {
    // Only a chord is an I or H section here, welded to the gusset: no strip and no holes, and
    // the section hangs below the origin, which stays at the node view's bottom.
    DisegnaSezione(t, p, p.b * k / 2, -p.h * k, 0, k, 1);
    return;
  }
  const double lunghezza = LunghezzaStriscia(s, asta);
  const double xs =
      lunghezza + std::abs(0.15 * lunghezza) + (1 + stato.FattoreSezioni) * s.opzioni[22];
  const double spessoreGusset = n.Fz_s * k;
  const double w = p.h * k;
  const bool coppia = asta == 0 || n.Ast_modo[asta] == static_cast<std::int16_t>(AstModo::Doppia);
  const bool opposta = asta != 0 && n.Ast_modo[asta] == static_cast<std::int16_t>(AstModo::Opposta);
  // The face of the gusset on the near profile's side.
  const double x0 = xs + (coppia || opposta ? spessoreGusset + p.b * k : 0);
  const bool angolare = p.Tipo == static_cast<std::int16_t>(TipoProfilo::Angolare);
  // An angle's heel at the top of the strip (its free edge is y = 0); a channel from y = 0 up.
  const Punto vicino{x0, angolare ? w : 0};
  const double verso = angolare ? -1 : 1;
  profili::SezioneOrientata(t, p, vicino, 0, 1, verso, k);
  if (coppia) profili::SezioneOrientata(t, p, vicino - Punto{spessoreGusset, 0}, 0, -1, verso, k);
  // The far profile of an opposed pair stands above the first, beyond the gusset's thickness,
  // turned the other way.
  const double yLontano = w + spessoreGusset;
  if (opposta) {
    profili::SezioneOrientata(t, p, {x0 - spessoreGusset, yLontano}, 0, -1, 1, k);
  }

  s.disegno.ColoreCorrente = Colore(s, 0);
  const double spessore = profili::SpessoreForato(p) * k;
  const double oy = angolare ? 0 : p.e * k;
  const int gruppo = asta;
  for (const FilaFori& f : FileFori(n, gruppo)) {
    // The group's y runs from the free edge of an angle's leg, or the flange's inner face.
    const double y = oy + f.y * k;
    const double dietro = x0 - spessoreGusset;
    Pareti(s, y, f.fi, x0, x0 + spessore);
    if (coppia) {
      // One bolt through both profiles and the gusset between them.
      Pareti(s, y, f.fi, dietro - spessore, dietro);
      AsseBullone(s, y, f.fi, dietro - spessore, x0 + spessore);
      continue;
    }
    AsseBullone(s, y, f.fi, x0, x0 + spessore);
    if (opposta) {
      const double y2 = angolare ? yLontano + w - f.y * k : yLontano + oy + f.y * k;
      Pareti(s, y2, f.fi, dietro - spessore, dietro);
      AsseBullone(s, y2, f.fi, dietro - spessore, dietro);
    }
  }
}

}  // namespace qf17
