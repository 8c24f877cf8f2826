#include "verifica/bulloni_ta.h"

#include <cmath>

#include "librerie/numeri.h"
#include "nodo/sessione.h"
#include "verifica/bulloni_comuni.h"
#include "verifica/comuni.h"

namespace qf17 {

namespace {

// What the panel's box shows for a length and what reading it back gives.
double ValoreCasella(double valore) {
  return NumeroIniziale(TestoNumero(valore));
}

void TensioniBulloni(Sessione& sessione, int g, int j, const GruppoRipartito& gr, double Fx,
                     double Fy, double MomG) {
  const Nodo& nodo = sessione.nodo;
  RisultatiVerifica& r = sessione.Risultati();
  const int gruppo = gr.gruppo;
  const double s = nodo.Fz_s;
  const double a = ProfiloGruppo(nodo, g).a;
  // The forces given to a group are per profile while the gusset takes both sides, except
  // under a single member.
  const bool dueLati = g == 1 || nodo.Ast_modo[gruppo] != 0;
  for (int k = 1; k <= gr.n; ++k) {
    const QuotaBullone q = QuotaRigida(nodo, gr, k, Fx, Fy, MomG);
    const double R = std::sqrt(q.FxB * q.FxB + q.FyB * q.FyB);
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
  const std::optional<GruppoRipartito> gr = PreparaRipartizione(sessione, g);
  if (!gr) return;
  // Bolts all in one spot share nothing: the tables keep what they held.
  if (gr->Ip > 0.0001) {
    TensioniBulloni(sessione, g, j, *gr, Fx, Fy, MomentoBaricentrico(*gr, Fx, Fy, xP));
  }

  if (sessione.Risultati().ControlloGeometricoTA != 1) return;
  ControlliDisposizioneTA(sessione, g, gr->area, Fx, Fy);
}

}  // namespace qf17
