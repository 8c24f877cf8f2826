#include <cmath>

#include "nodo/sessione.h"
#include "verifica/bulloni_comuni.h"
#include "verifica/bulloni_ta.h"
#include "verifica/comuni.h"

namespace qf17 {

namespace {

// End distance and diameter of a group: the least x and the least diameter, from the first
// slot. With no bolt that slot may hold old data, which no test then reads.
double CoefficienteGruppo(const Nodo& nodo, int g) {
  double a = nodo.xBull(g, 1);
  double d = nodo.FiBull(g, 1);
  for (int k = 1; k <= nodo.nBull[g]; ++k) {
    a = MinDi(a, nodo.xBull(g, k));
    d = MinDi(d, nodo.FiBull(g, k));
  }
  return CoefficienteRifollamento(a, d);
}

void EsitoBulloni(const Nodo& nodo, RisultatiVerifica& r, int g, int j, double Sadm) {
  const double k = CoefficienteGruppo(nodo, g);
  // The shear limit takes no load case factor.
  const double tauAmm = nodo.vite.TauAmmViti;
  for (int b = 1; b <= nodo.nBull[g]; ++b) {
    if (std::abs(r.TauBull(g, b, j)) > tauAmm) r.OkTau(g, j) = 0;
    if (std::abs(r.RifBull(g, b, j)) > Sadm * k) r.OkRif(g, j) = 0;
  }
}

void EsitoSet(const Nodo& nodo, RisultatiVerifica& r, int j) {
  const double c = nodo.CasoCarico[j] != 0 ? 1.125 : 1.0;
  const double Sadm = nodo.Fz_s <= 40 ? c * nodo.acciaio.SAmm : c * nodo.acciaio.SAmm40;
  AlzaBandierine(r, j);
  for (int g = 1; g <= 3; ++g) {
    EsitoBulloni(nodo, r, g, j, Sadm);
    if (std::abs(r.SigProf(g, j)) > Sadm) r.OkProf(g, j) = 0;
    if (std::abs(r.SigDiff(g, j)) > Sadm) r.OkDiff(g, j) = 0;
  }
  EsitoBulloni(nodo, r, 0, j, Sadm);
  const double sig = r.SigProf(0, j);
  const double tau = r.TauCorr[j];
  if (std::sqrt(sig * sig + 3 * (tau * tau)) > Sadm) r.OkCorr[j] = 0;
  if (std::abs(r.SigSotto[j]) > Sadm) r.OkSotto[j] = 0;
}

}  // namespace

double CoefficienteRifollamento(double a, double d) {
  if (3 * d <= a) return 2.5;
  if (2 * d <= a) return 2.0;
  if (1.5 * d <= a) return 1.4;
  if (1.2 * d <= a) return 1.0;
  return a;
}

void EsitoTA(Sessione& sessione) {
  RisultatiVerifica& r = sessione.Risultati();
  for (int j = 1; j <= sessione.nodo.nSollAg; ++j) EsitoSet(sessione.nodo, r, j);
}

}  // namespace qf17
