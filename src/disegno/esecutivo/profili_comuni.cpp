#include "disegno/esecutivo/profili_comuni.h"

#include <algorithm>
#include <cmath>

#include "disegno/archivio_disegno_primitive.h"
#include "disegno/esecutivo/quote.h"
#include "nodo/sessione.h"

namespace qf17::profili {

namespace {

// Parameters along a segment, ends included, closer than this are one point.
constexpr double kTolleranzaParametro = 1e-9;
constexpr double kTolleranzaBordo = 1e-6;

double Vettoriale(Punto a, Punto b) {
  return a.x * b.y - a.y * b.x;
}

double DistanzaSegmento(Punto p, Punto a, Punto b) {
  const Punto ab = b - a;
  const double l2 = ab.x * ab.x + ab.y * ab.y;
  double u = l2 > 0 ? ((p.x - a.x) * ab.x + (p.y - a.y) * ab.y) / l2 : 0;
  u = std::clamp(u, 0.0, 1.0);
  return Modulo(p - (a + u * ab));
}

// Where p-q crosses the sides of the polygon, as parameters strictly between its ends.
void Incroci(Punto p, Punto q, const Poligono& poligono, std::vector<double>& parametri) {
  const Punto d = q - p;
  const std::size_t n = poligono.size();
  for (std::size_t i = 0; i < n; ++i) {
    const Punto a = poligono[i];
    const Punto lato = poligono[(i + 1) % n] - a;
    const double den = Vettoriale(d, lato);
    if (std::abs(den) < 1e-12) continue;  // parallel: the pieces' midpoints tell
    const double t = Vettoriale(a - p, lato) / den;
    const double u = Vettoriale(a - p, d) / den;
    if (t > kTolleranzaParametro && t < 1 - kTolleranzaParametro && u >= -kTolleranzaParametro &&
        u <= 1 + kTolleranzaParametro) {
      parametri.push_back(t);
    }
  }
}

}  // namespace

std::int16_t Colore(const Sessione& s, int indice) {
  return ColoreOpzione(s, indice);
}

void Linea(Sessione& s, Punto p, Punto q, std::int16_t colore, std::int16_t stile) {
  const std::int16_t prima = s.disegno.StileLinea;
  s.disegno.StileLinea = stile;
  DisegnaLinea(s, p.x, p.y, q.x, q.y, colore);
  s.disegno.StileLinea = prima;
}

bool DentroPoligono(const Poligono& poligono, Punto p) {
  const std::size_t n = poligono.size();
  bool dentro = false;
  for (std::size_t i = 0; i < n; ++i) {
    const Punto a = poligono[i];
    const Punto b = poligono[(i + 1) % n];
    if (DistanzaSegmento(p, a, b) < kTolleranzaBordo) return false;
    if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y)) {
      dentro = !dentro;
    }
  }
  return dentro;
}

void LineaCoperta(Sessione& s, Punto p, Punto q, std::int16_t colore,
                  const std::vector<Poligono>& coperture, std::int16_t stile) {
  std::vector<double> parametri{0.0, 1.0};
  for (const Poligono& poligono : coperture) Incroci(p, q, poligono, parametri);
  std::sort(parametri.begin(), parametri.end());
  const auto punto = [&](double t) { return p + t * (q - p); };
  // Consecutive pieces of the same kind become one line, so that no vertex is left in the
  // middle of a straight stroke.
  double inizio = 0;
  bool copertoInizio = false;
  bool primo = true;
  for (std::size_t i = 1; i < parametri.size(); ++i) {
    const double t0 = parametri[i - 1];
    const double t1 = parametri[i];
    if (t1 - t0 <= kTolleranzaParametro) continue;
    const Punto medio = punto((t0 + t1) / 2);
    const bool coperto = std::any_of(coperture.begin(), coperture.end(),
                                     [&](const Poligono& c) { return DentroPoligono(c, medio); });
    if (primo) {
      copertoInizio = coperto;
      primo = false;
    } else if (coperto != copertoInizio) {
      Linea(s, punto(inizio), punto(t0), colore, copertoInizio ? kTratteggiata : stile);
      inizio = t0;
      copertoInizio = coperto;
    }
  }
  Linea(s, punto(inizio), q, colore, copertoInizio ? kTratteggiata : stile);
}

void Rottura(Sessione& s, Punto da, Punto a, Punto fuori, std::int16_t colore) {
  const Punto larghezza = a - da;
  const Punto scarto = (0.1 * Modulo(larghezza)) * fuori;
  const Punto p1 = da + 0.4 * larghezza + scarto;
  const Punto p2 = da + 0.6 * larghezza - scarto;
  Linea(s, da, p1, colore);
  Linea(s, p1, p2, colore);
  Linea(s, p2, a, colore);
}

double SpessoreForato(const Profilo& p) {
  return p.a;
}

}  // namespace qf17::profili
