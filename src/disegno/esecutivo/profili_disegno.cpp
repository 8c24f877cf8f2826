// Frames, holes and weld marks shared by the node view and the details.

#include "disegno/esecutivo/profili_disegno.h"

#include <cmath>

#include "disegno/archivio_disegno_primitive.h"
#include "disegno/esecutivo/profili_comuni.h"
#include "disegno/esecutivo/tavola.h"
#include "nodo/sessione.h"
#include "verifica/comuni.h"

namespace qf17 {

namespace {

// Distance of a member's bolt from edge 2 of its profile, along Normale: the group's y is
// measured from the free edge of the connected leg of an angle and from the inner face of a
// channel's flange.
double TraversoAsta(const Nodo& n, int asta, double y, bool secondo) {
  const Profilo& p = n.Aste[asta];
  if (p.Tipo == static_cast<std::int16_t>(TipoProfilo::Canale)) return p.e + y;
  // Edge 2 is the back of the profile (the free edge is edge 1) with lato 1 and for the first
  // profile of an opposed pair; the far profile of the pair has its free edge on edge 2.
  const bool opposta = n.Ast_modo[asta] == static_cast<std::int16_t>(AstModo::Opposta);
  const bool schienaSu2 = opposta ? !secondo : n.Ast_lato[asta] == 1;
  return schienaSu2 ? p.h - y : y;
}

}  // namespace

Punto RuotaPunto(double x, double y, double ox, double oy, double a) {
  return {x * std::cos(a) + y * std::sin(a) + ox, y * std::cos(a) - x * std::sin(a) + oy};
}

Punto CentroBulloneNodo(const Sessione& s, int gruppo, int k, bool secondo) {
  const Nodo& n = s.nodo;
  const double x = n.xBull(gruppo, k);
  const double y = n.yBull(gruppo, k);
  if (gruppo == 0) {
    // The chord's y grows away from the gusset, from the edge the gusset meets.
    const Profilo& c = n.Corrente;
    double y0 = 0;
    if (c.Tipo == static_cast<std::int16_t>(TipoProfilo::Canale)) y0 = c.h / 2 - c.e;
    if (c.Tipo == static_cast<std::int16_t>(TipoProfilo::Angolare)) y0 = c.h - c.dBarX;
    const double P = n.PosFazzoletto;
    return RuotaPunto(x - (n.Fz_a + n.Fz_b), -P * (y - y0), 0, 0, n.Cor_teta);
  }
  const Saldatura& bordo2 = n.Saldature(secondo ? gruppo + 3 : gruppo, 2);
  return RuotaPunto(x, TraversoAsta(n, gruppo, y, secondo), bordo2.XS[1], bordo2.YS[1],
                    n.Ast_teta[gruppo]);
}

void DisegnaForo(Tavola& t, double x, double y, double fi, double scala, double angolo,
                 bool nascosto) {
  Sessione& s = t.S();
  const double d = DiamForo(s.opzioni, fi);
  DisegnaCerchio(s, x, y, d * scala, profili::Colore(s, 0));
  const double braccio = (d / 2 + 0.1 * fi) * scala;
  const Punto c{x, y};
  const Punto lungo = braccio * Direzione(angolo);
  const Punto attraverso = braccio * Normale(angolo);
  const std::int16_t stile = nascosto ? profili::kTratteggiata : profili::kTrattoPunto;
  profili::Linea(s, c - lungo, c + lungo, profili::Colore(s, 1), stile);
  profili::Linea(s, c - attraverso, c + attraverso, profili::Colore(s, 1), stile);
}

void DisegnaFori(Tavola& t, int gruppo, double ox, double oy, double segno, double scala) {
  const Nodo& n = t.S().nodo;
  for (int k = 1; k <= n.nBull[gruppo]; ++k) {
    DisegnaForo(t, ox + segno * n.xBull(gruppo, k) * scala, oy + segno * n.yBull(gruppo, k) * scala,
                n.FiBull(gruppo, k), scala);
  }
}

void MarcaSaldatura(Tavola& t, double x1, double y1, double x2, double y2, double spessore,
                    std::int16_t estremi, double passo, double angolo) {
  Sessione& s = t.S();
  const double lunghezza = std::hypot(x2 - x1, y2 - y1);
  if (passo == 0 || lunghezza == 0) return;
  const int passi = static_cast<int>(std::floor(lunghezza / passo + 0.5));
  const std::int16_t colore = profili::Colore(s, 20);
  const Punto tacca = (spessore * passo) * Normale(angolo);
  const auto Tacca = [&](Punto p) { profili::Linea(s, p, p + tacca, colore); };
  const Punto inizio{x1, y1};
  const Punto fine{x2, y2};
  if (estremi == 1) Tacca(inizio);
  Punto p = inizio;
  for (int i = 1; i <= passi - 1; ++i) {
    p = p + passo * Direzione(angolo);
    Tacca(p);
  }
  if (estremi == 1) {
    Tacca(fine);
    profili::Linea(s, inizio + tacca, fine + tacca, colore);
  }
}

}  // namespace qf17
