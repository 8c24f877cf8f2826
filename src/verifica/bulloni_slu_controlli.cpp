#include <vector>

#include "nodo/sessione.h"
#include "verifica/bulloni_comuni.h"
#include "verifica/bulloni_slu.h"
#include "verifica/comuni.h"

namespace qf17 {

namespace {

// The rules of one group; flags numbered as their messages.
struct Difformita {
  bool fuoriArea = false;          // 1
  bool bordoMaggiore = false;      // 2
  bool bordoMinore = false;        // 3
  bool coincidenti = false;        // 4
  bool interasseMinore = false;    // 5
  bool interasseMaggiore = false;  // 6
};

void Bordi(const Nodo& nodo, const Opzioni& opzioni, int g, const AreaBullonata& area, double tmin,
           Difformita& f) {
  const int gruppo = g - 1;
  const Profilo& profilo = ProfiloGruppo(nodo, g);
  const DistanzeBordo e = DistanzeDaiBordi(nodo, gruppo, profilo, area.LArea, 1e20);
  if (!(g == 1 && profilo.Tipo == 2)) {
    const double d0X = DiamForo(opzioni, nodo.FiBull(gruppo, e.kX));
    const double d0Y = DiamForo(opzioni, nodo.FiBull(gruppo, e.kY));
    if (e.eY < 1.2 * d0Y || e.eX < 1.2 * d0X) f.bordoMinore = true;
  }
  // By the exposure: 0 to corrosion, 1 none, 2 weathering steel.
  switch (nodo.Esposizione) {
    case 0: {
      const double limite = 4 * tmin + 40;
      if (e.eY > limite || e.eX > limite) f.bordoMaggiore = true;
      break;
    }
    case 2: {
      const double limite = MaxDi(125.0, 8 * tmin);
      if (e.eY > limite || e.eX > limite) f.bordoMaggiore = true;
      break;
    }
    default:
      break;
  }
}

// A single bolt has no pitch: the pitch rules need two.
void Passi(const Nodo& nodo, int g, const AreaBullonata& area, double tmin, Difformita& f) {
  const int gruppo = g - 1;
  const int n = nodo.nBull[gruppo];
  std::vector<double> x(n), y(n);
  for (int k = 1; k <= n; ++k) {
    x[k - 1] = nodo.xBull(gruppo, k);
    y[k - 1] = nodo.yBull(gruppo, k);
  }
  const double dm = DiametroMinimo(nodo, gruppo);
  // Bolts in one row have no pitch across: the greater distance of the first bolt from the
  // sides stands for it.
  const double y1 = nodo.yBull(gruppo, 1);
  const Interassi p =
      ScansioneInterassi(x, y, area.LArea, area.HArea, dm, MaxDi(area.HArea - y1, y1));
  f.coincidenti = p.coincidenti;
  if (!p.coincidenti) {
    // The chord is pulled along x, a member's group is read the other way round.
    const double minimoX = g == 1 ? 2.4 : 2.2;
    const double minimoY = g == 1 ? 2.2 : 2.4;
    if ((p.pX > 0.0001 && p.pX < minimoX * dm) || (p.pY > 0.0001 && p.pY < minimoY * dm)) {
      f.interasseMinore = true;
    }
  }
  const double massimo = nodo.Esposizione == 0 || nodo.Esposizione == 1 ? MinDi(200.0, 14 * tmin)
                                                                        : MinDi(175.0, 14 * tmin);
  if (p.pX > massimo || p.pY > massimo) f.interasseMaggiore = true;
}

}  // namespace

void ControlliBulloniSLU(Sessione& sessione, int g) {
  const Nodo& nodo = sessione.nodo;
  const int gruppo = g - 1;
  const AreaBullonata area = AreaBullonataTA(nodo, g);
  const double tmin = MinDi(nodo.Fz_s, ProfiloGruppo(nodo, g).a);

  Difformita f;
  f.fuoriArea = BulloniFuoriArea(nodo, gruppo, area);
  Bordi(nodo, sessione.opzioni, g, area, tmin, f);
  if (nodo.nBull[gruppo] > 1) Passi(nodo, g, area, tmin, f);

  AvvisiDisposizione(
      sessione, g,
      {{f.fuoriArea, "Bulloni fuori dall' area bullonabile"},
       {f.bordoMaggiore,
        "La distanza dei bulloni dal bordo risulta difforme dalle prescrizioni delle NTC 2008 "
        "(maggiore del limite)"},
       {f.bordoMinore,
        "La distanza dei bulloni dal bordo risulta difforme dalle prescrizioni delle NTC 2008 "
        "(minore del limite)"},
       {f.coincidenti, "Bulloni coincidenti"},
       {f.interasseMinore,
        "L'interasse dei bulloni risulta difforme dalle prescrizioni delle NTC 2008 (minore del "
        "limite)"},
       {f.interasseMaggiore,
        "L'interasse dei bulloni risulta difforme dalle prescrizioni delle NTC 2008 (maggiore "
        "del limite)"}});
}

}  // namespace qf17
