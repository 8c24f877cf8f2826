#include "disegno/esecutivo/quote.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "disegno/archivio_disegno.h"
#include "disegno/archivio_disegno_primitive.h"
#include "disegno/esecutivo/tavola.h"
#include "librerie/numeri.h"
#include "nodo/sessione.h"
#include "piattaforma/errori.h"
#include "piattaforma/file_testo.h"

namespace qf17 {

namespace {

// The three strokes of an arrow head at (x, y): `verso` +1 opens it towards the line's
// direction `angolo`, -1 away from it.
void Freccia(Sessione& s, double x, double y, double angolo, double verso, std::int16_t colore) {
  const auto [a, b] = PunteFreccia(s, x, y, angolo, verso);
  DisegnaLinea(s, x, y, a.x, a.y, colore);
  DisegnaLinea(s, x, y, b.x, b.y, colore);
  DisegnaLinea(s, a.x, a.y, b.x, b.y, colore);
}

// Indicators at both ends and the line between them. A dimension too short for two indicators
// gets them outside its ends.
void LineaQuota(Sessione& s, double x1, double x2, double y1, double y2, double lunghezza,
                double angolo, std::int16_t colore) {
  const double verso = 2 * s.opzioni[14] <= lunghezza ? 1 : -1;
  if (s.opzioni[27] == 1) {
    Freccia(s, x1, y1, angolo, verso, colore);
    Freccia(s, x2, y2, angolo, -verso, colore);
  } else {
    DisegnaCerchio(s, x1, y1, s.opzioni[14], colore);
    DisegnaCerchio(s, x2, y2, s.opzioni[14], colore);
  }
  DisegnaLinea(s, x1, y1, x2, y2, colore);
}

// The distance of the text from the line: a text longer than its line goes to the far side
// when the chain allows it and the one before did not.
double DistanzaTesto(ArchivioDisegno& a, bool entra, double distanza, double altezzaQuote) {
  if (entra) {
    a.QuotaAlternata = 0;
    return distanza;
  }
  if (a.QuotaAlterna == 0) return distanza;
  if (a.QuotaAlternata == 0) {
    a.QuotaAlternata = 1;
    return -distanza - altezzaQuote;
  }
  a.QuotaAlternata = 0;
  return distanza;
}

}  // namespace

std::array<Punto, 2> PunteFreccia(const Sessione& s, double x, double y, double angolo,
                                  double verso) {
  constexpr double kSemiapertura = 0.261799387799149;  // half the opening: 15 degrees
  const double r = s.opzioni[14];
  const double rt = r * std::tan(kSemiapertura);
  const double c = std::cos(angolo);
  const double sn = std::sin(angolo);
  return {Punto{x + verso * (r * c - rt * sn), y + verso * (r * sn + rt * c)},
          Punto{x + verso * (r * c + rt * sn), y + verso * (r * sn - rt * c)}};
}

std::int16_t ColoreOpzione(const Sessione& s, int indice) {
  return InI16(s.opzioni[indice]);
}

std::string TestoMisura(double misura) {
  // The square of a length beyond 1e154 overflows: such a sheet cannot be dimensioned.
  if (!std::isfinite(misura)) {
    throw ErroreFatale(
        "Disegno non eseguito: una quota misura un valore non finito: controllare le dimensioni "
        "del fazzoletto, degli angoli e delle aste");
  }
  return TestoNumero(std::floor(10 * misura + 0.5) / 10);
}

void Quota(Sessione& s, const std::string& testo, double x1, double x2, double y1, double y2,
           std::int16_t coloreLinea, std::int16_t coloreTesto, double larghezza, double altezza,
           double distanza, double fattore) {
  ArchivioDisegno& a = s.disegno;
  AggiornaEstensioni(a, s.nodo.Cor_teta, x1 + a.OrigineX, y1 + a.OrigineY);
  AggiornaEstensioni(a, s.nodo.Cor_teta, x2 + a.OrigineX, y2 + a.OrigineY);
  const bool verticale = std::abs(x1 - x2) < kTolleranzaDisegno;
  if (verticale && std::abs(y1 - y2) < kTolleranzaDisegno) return;
  // Left to right, or upward when vertical, so that every text reads the right way up.
  if (verticale ? y1 > y2 : x1 > x2) {
    std::swap(x1, x2);
    std::swap(y1, y2);
  }
  const double lunghezza = std::sqrt((x1 - x2) * (x1 - x2) + (y1 - y2) * (y1 - y2));
  double angolo;
  if (verticale) {
    angolo = y2 <= y1 ? -std::numbers::pi / 2 : std::numbers::pi / 2;
  } else {
    angolo = std::atan((y2 - y1) / (x2 - x1));
  }
  const std::int16_t gradi = InI16(angolo * 180 / std::numbers::pi);

  if (coloreLinea != -1) LineaQuota(s, x1, x2, y1, y2, lunghezza, angolo, coloreLinea);

  const std::string scritta = testo.empty() ? TestoMisura(std::abs(fattore) * lunghezza) : testo;
  const double lungTesto = static_cast<double>(NumeroCaratteri(scritta)) * larghezza;
  const double d = DistanzaTesto(a, lungTesto < lunghezza, distanza, s.opzioni[7]);
  // Centred along the line and d to the left of its direction.
  const double q = lungTesto / lunghezza;
  const double x = (x1 + x2) / 2 + (x1 - x2) * q / 2 + (y1 - y2) * d / lunghezza;
  const double y = (y1 + y2) / 2 + (y1 - y2) * q / 2 - (x1 - x2) * d / lunghezza;
  ScriviTesto(s, scritta, x, y, gradi, larghezza, altezza, coloreTesto);
}

void OrdinaPunti(std::vector<Punto>& punti, Asse asse) {
  std::stable_sort(punti.begin(), punti.end(), [asse](const Punto& p, const Punto& q) {
    return asse == Asse::X ? p.x < q.x : p.y < q.y;
  });
}

void QuotaCatena(Tavola& t, const std::vector<Punto>& punti, double fattore) {
  ArchivioDisegno& a = t.S().disegno;
  a.QuotaAlterna = 1;
  a.QuotaAlternata = 0;
  const double distanza = t.S().opzioni[13];
  for (std::size_t k = 1; k < punti.size(); ++k) {
    t.Quota("", punti[k - 1].x, punti[k].x, punti[k - 1].y, punti[k].y, distanza, fattore);
  }
  a.QuotaAlterna = 0;
}

}  // namespace qf17
