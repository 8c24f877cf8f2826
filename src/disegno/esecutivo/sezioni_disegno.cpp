// Section outlines: each shape is a closed chain of lines and root fillets in the section's own
// plane, turned onto the sheet at the end.

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "disegno/archivio_disegno_primitive.h"
#include "disegno/esecutivo/profili_comuni.h"
#include "disegno/esecutivo/profili_disegno.h"
#include "disegno/esecutivo/tavola.h"
#include "librerie/profilo.h"
#include "nodo/sessione.h"

namespace qf17 {

namespace {

// The 8 per cent slope of a channel's inner flange faces, as the section table takes it.
constexpr double kPendenzaAli = 0.08;

struct ArcoLocale {
  Punto centro, da, a;  // the shorter arc between the two ends
};

struct Contorno {
  std::vector<std::pair<Punto, Punto>> linee;
  std::vector<ArcoLocale> archi;

  // Closes the outline through the points in order, with a fillet where one is given.
  void Catena(const std::vector<Punto>& punti) {
    for (std::size_t i = 0; i < punti.size(); ++i) {
      linee.emplace_back(punti[i], punti[(i + 1) % punti.size()]);
    }
  }
};

// A fillet of radius r in the corner at `angolo` between a face going `lungo1` and one going
// `lungo2` (unit vectors from the corner along the two faces): its two tangent points.
ArcoLocale Raccordo(Punto angolo, Punto lungo1, Punto lungo2, double r) {
  // The bisector of a right corner or of the slightly open corner of a sloped flange.
  const double coseno = lungo1.x * lungo2.x + lungo1.y * lungo2.y;
  const double semiAngolo = std::acos(std::clamp(coseno, -1.0, 1.0)) / 2;
  const double distanza = r / std::tan(semiAngolo);
  const Punto t1 = angolo + distanza * lungo1;
  const Punto t2 = angolo + distanza * lungo2;
  Punto bisettrice = lungo1 + lungo2;
  bisettrice = (1 / Modulo(bisettrice)) * bisettrice;
  const Punto centro = angolo + (r / std::sin(semiAngolo)) * bisettrice;
  return {centro, t1, t2};
}

Punto Unitario(Punto v) {
  return (1 / Modulo(v)) * v;
}

// A corner with an optional fillet: the points the outline passes and the arc.
void Angolo(Contorno& c, std::vector<Punto>& punti, Punto vertice, Punto prima, Punto dopo,
            double r) {
  if (r <= 0) {
    punti.push_back(vertice);
    return;
  }
  const ArcoLocale arco = Raccordo(vertice, Unitario(prima - vertice), Unitario(dopo - vertice), r);
  c.archi.push_back(arco);
  punti.push_back(arco.da);
  punti.push_back(arco.a);
}

// Closes a chain whose fillets sit between consecutive points: the lines skip the arcs.
void ChiudiConRaccordi(Contorno& c, const std::vector<Punto>& punti) {
  const std::size_t n = punti.size();
  for (std::size_t i = 0; i < n; ++i) {
    const Punto p = punti[i];
    const Punto q = punti[(i + 1) % n];
    bool arco = false;
    for (const ArcoLocale& a : c.archi) {
      if (Modulo(a.da - p) < 1e-9 && Modulo(a.a - q) < 1e-9) arco = true;
    }
    if (!arco) c.linee.emplace_back(p, q);
  }
}

Contorno ContornoLato(const Profilo& p) {
  // Heel at the origin, leg h along v, leg b along u, both e thick; the root fillet r1.
  const double e = p.e;
  Contorno c;
  std::vector<Punto> punti{{0, 0}, {p.b, 0}, {p.b, e}};
  const double r = std::min(p.r1, std::min(p.b, p.h) - e);
  Angolo(c, punti, {e, e}, {p.b, e}, {e, p.h}, r);
  punti.push_back({e, p.h});
  punti.push_back({0, p.h});
  ChiudiConRaccordi(c, punti);
  return c;
}

Contorno ContornoU(const Profilo& p) {
  // Back of the web on u = 0, flanges along u; the inner flange faces slope by 8 per cent about
  // their mean thickness e at mid-width.
  const auto ala = [&](double u) { return p.e + (p.b / 2 - u) * kPendenzaAli; };
  const double h = p.h;
  const double a = p.a;
  const double r = std::min(p.r1, (p.b - a) / 2);
  Contorno c;
  std::vector<Punto> punti{{0, 0}, {p.b, 0}, {p.b, ala(p.b)}};
  Angolo(c, punti, {a, ala(a)}, {p.b, ala(p.b)}, {a, h - ala(a)}, r);
  Angolo(c, punti, {a, h - ala(a)}, {a, ala(a)}, {p.b, h - ala(p.b)}, r);
  punti.push_back({p.b, h - ala(p.b)});
  punti.push_back({p.b, h});
  punti.push_back({0, h});
  ChiudiConRaccordi(c, punti);
  return c;
}

Contorno ContornoDoppioT(const Profilo& p) {
  // Centred on u = 0, flanges at v = 0 and v = h.
  const double b = p.b / 2;
  const double a = p.a / 2;
  const double e = p.e;
  const double h = p.h;
  const double r = std::min(p.r1, std::min(b - a, h / 2 - e));
  Contorno c;
  std::vector<Punto> punti{{-b, 0}, {b, 0}, {b, e}};
  Angolo(c, punti, {a, e}, {b, e}, {a, h - e}, r);
  Angolo(c, punti, {a, h - e}, {a, e}, {b, h - e}, r);
  punti.push_back({b, h - e});
  punti.push_back({b, h});
  punti.push_back({-b, h});
  punti.push_back({-b, h - e});
  Angolo(c, punti, {-a, h - e}, {-b, h - e}, {-a, e}, r);
  Angolo(c, punti, {-a, e}, {-a, h - e}, {-b, e}, r);
  punti.push_back({-b, e});
  ChiudiConRaccordi(c, punti);
  return c;
}

double AngoloSulFoglio(Punto centro, Punto p) {
  return std::atan2(p.y - centro.y, p.x - centro.x);
}

void Traccia(Tavola& t, const Contorno& c, double x, double y, double angolo, double scala,
             double specchio) {
  Sessione& s = t.S();
  const std::int16_t colore = s.disegno.ColoreCorrente;
  const auto foglio = [&](Punto p) {
    return RuotaPunto(specchio * p.x * scala, p.y * scala, x, y, angolo);
  };
  for (const auto& [p, q] : c.linee) profili::Linea(s, foglio(p), foglio(q), colore);
  for (const ArcoLocale& arco : c.archi) {
    const Punto centro = foglio(arco.centro);
    const Punto da = foglio(arco.da);
    const Punto a = foglio(arco.a);
    double inizio = AngoloSulFoglio(centro, da);
    double fine = AngoloSulFoglio(centro, a);
    // Arcs run counter-clockwise on the sheet: the fillet is the shorter way round.
    const double giro = 2 * std::acos(-1.0);
    if (std::fmod(fine - inizio + 2 * giro, giro) > giro / 2) std::swap(inizio, fine);
    DisegnaCerchio(s, centro.x, centro.y, 2 * Modulo(da - centro), colore, inizio, fine);
  }
}

}  // namespace

void SezioneLato(Tavola& t, const Profilo& profilo, double x, double y, double angolo, double scala,
                 double specchio) {
  Traccia(t, ContornoLato(profilo), x, y, angolo, scala, specchio);
}

void SezioneU(Tavola& t, const Profilo& profilo, double x, double y, double angolo, double scala,
              double specchio) {
  Traccia(t, ContornoU(profilo), x, y, angolo, scala, specchio);
}

void SezioneDoppioT(Tavola& t, const Profilo& profilo, double x, double y, double angolo,
                    double scala, double specchio) {
  Traccia(t, ContornoDoppioT(profilo), x, y, angolo, scala, specchio);
}

void DisegnaSezione(Tavola& t, const Profilo& profilo, double x, double y, double angolo,
                    double scala, double specchio) {
  switch (static_cast<TipoProfilo>(profilo.Tipo)) {
    case TipoProfilo::Canale:
      SezioneU(t, profilo, x, y, angolo, scala, specchio);
      break;
    case TipoProfilo::Angolare:
      SezioneLato(t, profilo, x, y, angolo, scala, specchio);
      break;
    default:
      SezioneDoppioT(t, profilo, x, y, angolo, scala, specchio);
      break;
  }
}

void profili::SezioneOrientata(Tavola& t, const Profilo& profilo, Punto origine, double angolo,
                               double versoU, double versoV, double scala) {
  // v backwards is the section turned by half a turn and mirrored.
  if (versoV > 0) {
    DisegnaSezione(t, profilo, origine.x, origine.y, angolo, scala, versoU);
  } else {
    DisegnaSezione(t, profilo, origine.x, origine.y, angolo + std::acos(-1.0), scala, -versoU);
  }
}

}  // namespace qf17
