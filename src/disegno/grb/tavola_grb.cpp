#include "disegno/grb/tavola_grb.h"

#include <cmath>
#include <numbers>
#include <utility>

#include "disegno/archivio_disegno.h"
#include "disegno/esecutivo/quote.h"
#include "disegno/esecutivo/tavola_dis.h"
#include "disegno/grb/archivio_grb.h"
#include "librerie/numeri.h"
#include "nodo/sessione.h"

namespace qf17 {

namespace {

bool StileNelModello(const StiliGRB& stili, std::int16_t stile) {
  return stili.Letti && stile >= 1 && stile <= stili.NumStili;
}

// A segment as the DIS dimension orders it (left to right, or upward when vertical), so that a
// text along it reads the same way up on both sheets.
struct Segmento {
  double x1, y1, x2, y2;
  double lunghezza;
  double angolo;  // radians
  std::int16_t gradi;
};

Segmento Ordina(double x1, double x2, double y1, double y2) {
  const bool verticale = std::abs(x1 - x2) < kTolleranzaDisegno;
  if (verticale ? y1 > y2 : x1 > x2) {
    std::swap(x1, x2);
    std::swap(y1, y2);
  }
  const double angolo = verticale ? (y2 <= y1 ? -std::numbers::pi / 2 : std::numbers::pi / 2)
                                  : std::atan((y2 - y1) / (x2 - x1));
  return {x1,
          y1,
          x2,
          y2,
          std::sqrt((x1 - x2) * (x1 - x2) + (y1 - y2) * (y1 - y2)),
          angolo,
          InI16(angolo * 180 / std::numbers::pi)};
}

bool Nullo(double x1, double x2, double y1, double y2) {
  return std::abs(x1 - x2) < kTolleranzaDisegno && std::abs(y1 - y2) < kTolleranzaDisegno;
}

// The dimension widens the extents like the DIS one, line or not, so that every view after it
// is placed where the DIS sheet places it.
void Estensioni(Sessione& s, double x1, double x2, double y1, double y2) {
  ArchivioDisegno& a = s.disegno;
  AggiornaEstensioni(a, s.nodo.Cor_teta, x1 + a.OrigineX, y1 + a.OrigineY);
  AggiornaEstensioni(a, s.nodo.Cor_teta, x2 + a.OrigineX, y2 + a.OrigineY);
}

// Widens the extents by the tips of the DIS sheet's arrow head at (x, y).
void PunteFrecciaNelleEstensioni(Sessione& s, double x, double y, double angolo, double verso) {
  ArchivioDisegno& a = s.disegno;
  for (const Punto& p : PunteFreccia(s, x, y, angolo, verso)) {
    AggiornaEstensioni(a, s.nodo.Cor_teta, p.x + a.OrigineX, p.y + a.OrigineY);
  }
}

// The editor draws the indicators of a dimension itself, but the sheet keeps the room that the
// DIS sheet's arrow heads take (its circles do not widen the extents): the views after it are
// placed by the extents, and so stand where they stand on the DIS sheet.
void EstensioniIndicatori(Sessione& s, const Segmento& q) {
  if (s.opzioni[27] != 1 || s.opzioni[14] <= kTolleranzaDisegno) return;
  const double verso = 2 * s.opzioni[14] <= q.lunghezza ? 1 : -1;
  PunteFrecciaNelleEstensioni(s, q.x1, q.y1, q.angolo, verso);
  PunteFrecciaNelleEstensioni(s, q.x2, q.y2, q.angolo, -verso);
}

}  // namespace

std::int16_t TavolaGrb::Stile(ClasseTesto classe) const {
  return InI16(S().opzioni[classe == ClasseTesto::Quote ? 29 : 28]);
}

double TavolaGrb::Larghezza(ClasseTesto classe) const {
  const std::int16_t stile = Stile(classe);
  if (StileNelModello(S().stiliGrb, stile)) return S().stiliGrb.GRBLarghezza[stile];
  return TavolaDis(S()).Larghezza(classe);
}

double TavolaGrb::Altezza(ClasseTesto classe) const {
  const std::int16_t stile = Stile(classe);
  if (StileNelModello(S().stiliGrb, stile)) return S().stiliGrb.GRBAltezza[stile];
  return TavolaDis(S()).Altezza(classe);
}

void TavolaGrb::Quota(const std::string& testo, double x1, double x2, double y1, double y2,
                      double /*distanza*/, double fattore) {
  Estensioni(S(), x1, x2, y1, y2);
  if (Nullo(x1, x2, y1, y2)) return;
  const Segmento q = Ordina(x1, x2, y1, y2);
  EstensioniIndicatori(S(), q);
  std::string scritta = testo;
  // A detail drawn larger reads true millimetres only if the measure is written here. The
  // measure is formed for every dimension, so that one the viewer could not measure stops the
  // sheet here as it stops the DIS sheet.
  const std::string misura = TestoMisura(std::abs(fattore) * q.lunghezza);
  if (scritta.empty() && std::abs(fattore) != 1) scritta = misura;
  QuotaGRB(S(), scritta, q.x1, q.y1, q.x2, q.y2, kScostamentoQuoteGrb, Stile(ClasseTesto::Quote));
}

void TavolaGrb::TestoCentrato(const std::string& testo, double x1, double x2, double y1, double y2,
                              double distanza, ClasseTesto classe, std::int16_t /*colore*/) {
  Estensioni(S(), x1, x2, y1, y2);
  if (Nullo(x1, x2, y1, y2)) return;
  const Segmento q = Ordina(x1, x2, y1, y2);
  // The segment moved `distanza` to the left of its direction: its middle is the middle of the
  // text's baseline.
  const double dx = (q.y1 - q.y2) * distanza / q.lunghezza;
  const double dy = -(q.x1 - q.x2) * distanza / q.lunghezza;
  ArchivioDisegno& a = S().disegno;
  const std::int32_t prima = a.NumTesti;
  ScriviTestoGRB(S(), testo, q.x1 + dx, q.y1 + dy, q.x2 + dx, q.y2 + dy, q.gradi, kAncoraAlCentro,
                 Stile(classe));
  DimensioniRiga(prima, classe);
}

void TavolaGrb::Testo(const std::string& testo, double x, double y, std::int16_t angolo,
                      ClasseTesto classe, std::int16_t /*colore*/) {
  const std::int32_t prima = S().disegno.NumTesti;
  ScriviTestoGRB(S(), testo, x, y, x, y, angolo, kAncoraAllInizio, Stile(classe));
  DimensioniRiga(prima, classe);
}

void TavolaGrb::DimensioniRiga(std::int32_t riga, ClasseTesto classe) {
  ArchivioDisegno& a = S().disegno;
  if (a.NumTesti != riga + 1) return;
  TabelleDisegno& t = a.Tabelle();
  t.TestoLarghezza[riga] = InI16(Larghezza(classe) * 10);
  t.TestoAltezza[riga] = InI16(Altezza(classe) * 10);
}

}  // namespace qf17
