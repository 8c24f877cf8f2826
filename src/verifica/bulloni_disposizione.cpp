#include <limits>
#include <vector>

#include "nodo/sessione.h"
#include "verifica/bulloni_comuni.h"
#include "verifica/bulloni_ta.h"
#include "verifica/comuni.h"

namespace qf17 {

namespace {

// End and edge distances: the least over the bolts, each with the bolt it belongs to.
bool BordoDifforme(const Nodo& nodo, const Opzioni& opzioni, int gruppo, const Profilo& profilo,
                   double tmin, const AreaBullonata& area, double Fy) {
  const DistanzeBordo e =
      DistanzeDaiBordi(nodo, gruppo, profilo, area.LArea, std::numeric_limits<double>::max());
  const double d0X = DiamForo(opzioni, nodo.FiBull(gruppo, e.kX));
  const double d0Y = DiamForo(opzioni, nodo.FiBull(gruppo, e.kY));
  bool difforme = false;
  if (Fy != 0) {
    if (e.eY < 2 * d0Y || e.eX < 2 * d0X) difforme = true;
  } else {
    if (e.eY < 1.5 * d0Y || e.eX < 2 * d0X) difforme = true;
  }
  const double m = profilo.Tipo == 0 ? 9 : 6;
  if (e.eY > m * tmin || e.eX > m * tmin) difforme = true;
  return difforme;
}

struct EsitoInterassi {
  bool coincidenti = false;
  bool interasse = false;
};

EsitoInterassi PassoDifforme(const Nodo& nodo, int gruppo, double tmin, const AreaBullonata& area,
                             double Fx, double Fy) {
  const int n = nodo.nBull[gruppo];
  std::vector<double> x(n), y(n);
  for (int k = 1; k <= n; ++k) {
    x[k - 1] = nodo.xBull(gruppo, k);
    y[k - 1] = nodo.yBull(gruppo, k);
  }
  const double dm = DiametroMinimo(nodo, gruppo);
  const Interassi p = ScansioneInterassi(x, y, area.LArea, area.HArea, dm, std::nullopt);
  EsitoInterassi esito;
  esito.coincidenti = p.coincidenti;
  if (p.coincidenti) return esito;
  if (Fy != 0 && p.pY > 0.0001 && (p.pY < 3 * dm || p.pY > 25 * tmin)) esito.interasse = true;
  if (p.pX > 0.0001 && p.pX < 3 * dm) esito.interasse = true;
  if (Fx > 0 ? p.pX > 25 * tmin : p.pX > 15 * tmin) esito.interasse = true;
  return esito;
}

}  // namespace

void ControlliDisposizioneTA(Sessione& sessione, int g, const AreaBullonata& area, double Fx,
                             double Fy) {
  const Nodo& nodo = sessione.nodo;
  const int gruppo = g - 1;
  const Profilo& profilo = ProfiloGruppo(nodo, g);
  const double tmin = MinDi(nodo.Fz_s, profilo.a);

  // Message flags 1, 3, 4, 5; 2 has never been used.
  const bool fuoriArea = BulloniFuoriArea(nodo, gruppo, area);
  const bool bordo = BordoDifforme(nodo, sessione.opzioni, gruppo, profilo, tmin, area, Fy);
  EsitoInterassi passo;
  if (nodo.nBull[gruppo] > 1) passo = PassoDifforme(nodo, gruppo, tmin, area, Fx, Fy);

  AvvisiDisposizione(
      sessione, g,
      {{fuoriArea, "Bulloni fuori dall' area bullonabile"},
       {bordo,
        "La distanza dei bulloni dal bordo risulta difforme dalle prescrizioni della CNR-UNI "
        "10011"},
       {passo.coincidenti, "Bulloni coincidenti"},
       {passo.interasse,
        "L'interasse dei bulloni risulta difforme dalle prescrizioni della CNR-UNI 10011"}});
}

}  // namespace qf17
