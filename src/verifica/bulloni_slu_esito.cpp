#include <cmath>

#include "nodo/sessione.h"
#include "verifica/bulloni_comuni.h"
#include "verifica/bulloni_slu.h"

namespace qf17 {

namespace {

// A bolt over its resistance clears the group's bolt flag; equal passes.
void EsitoBulloni(const Nodo& nodo, RisultatiVerifica& r, int g, int j) {
  for (int k = 1; k <= nodo.nBull[g]; ++k) {
    if (r.RapportoBull(g, k, j) > 1.0) {
      r.OkTau(g, j) = 0;
      return;
    }
  }
}

void EsitoSet(const Nodo& nodo, RisultatiVerifica& r, int j) {
  // No load case factor under limit states.
  const double fd =
      nodo.Fz_s <= 40 ? nodo.acciaio.fy / nodo.acciaio.gM : nodo.acciaio.fy40 / nodo.acciaio.gM;
  AlzaBandierine(r, j);
  for (int g = 1; g <= 3; ++g) {
    EsitoBulloni(nodo, r, g, j);
    if (std::abs(r.SigProf(g, j)) > fd) r.OkProf(g, j) = 0;
    if (std::abs(r.SigDiff(g, j)) > fd) r.OkDiff(g, j) = 0;
  }
  EsitoBulloni(nodo, r, 0, j);
  const double sig = r.SigProf(0, j);
  const double tau = r.TauCorr[j];
  if (std::sqrt(sig * sig + 3 * (tau * tau)) > fd) r.OkCorr[j] = 0;
  if (std::abs(r.SigSotto[j]) > fd) r.OkSotto[j] = 0;
}

}  // namespace

void EsitoSLU(Sessione& sessione) {
  RisultatiVerifica& r = sessione.Risultati();
  for (int j = 1; j <= sessione.nodo.nSollAg; ++j) EsitoSet(sessione.nodo, r, j);
}

}  // namespace qf17
