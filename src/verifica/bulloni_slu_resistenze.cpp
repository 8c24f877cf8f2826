#include <cmath>
#include <string_view>
#include <vector>

#include "nodo/sessione.h"
#include "verifica/bulloni_comuni.h"
#include "verifica/bulloni_slu.h"
#include "verifica/bulloni_slu_ventaglio.h"
#include "verifica/comuni.h"

namespace qf17 {

namespace {

// The shear plane's factor by the class name: what the family's class names hold.
double FattoreTaglio(std::string_view classe) {
  auto contiene = [&](std::string_view s) { return classe.find(s) != std::string_view::npos; };
  if (contiene("4.6") || contiene("5.6") || contiene("8.8")) return 0.6;
  if (contiene("6.8") || contiene("10.9")) return 0.5;
  return 0;
}

// One coordinate of the group's bolts and the length of the bolted rectangle along it.
struct Asse {
  std::vector<double> u;
  double U = 0;
};

// Across the force: the edge term at either end of the fan, the pitch term between.
double CoefficienteTrasversale(const PostoBullone& posto, double uk, double U, double d0) {
  switch (posto.posto) {
    case PostoNelVentaglio::Primo:
      return MinDi(2.5, 2.8 * uk / d0 - 1.7);
    case PostoNelVentaglio::Ultimo:
      return MinDi(2.5, 2.8 * (U - uk) / d0 - 1.7);
    case PostoNelVentaglio::Interno:
      break;
  }
  return MinDi(2.5, 1.4 * posto.passo / d0 - 1.7);
}

// Along the force, bounded by the ratio of the bolt's and the plate's strength.
double CoefficienteLongitudinale(const PostoBullone& posto, double uk, double U, double d0,
                                 double r) {
  switch (posto.posto) {
    case PostoNelVentaglio::Primo:
      return MinDi(1, MinDi(r, uk / (3 * d0)));
    case PostoNelVentaglio::Ultimo:
      return MinDi(1, MinDi(r, (U - uk) / (3 * d0)));
    case PostoNelVentaglio::Interno:
      break;
  }
  return MinDi(1, MinDi(r, posto.passo / (3 * d0) - 0.25));
}

}  // namespace

std::vector<CoefficientiRifollamento> CoefficientiRifollamentoSLU(const Sessione& sessione, int g) {
  const Nodo& nodo = sessione.nodo;
  const int gruppo = g - 1;
  const int n = nodo.nBull[gruppo];
  const AreaBullonata area = AreaBullonataTA(nodo, g);
  const double T = std::tan(kPiGreco / 6);

  Asse x{std::vector<double>(n), area.LArea};
  Asse y{std::vector<double>(n), area.HArea};
  for (int k = 1; k <= n; ++k) {
    x.u[k - 1] = nodo.xBull(gruppo, k);
    y.u[k - 1] = nodo.yBull(gruppo, k);
  }
  // The chord takes its force along x, so that kRes is read across it on y and aRes along it
  // on x; a member's group is read with the two roles the other way round.
  const Asse& trasversale = g == 1 ? y : x;
  const Asse& longitudinale = g == 1 ? x : y;
  const std::vector<PostoBullone> postiK = PostiNeiVentagli(trasversale.u, longitudinale.u, T);
  const std::vector<PostoBullone> postiA = PostiNeiVentagli(longitudinale.u, trasversale.u, T);

  const double rapporto = nodo.vite.ftViti / nodo.acciaio.ft;
  std::vector<CoefficientiRifollamento> c(n);
  for (int k = 0; k < n; ++k) {
    const double d0 = DiamForo(sessione.opzioni, nodo.FiBull(gruppo, k + 1));
    c[k].kRes = CoefficienteTrasversale(postiK[k], trasversale.u[k], trasversale.U, d0);
    c[k].aRes =
        CoefficienteLongitudinale(postiA[k], longitudinale.u[k], longitudinale.U, d0, rapporto);
  }
  return c;
}

void ResistenzeBulloniSLU(Sessione& sessione, int g) {
  const Nodo& nodo = sessione.nodo;
  RisultatiVerifica& r = sessione.Risultati();
  const int gruppo = g - 1;
  const Profilo& profilo = ProfiloGruppo(nodo, g);
  const double t = MinDi(nodo.Fz_s, profilo.a);
  const double taglio = FattoreTaglio(nodo.vite.Nome);
  const double ft = profilo.a <= 40 && nodo.Fz_s <= 40 ? nodo.acciaio.ft : nodo.acciaio.ft40;
  const std::vector<CoefficientiRifollamento> c = CoefficientiRifollamentoSLU(sessione, g);
  for (int k = 1; k <= nodo.nBull[gruppo]; ++k) {
    const double d = nodo.FiBull(gruppo, k);
    r.FvRd(gruppo, k) = taglio == 0 ? 0.0
                                    : taglio * nodo.vite.ftViti * AreaBullone(sessione.opzioni, d) /
                                          100 / nodo.vite.gMViti;
    r.FbRd(gruppo, k) = c[k - 1].kRes * c[k - 1].aRes * ft * d * t / 100 / nodo.vite.gMViti;
  }
}

}  // namespace qf17
