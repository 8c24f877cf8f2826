#include <cmath>
#include <optional>

#include "nodo/sessione.h"
#include "verifica/bulloni_comuni.h"
#include "verifica/bulloni_slu.h"
#include "verifica/comuni.h"

namespace qf17 {

void ForzeBulloniSLU(Sessione& sessione, int g, int j, double Fx, double Fy, double xP) {
  const std::optional<GruppoRipartito> gr = PreparaRipartizione(sessione, g);
  if (!gr) return;
  const Nodo& nodo = sessione.nodo;
  RisultatiVerifica& r = sessione.Risultati();
  const double MomG = MomentoBaricentrico(*gr, Fx, Fy, xP);
  if (gr->Ip > 0.0001) {
    for (int k = 1; k <= gr->n; ++k) {
      const QuotaBullone q = QuotaRigida(nodo, *gr, k, Fx, Fy, MomG);
      r.FedBull(gr->gruppo, k, j) = std::sqrt(q.FxB * q.FxB + q.FyB * q.FyB);
    }
    return;
  }
  // Bolts all in one spot: they share a force through their centroid equally, and a moment
  // not at all, so that the table keeps what it held.
  if (std::abs(MomG) >= 0.0001) return;
  const double FxB = Fx / gr->n;
  const double FyB = Fy / gr->n;
  for (int k = 1; k <= gr->n; ++k) r.FedBull(gr->gruppo, k, j) = std::sqrt(FxB * FxB + FyB * FyB);
}

void RapportoBullone(Sessione& sessione, int gruppo, int k, int j) {
  RisultatiVerifica& r = sessione.Risultati();
  double& rapporto = r.RapportoBull(gruppo, k, j);
  rapporto = 0;
  const double forza = r.FedBull(gruppo, k, j);
  if (forza == 0) return;
  const double FvRd = r.FvRd(gruppo, k);
  const double FbRd = r.FbRd(gruppo, k);
  if (FvRd <= 0 || FbRd <= 0) {
    rapporto = 100.0;
    return;
  }
  rapporto = std::abs(forza) / MinDi(FvRd, FbRd);
}

}  // namespace qf17
