// The plane figure of the node: chord angle, gusset side, member edge lines and where they
// meet the gusset outline.

#include "verifica/geometria.h"

#include <cmath>

#include "nodo/sessione.h"
#include "verifica/comuni.h"

namespace qf17 {
namespace {

// The half turn nearest to zero, in one step only: an angle beyond 3/2 pi stays beyond pi/2.
double AngoloCorrente(double c) {
  double t = c;
  if (std::abs(c) > std::abs(c - kPiGreco)) t = c - kPiGreco;
  if (std::abs(c) > std::abs(c + kPiGreco)) t = c + kPiGreco;
  return t;
}

void Quote(Nodo& n, int i, bool verticale, bool opposta) {
  const double P = n.PosFazzoletto;
  const double s = n.Fz_s;
  const double h = n.Aste[i].h;
  const double dx = n.Aste[i].dBarX;
  double& q1 = n.Saldature(i, 1).Quota;
  double& q2 = n.Saldature(i, 2).Quota;
  // A vertical edge's abscissa takes the sign of the gusset side, which the last member
  // decides; a sloped edge's intercept follows the member's own angle. Both are kept so.
  if (verticale) {
    if (opposta) {
      q1 = (s / 2 + h) * (-P);
      q2 = P * s / 2;
      n.Saldature(i + 3, 1).Quota = (-P) * s / 2;
      n.Saldature(i + 3, 2).Quota = (s / 2 + h) * P;
    } else if (n.Ast_lato[i] == 1) {
      q1 = (h - dx) * (-P);
      q2 = P * dx;
    } else {
      q1 = (-P) * dx;
      q2 = (h - dx) * P;
    }
    return;
  }
  const double c = std::cos(n.Ast_teta[i]);
  if (opposta) {
    q1 = (s / 2 + h) / c;
    q2 = (-s / 2) / c;
    n.Saldature(i + 3, 1).Quota = (s / 2) / c;
    n.Saldature(i + 3, 2).Quota = -(s / 2 + h) / c;
  } else if (n.Ast_lato[i] == 1) {
    q1 = (h - dx) / c;
    q2 = (-dx) / c;
  } else {
    q1 = dx / c;
    q2 = (-h + dx) / c;
  }
}

void LineeBordo(Nodo& n, int i) {
  const double t = n.Ast_teta[i];
  const bool verticale = DirezioneVerticale(t);
  const double pend = verticale ? 0.0 : -std::tan(t);
  n.Saldature(i, 1).Pend = pend;
  n.Saldature(i, 2).Pend = pend;
  const bool opposta = n.Ast_modo[i] == static_cast<std::int16_t>(AstModo::Opposta);
  if (opposta) {
    n.Aste[i + 3] = n.Aste[i];
    n.Ast_teta[i + 3] = t;
    n.Ast_flag[i + 3] = 1;
    // The whole record, per-set tables included: row (4, 1) is also the chord weld's.
    for (int j = 1; j <= 2; ++j) n.Saldature(i + 3, j) = n.Saldature(i, j);
  } else {
    n.Ast_flag[i + 3] = 0;
  }
  Quote(n, i, verticale, opposta);
}

// The crossing farthest from the edge's own point on the Y axis (from far above for a vertical
// edge), the later side at equal distance. No crossing leaves the edge as it was.
void IncrocioBordo(const GeometriaFazzoletto& g, Saldatura& bordo, bool verticale) {
  const Punto R{0.0, verticale ? 10000000000.0 : bordo.Quota};
  const IncrocioLato* scelto = nullptr;
  double massima = 0;
  const std::vector<IncrocioLato> incroci = IncrociLati(g, verticale, bordo.Pend, bordo.Quota);
  for (const IncrocioLato& incrocio : incroci) {
    double d = Modulo(incrocio.punto - R);
    if (scelto == nullptr || d >= massima) {
      scelto = &incrocio;
      massima = d;
    }
  }
  if (scelto == nullptr) return;
  MettiPunto(bordo, 2, scelto->punto);
  MettiPunto(bordo, 4, scelto->punto);
  bordo.Lato = static_cast<std::int16_t>(scelto->lato);
}

bool Finito(double x) {
  return std::isfinite(x);
}

}  // namespace

std::int16_t Posizione_fazzoletto_(const Nodo& n) {
  std::int16_t posizione = 0;
  for (int i = 1; i <= kMaxAste; ++i) {
    if (n.Ast_flag[i] != 1) continue;
    const double d = n.Ast_teta[i] - n.Cor_teta;
    const double q = d / 3.14159265358979;
    posizione = std::floor(q) / 2 != std::floor(q / 2) ? 1 : -1;
  }
  return posizione;
}

void GeometriaNodo(Sessione& sessione) {
  Nodo& n = sessione.nodo;
  GeometriaFazzoletto& g = sessione.geometria;
  g.LunghOltre = MaxDi(n.Fz_g + n.Fz_h, n.Fz_e + n.Fz_f);
  n.Cor_teta = AngoloCorrente(n.Cor_teta);
  n.PosFazzoletto = Posizione_fazzoletto_(n);
  for (int i = 1; i <= kMaxAste; ++i) {
    n.Saldature(i, 1).Sld_L = n.Ast_ins[i];
    n.Saldature(i, 2).Sld_L = n.Ast_ins[i];
  }
  for (int i = 1; i <= kMaxAste; ++i) {
    if (n.Ast_flag[i] == 1) LineeBordo(n, i);
  }
  CostruisciLatiFazzoletto(n, g);
  for (int r = 1; r <= 2 * kMaxAste; ++r) {
    if (n.Ast_flag[r] != 1) continue;
    const bool verticale = DirezioneVerticale(n.Ast_teta[r]);
    for (int j = 1; j <= 2; ++j) IncrocioBordo(g, n.Saldature(r, j), verticale);
  }
  for (int i = 1; i <= kMaxAste; ++i) {
    if (n.Ast_flag[i] != 1) continue;
    EstremiAsta(n, i, g.LunghOltre);
    PuntiDiffusione(n, i);
    CalcolaBeff(sessione, i);
  }
  // Row (4, 1) also holds the chord weld: its length is the gusset's along the chord.
  n.Saldature(4, 1).Sld_L = n.Fz_a + n.Fz_b + n.Fz_c + n.Fz_d;
}

bool GeometriaFinita(const Nodo& n, const GeometriaFazzoletto& g) {
  bool finita = Finito(n.Cor_teta) && Finito(g.LunghOltre);
  for (int s = 1; s <= 6 && finita; ++s) {
    const LatoFazzoletto& lato = g.LatiFazzoletto[s];
    finita = Finito(lato.M) && Finito(lato.Q) && Finito(lato.XV) && Finito(lato.XP[1]) &&
             Finito(lato.XP[2]) && Finito(lato.YP[1]) && Finito(lato.YP[2]);
  }
  for (int r = 1; r <= 2 * kMaxAste && finita; ++r) {
    if (n.Ast_flag[r] != 1) continue;
    if (r <= kMaxAste) finita = Finito(g.Beff[r]);
    for (int j = 1; j <= 2 && finita; ++j) {
      const Saldatura& b = n.Saldature(r, j);
      finita = Finito(b.Pend) && Finito(b.Quota) && Finito(b.Sld_L);
      for (int k = 1; k <= 5 && finita; ++k) finita = Finito(b.XS[k]) && Finito(b.YS[k]);
    }
  }
  return finita;
}

}  // namespace qf17
