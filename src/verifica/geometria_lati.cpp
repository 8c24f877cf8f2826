// The gusset outline and the crossings of a line with it.

#include <cmath>

#include "nodo/nodo.h"
#include "verifica/comuni.h"
#include "verifica/geometria.h"

namespace qf17 {
namespace {

constexpr double kTolleranza = 0.0001;

double Distanza(double x1, double y1, double x2, double y2) {
  return std::sqrt((x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1));
}

LatoFazzoletto Lato(Punto p1, Punto p2) {
  LatoFazzoletto lato;
  lato.XP[1] = p1.x;
  lato.YP[1] = p1.y;
  lato.XP[2] = p2.x;
  lato.YP[2] = p2.y;
  double dX = p2.x - p1.x;
  double dY = p2.y - p1.y;
  if (std::abs(dX) < kTolleranza && std::abs(dY) < kTolleranza) {
    lato.TipoLato = 0;
  } else if (std::abs(dX) < kTolleranza) {
    lato.TipoLato = 2;
    lato.XV = p1.x;
  } else {
    lato.TipoLato = 1;
    lato.M = dY / dX;
    lato.Q = p1.y - lato.M * p1.x;
  }
  return lato;
}

// The crossing of the line with one side, before the test that it lies on the side.
bool IncrocioRetta(const LatoFazzoletto& lato, bool verticale, double pend, double quota,
                   Punto& p) {
  if (lato.TipoLato == 2) {
    if (verticale) return false;
    p.x = lato.XV;
    p.y = pend * p.x + quota;
    return true;
  }
  if (verticale) {
    p.x = quota;
    p.y = lato.M * p.x + lato.Q;
    return true;
  }
  if (!(std::abs(lato.M - pend) > kTolleranza)) return false;
  p.x = (lato.Q - quota) / (pend - lato.M);
  p.y = ((lato.Q - quota) * pend) / (pend - lato.M) + quota;
  return true;
}

bool SulLato(const LatoFazzoletto& lato, Punto p) {
  double lunghezza = Distanza(lato.XP[1], lato.YP[1], lato.XP[2], lato.YP[2]);
  return Distanza(p.x, p.y, lato.XP[1], lato.YP[1]) <= lunghezza &&
         Distanza(p.x, p.y, lato.XP[2], lato.YP[2]) <= lunghezza;
}

}  // namespace

bool DirezioneVerticale(double t) {
  double q2 = 2 * t / kPiGreco;
  double q1 = t / kPiGreco;
  return q2 - std::floor(q2) < kTolleranza && !(q1 - std::floor(q1) < kTolleranza);
}

double AngoloSegmento(double x1, double y1, double x2, double y2) {
  double dx = x2 - x1;
  double dy = y2 - y1;
  if (std::abs(dx) < kTolleranza) return dy < 0 ? -kPiGreco / 2 : kPiGreco / 2;
  if (std::abs(dy) < kTolleranza) return dx < 0 ? kPiGreco : 0.0;
  if (dx > 0) return std::atan(dy / dx);
  // Not the true direction of a segment running left, but it is only ever tested for being
  // vertical.
  return std::atan(dy / std::abs(dx)) + Segno(dy) * kPiGreco / 2;
}

void CostruisciLatiFazzoletto(const Nodo& n, GeometriaFazzoletto& g) {
  const double sg = n.PosFazzoletto;
  const double H = n.Corrente.h;
  const double off =
      (n.Corrente.Tipo == 0 || n.Corrente.Tipo == 2) ? 0.0 : (H / 2 - n.Corrente.dBarX) * sg;
  // Corners in the chord's frame: x along the chord, y across it.
  const Punto c[7] = {{},
                      {n.Fz_c + n.Fz_d, sg * H / 2 + off},
                      {n.Fz_c + n.Fz_d, (H / 2 + n.Fz_g) * sg + off},
                      {n.Fz_c, (H / 2 + n.Fz_g + n.Fz_h) * sg + off},
                      {-n.Fz_b, (H / 2 + n.Fz_e + n.Fz_f) * sg + off},
                      {-n.Fz_a - n.Fz_b, (H / 2 + n.Fz_e) * sg + off},
                      {-n.Fz_a - n.Fz_b, (H / 2) * sg + off}};
  const double cs = std::cos(n.Cor_teta);
  const double sn = std::sin(n.Cor_teta);
  Punto piano[7];
  for (int k = 1; k <= 6; ++k) {
    piano[k] = {c[k].x * cs + c[k].y * sn, -c[k].x * sn + c[k].y * cs};
  }
  g.LatiFazzoletto[0] = LatoFazzoletto{};
  for (int s = 1; s <= 6; ++s) g.LatiFazzoletto[s] = Lato(piano[s], piano[s % 6 + 1]);
}

std::vector<IncrocioLato> IncrociLati(const GeometriaFazzoletto& g, bool verticale, double pend,
                                      double quota) {
  std::vector<IncrocioLato> incroci;
  // The chord side (6) can't stop a member.
  for (int s = 1; s <= 5; ++s) {
    const LatoFazzoletto& lato = g.LatiFazzoletto[s];
    if (lato.TipoLato == 0) continue;
    Punto p;
    if (!IncrocioRetta(lato, verticale, pend, quota, p)) continue;
    if (SulLato(lato, p)) incroci.push_back({p, s});
  }
  return incroci;
}

std::vector<Punto> InterseziLati(const GeometriaFazzoletto& g, double x1, double x2, double y1,
                                 double y2) {
  bool verticale = DirezioneVerticale(AngoloSegmento(x1, y1, x2, y2));
  double pend = 0;
  double quota = x1;
  if (!verticale) {
    pend = (y2 - y1) / (x2 - x1);
    quota = y1 - pend * x1;
  }
  std::vector<Punto> punti;
  for (const IncrocioLato& incrocio : IncrociLati(g, verticale, pend, quota)) {
    punti.push_back(incrocio.punto);
  }
  return punti;
}

}  // namespace qf17
