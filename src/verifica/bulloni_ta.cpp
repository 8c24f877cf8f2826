#include "verifica/bulloni_ta.h"

#include <cmath>
#include <string>

#include "librerie/numeri.h"
#include "nodo/sessione.h"
#include "verifica/comuni.h"

namespace qf17 {

namespace {

// What the panel's box shows for a length and what reading it back gives.
double ValoreCasella(double valore) {
  return NumeroIniziale(TestoNumero(valore));
}

const Profilo& ProfiloGruppo(const Nodo& nodo, int g) {
  return g == 1 ? nodo.Corrente : nodo.Aste[g - 1];
}

struct Baricentro {
  double xG = 0;
  double yG = 0;
  double sommaAree = 0;
};

// Weighted by the nominal area of each bolt.
Baricentro BaricentroBulloni(const Nodo& nodo, int gruppo, int n) {
  double sommaX = 0;
  double sommaY = 0;
  Baricentro b;
  for (int k = 1; k <= n; ++k) {
    const double d = nodo.FiBull(gruppo, k);
    const double area = kPiGreco * (d * d) / 4;
    b.sommaAree += area;
    sommaX += area * nodo.xBull(gruppo, k);
    sommaY += area * nodo.yBull(gruppo, k);
  }
  if (b.sommaAree > 0.0001) {
    b.xG = sommaX / b.sommaAree;
    b.yG = sommaY / b.sommaAree;
  }
  return b;
}

// Not weighted by area, unlike the centroid: the family's bolt tables rest on this.
double MomentoPolare(const Nodo& nodo, int gruppo, int n, const Baricentro& b) {
  double ip = 0;
  for (int k = 1; k <= n; ++k) {
    const double dx = nodo.xBull(gruppo, k) - b.xG;
    const double dy = nodo.yBull(gruppo, k) - b.yG;
    ip += dx * dx + dy * dy;
  }
  return ip;
}

struct Carico {
  double Fx = 0;
  double Fy = 0;
  double MomG = 0;
  double Ip = 0;
};

void TensioniBulloni(Sessione& sessione, int g, int j, const Baricentro& b, const Carico& c) {
  const Nodo& nodo = sessione.nodo;
  RisultatiVerifica& r = sessione.Risultati();
  const int gruppo = g - 1;
  const int n = nodo.nBull[gruppo];
  const double s = nodo.Fz_s;
  const double a = ProfiloGruppo(nodo, g).a;
  // The forces given to a group are per profile while the gusset takes both sides, except
  // under a single member.
  const bool dueLati = g == 1 || nodo.Ast_modo[gruppo] != 0;
  for (int k = 1; k <= n; ++k) {
    const double dxB = nodo.xBull(gruppo, k) - b.xG;
    const double dyB = nodo.yBull(gruppo, k) - b.yG;
    const double FxB = c.Fx / n - (c.MomG / c.Ip) * dyB;
    const double FyB = c.Fy / n + (c.MomG / c.Ip) * dxB;
    const double R = std::sqrt(FxB * FxB + FyB * FyB);
    const double d = nodo.FiBull(gruppo, k);
    r.TauBull(gruppo, k, j) = kF2 * R / AreaBullone(sessione.opzioni, d);
    const double b1 = dueLati ? 2 * R / s / d : R / s / d;
    const double b2 = R / a / d;
    r.RifBull(gruppo, k, j) = kF2 * MaxDi(b1, b2);
  }
}

}  // namespace

AreaBullonata AreaBullonataTA(const Nodo& nodo, int g) {
  const Profilo& p = ProfiloGruppo(nodo, g);
  AreaBullonata area;
  if (g == 1) {
    area.LArea = ValoreCasella(nodo.Fz_a) + ValoreCasella(nodo.Fz_b) + ValoreCasella(nodo.Fz_c) +
                 ValoreCasella(nodo.Fz_d);
  } else {
    area.LArea = nodo.Ast_ins[g - 1];
  }
  if (p.Tipo == 0) {
    area.HArea = p.h - 2 * p.e;
    area.yP = area.HArea / 2;
  } else {
    area.HArea = p.h - p.e;
    area.yP = p.h - p.dBarX;
  }
  return area;
}

void BulloniTA(Sessione& sessione, int g, int j, double Fx, double Fy, double xP) {
  const Nodo& nodo = sessione.nodo;
  const int gruppo = g - 1;
  if (g == 1 && nodo.Corrente.Tipo == 2) return;
  const int n = nodo.nBull[gruppo];
  if (n <= 0) return;

  const AreaBullonata area = AreaBullonataTA(nodo, g);
  const Baricentro b = BaricentroBulloni(nodo, gruppo, n);
  if (b.sommaAree <= 0.0001) {
    sessione.piattaforma.Messaggio("Area bulloni nulla nell'asta " + std::to_string(g), "QF17",
                                   Icona::Nessuna, Pulsanti::Ok);
    return;
  }
  const double Ip = MomentoPolare(nodo, gruppo, n, b);
  // Bolts all in one spot share nothing: the tables keep what they held.
  if (Ip > 0.0001) {
    const double MomG = (xP - b.xG) * Fy - (area.yP - b.yG) * Fx;
    TensioniBulloni(sessione, g, j, b, Carico{Fx, Fy, MomG, Ip});
  }

  if (sessione.Risultati().ControlloGeometricoTA != 1) return;
  ControlliDisposizioneTA(sessione, g, area, Fx, Fy);
}

}  // namespace qf17
