#include "oracolo_bulloni_slu.h"

#include <cmath>
#include <string>

#include "verifica/bulloni_ta.h"
#include "verifica/comuni.h"

namespace qf17::prova {

VentaglioOracolo OracoloVentaglio(const std::vector<double>& u, const std::vector<double>& v,
                                  int k) {
  const double T = std::tan(3.14159265358979 / 6);
  VentaglioOracolo f{u[k], u[k], 1e300};
  for (int m = 0; m < static_cast<int>(u.size()); ++m) {
    if (!(std::abs(v[k] - v[m]) <= T * std::abs(u[k] - u[m]))) continue;
    if (u[m] < f.minimo) f.minimo = u[m];
    if (u[m] > f.massimo) f.massimo = u[m];
    if (m != k && std::abs(u[k] - u[m]) < f.passo) f.passo = std::abs(u[k] - u[m]);
  }
  return f;
}

namespace {

double FvRd(const Sessione& s, double d) {
  const std::string& nome = s.nodo.vite.Nome;
  double c = 0;
  if (nome.find("4.6") != std::string::npos || nome.find("5.6") != std::string::npos ||
      nome.find("8.8") != std::string::npos) {
    c = 0.6;
  } else if (nome.find("6.8") != std::string::npos || nome.find("10.9") != std::string::npos) {
    c = 0.5;
  } else {
    return 0;
  }
  return c * s.nodo.vite.ftViti * AreaBullone(s.opzioni, d) / 100 / s.nodo.vite.gMViti;
}

}  // namespace

ResistenzeOracolo OracoloResistenzeSLU(const Sessione& s, int g) {
  const Nodo& n = s.nodo;
  const int gr = g - 1;
  const int nb = n.nBull[gr];
  const Profilo& p = g == 1 ? n.Corrente : n.Aste[gr];
  const AreaBullonata area = AreaBullonataTA(n, g);
  const double t = MinDi(n.Fz_s, p.a);
  std::vector<double> x, y;
  for (int k = 1; k <= nb; ++k) {
    x.push_back(n.xBull(gr, k));
    y.push_back(n.yBull(gr, k));
  }
  // kRes across: y for the chord, x for a member; aRes along: the other.
  const std::vector<double>& uK = g == 1 ? y : x;
  const std::vector<double>& uA = g == 1 ? x : y;
  const double UK = g == 1 ? area.HArea : area.LArea;
  const double UA = g == 1 ? area.LArea : area.HArea;
  const double r = n.vite.ftViti / n.acciaio.ft;

  ResistenzeOracolo o;
  for (int k = 0; k < nb; ++k) {
    const double d = n.FiBull(gr, k + 1);
    const double d0 = DiamForo(s.opzioni, d);
    o.FvRd.push_back(FvRd(s, d));

    const VentaglioOracolo fk = OracoloVentaglio(uK, uA, k);
    double kRes;
    if (std::abs(uK[k] - fk.minimo) < 0.01) {
      kRes = MinDi(2.5, 2.8 * uK[k] / d0 - 1.7);
    } else if (std::abs(uK[k] - fk.massimo) < 0.01) {
      kRes = MinDi(2.5, 2.8 * (UK - uK[k]) / d0 - 1.7);
    } else {
      kRes = MinDi(2.5, 1.4 * fk.passo / d0 - 1.7);
    }

    const VentaglioOracolo fa = OracoloVentaglio(uA, uK, k);
    double aRes;
    if (std::abs(uA[k] - fa.minimo) < 0.01) {
      aRes = MinDi(1, MinDi(r, uA[k] / (3 * d0)));
    } else if (std::abs(uA[k] - fa.massimo) < 0.01) {
      aRes = MinDi(1, MinDi(r, (UA - uA[k]) / (3 * d0)));
    } else {
      aRes = MinDi(1, MinDi(r, fa.passo / (3 * d0) - 0.25));
    }

    const double f = p.a <= 40 && n.Fz_s <= 40 ? n.acciaio.ft : n.acciaio.ft40;
    o.kRes.push_back(kRes);
    o.aRes.push_back(aRes);
    o.FbRd.push_back(kRes * aRes * f * d * t / 100 / n.vite.gMViti);
  }
  return o;
}

}  // namespace qf17::prova
