// Where the member profiles end on the gusset, the 30-degree spread and the effective width.

#include <cmath>

#include "nodo/sessione.h"
#include "verifica/comuni.h"
#include "verifica/geometria.h"

namespace qf17 {
namespace {

bool Opposta(const Nodo& n, int i) {
  return n.Ast_modo[i] == static_cast<std::int16_t>(AstModo::Opposta);
}

// Single or double member: one square cut, placed by the edge that reaches deeper into the
// gusset; the other edge's crossing gives way.
void EstremiSemplici(Nodo& n, int i, double lunghOltre) {
  const double t = n.Ast_teta[i];
  const Punto a = Direzione(t);
  const Punto nn = Normale(t);
  const double h = n.Aste[i].h;
  Saldatura& b1 = n.Saldature(i, 1);
  Saldatura& b2 = n.Saldature(i, 2);
  const Punto E1 = PuntoBordo(b1, 2);
  const Punto E2 = PuntoBordo(b2, 2);
  const double L1 = b1.Sld_L;
  const double L2 = b2.Sld_L;
  const Punto T1 = E1 - L1 * a - h * nn;
  const Punto T2 = E2 - L2 * a;
  if (Modulo(T2) > Modulo(T1)) {
    MettiPunto(b1, 1, E1 - L1 * a);
    MettiPunto(b2, 1, T1);
    MettiPunto(b2, 2, T1 + L2 * a);
    MettiPunto(b1, 3, E1 + lunghOltre * a);
    MettiPunto(b2, 3, PuntoBordo(b1, 3) - h * nn);
  } else {
    MettiPunto(b2, 1, T2);
    MettiPunto(b1, 1, T2 + h * nn);
    MettiPunto(b1, 2, PuntoBordo(b1, 1) + L1 * a);
    MettiPunto(b2, 3, E2 + lunghOltre * a);
    MettiPunto(b1, 3, PuntoBordo(b2, 3) + h * nn);
  }
}

// Opposed profiles: four edges and one square cut, placed by the candidate farthest from the
// node. The crossings are read from points 4, which the cut does not move.
void EstremiOpposti(Nodo& n, int i, double lunghOltre) {
  const double t = n.Ast_teta[i];
  const Punto a = Direzione(t);
  const Punto nn = Normale(t);
  const double h = n.Aste[i].h;
  const double s = n.Fz_s;
  Saldatura* bordi[4] = {&n.Saldature(i, 1), &n.Saldature(i, 2), &n.Saldature(i + 3, 1),
                         &n.Saldature(i + 3, 2)};
  // Offset of each edge from edge (i, 1) against the normal; each candidate is its edge's cut
  // brought onto the line of edge (i, 2).
  const double w[4] = {0, h, s + h, 2 * h + s};
  const double spostamento[4] = {-h, 0, s, s + h};
  int vince = 0;
  double massima = 0;
  for (int k = 0; k < 4; ++k) {
    const Punto T = PuntoBordo(*bordi[k], 4) - bordi[k]->Sld_L * a + spostamento[k] * nn;
    const double d = Modulo(T);
    if (k == 0 || d > massima) {
      vince = k;
      massima = d;
    }
  }
  const Punto E = PuntoBordo(*bordi[vince], 4);
  MettiPunto(*bordi[0], 1, E - bordi[vince]->Sld_L * a + w[vince] * nn);
  MettiPunto(*bordi[0], 3, E + lunghOltre * a + w[vince] * nn);
  const double passo[4] = {0, h, s, h};
  for (int punto : {1, 3}) {
    for (int k = 1; k < 4; ++k) {
      MettiPunto(*bordi[k], punto, PuntoBordo(*bordi[k - 1], punto) - passo[k] * nn);
    }
  }
  for (Saldatura* b : bordi) MettiPunto(*b, 2, PuntoBordo(*b, 1) + b->Sld_L * a);
}

void Diffondi(Saldatura& bordo, int j, bool allarga, Punto nn) {
  const double T = std::tan((30.0 / 180.0) * kPiGreco);
  const double w = allarga ? T * bordo.Sld_L : 0.0;
  const double sg = j == 1 ? 1.0 : -1.0;
  MettiPunto(bordo, 5, PuntoBordo(bordo, 1) + (sg * w) * nn);
}

}  // namespace

double Modulo(Punto p) {
  return std::sqrt(p.x * p.x + p.y * p.y);
}

void EstremiAsta(Nodo& n, int i, double lunghOltre) {
  if (Opposta(n, i)) {
    EstremiOpposti(n, i, lunghOltre);
  } else {
    EstremiSemplici(n, i, lunghOltre);
  }
}

void PuntiDiffusione(Nodo& n, int i) {
  const Punto nn = Normale(n.Ast_teta[i]);
  if (Opposta(n, i)) {
    // Only the two outer edges spread.
    Diffondi(n.Saldature(i, 1), 1, true, nn);
    Diffondi(n.Saldature(i, 2), 2, false, nn);
    Diffondi(n.Saldature(i + 3, 1), 1, false, nn);
    Diffondi(n.Saldature(i + 3, 2), 2, true, nn);
  } else {
    Diffondi(n.Saldature(i, 1), 1, true, nn);
    Diffondi(n.Saldature(i, 2), 2, true, nn);
  }
}

void CalcolaBeff(Sessione& sessione, int i) {
  Nodo& n = sessione.nodo;
  Saldatura& b1 = n.Saldature(i, 1);
  Saldatura& b2 = Opposta(n, i) ? n.Saldature(i + 3, 2) : n.Saldature(i, 2);
  Punto p1 = PuntoBordo(b1, 5);
  Punto p2 = PuntoBordo(b2, 5);
  double beff = Modulo(p2 - p1);
  // The spread is cut by the gusset outline: a crossing between the two points takes the
  // place of the nearer one.
  for (const Punto& c : InterseziLati(sessione.geometria, p1.x, p2.x, p1.y, p2.y)) {
    const double d1 = Modulo(c - p1);
    const double d2 = Modulo(c - p2);
    if (!(d1 < beff && d2 < beff)) continue;
    if (d1 <= d2) {
      p1 = c;
    } else {
      p2 = c;
    }
    beff = Modulo(p2 - p1);
  }
  MettiPunto(b1, 5, p1);
  MettiPunto(b2, 5, p2);
  sessione.geometria.Beff[i] = std::abs(n.Ast_coeff[i]) * beff;
}

}  // namespace qf17
