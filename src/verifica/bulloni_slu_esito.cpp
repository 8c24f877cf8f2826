#include <cmath>

#include "nodo/sessione.h"
#include "verifica/bulloni_comuni.h"
#include "verifica/bulloni_slu.h"

namespace qf17 {

namespace {

// A bolt over its resistance clears its group's bolt flag in that set; equal passes. Each
// bolt's ratios lie side by side over the sets, so the sets are the inner loop.
void EsitoBulloni(const Nodo& nodo, RisultatiVerifica& r, int g) {
  for (int k = 1; k <= nodo.nBull[g]; ++k) {
    for (int j = 1; j <= nodo.nSollAg; ++j) {
      if (r.RapportoBull(g, k, j) > 1.0) r.OkTau(g, j) = 0;
    }
  }
}

void EsitoSezioni(const Nodo& nodo, RisultatiVerifica& r, int j) {
  // No load case factor under limit states.
  const double fd =
      nodo.Fz_s <= 40 ? nodo.acciaio.fy / nodo.acciaio.gM : nodo.acciaio.fy40 / nodo.acciaio.gM;
  for (int g = 1; g <= 3; ++g) {
    if (std::abs(r.SigProf(g, j)) > fd) r.OkProf(g, j) = 0;
    if (std::abs(r.SigDiff(g, j)) > fd) r.OkDiff(g, j) = 0;
  }
  const double sig = r.SigProf(0, j);
  const double tau = r.TauCorr[j];
  if (std::sqrt(sig * sig + 3 * (tau * tau)) > fd) r.OkCorr[j] = 0;
  if (std::abs(r.SigSotto[j]) > fd) r.OkSotto[j] = 0;
}

}  // namespace

// Every flag of every set is raised first; each check only ever clears its own, so the order
// in which the checks run does not matter.
void EsitoSLU(Sessione& sessione) {
  const Nodo& nodo = sessione.nodo;
  RisultatiVerifica& r = sessione.Risultati();
  for (int j = 1; j <= nodo.nSollAg; ++j) AlzaBandierine(r, j);
  for (int g = 0; g <= 3; ++g) EsitoBulloni(nodo, r, g);
  for (int j = 1; j <= nodo.nSollAg; ++j) EsitoSezioni(nodo, r, j);
}

}  // namespace qf17
