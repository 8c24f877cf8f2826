#include "disegno/archivio_disegno.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "piattaforma/errori.h"
#include "piattaforma/piattaforma.h"

namespace qf17 {

namespace {

// The search looks at the newest coordinate and the 30 before it.
constexpr std::int32_t kFinestraRicerca = 30;
constexpr std::int32_t kMassimoIndice16 = 32767;

}  // namespace

void AvvisoLimiteDisegno(Piattaforma& p, std::string_view testo) {
  p.Messaggio(std::string(testo), std::string(kTitoloLimiteDisegno), Icona::Nessuna, Pulsanti::Ok);
}

TabelleDisegno& ArchivioDisegno::Tabelle() {
  if (!tabelle_.get()) tabelle_.Crea();
  return *tabelle_.get();
}

const TabelleDisegno& ArchivioDisegno::Tabelle() const {
  if (!tabelle_.get()) tabelle_.Crea();
  return *tabelle_.get();
}

void AzzeraDisegno(ArchivioDisegno& a) {
  a.NumCoord = 0;
  a.NumLinee = 0;
  a.NumPunti = 0;
  a.NumArchi = 0;
  a.NumTesti = 0;
  a.NumQuote = 0;
  a.NumPoligoni = 0;
}

void AzzeraEstensioni(ArchivioDisegno& a) {
  a.EstMaxX = a.EstMaxY = a.RuotMaxX = a.RuotMaxY = -10000000000.0;
  a.EstMinX = a.EstMinY = a.RuotMinX = a.RuotMinY = 10000000000.0;
}

void AggiornaEstensioni(ArchivioDisegno& a, double corTeta, double x, double y) {
  a.EstMinX = std::min(a.EstMinX, x);
  a.EstMaxX = std::max(a.EstMaxX, x);
  a.EstMinY = std::min(a.EstMinY, y);
  a.EstMaxY = std::max(a.EstMaxY, y);
  const double c = std::cos(corTeta);
  const double s = std::sin(corTeta);
  const double xr = x * c - y * s;
  const double yr = x * s + y * c;
  a.RuotMinX = std::min(a.RuotMinX, xr);
  a.RuotMaxX = std::max(a.RuotMaxX, xr);
  a.RuotMinY = std::min(a.RuotMinY, yr);
  a.RuotMaxY = std::max(a.RuotMaxY, yr);
}

std::int32_t CoordinataRecente(const ArchivioDisegno& a, double x, double y) {
  const TabelleDisegno& t = a.Tabelle();
  for (std::int32_t i = a.NumCoord - 1; i >= 0; --i) {
    if (std::abs(x - t.CoordX[i]) < kTolleranzaDisegno &&
        std::abs(y - t.CoordY[i]) < kTolleranzaDisegno) {
      return i;
    }
    if (a.NumCoord - i > kFinestraRicerca) break;
  }
  return -1;
}

namespace {

std::int32_t NuovaCoordinata(ArchivioDisegno& a, Piattaforma& p, double x, double y) {
  if (a.NumCoord == kUltimaCoordinata - 1) AvvisoLimiteDisegno(p, kLimiteCoordinate);
  if (a.NumCoord >= kUltimaCoordinata) return -1;
  TabelleDisegno& t = a.Tabelle();
  const std::int32_t i = a.NumCoord;
  t.CoordX[i] = x;
  t.CoordY[i] = y;
  ++a.NumCoord;
  return i;
}

}  // namespace

std::int32_t TrovaOAggiungiCoordinata(ArchivioDisegno& a, Piattaforma& p, double x, double y) {
  const std::int32_t trovata = CoordinataRecente(a, x, y);
  return trovata >= 0 ? trovata : NuovaCoordinata(a, p, x, y);
}

std::int16_t AggiungiCoordinata(ArchivioDisegno& a, Piattaforma& p, double x, double y) {
  // The family's search counts in 16 bits from the newest row, so a table that already holds a
  // row beyond 32767 cannot even be searched.
  if (a.NumCoord - 1 > kMassimoIndice16 ||
      (a.NumCoord > kMassimoIndice16 && CoordinataRecente(a, x, y) < 0)) {
    throw ErroreFatale("Overflow: il disegno supera le " + std::to_string(kMassimoIndice16 + 1) +
                       " coordinate che un indice a 16 bit può contare");
  }
  return static_cast<std::int16_t>(TrovaOAggiungiCoordinata(a, p, x, y));
}

}  // namespace qf17
