#include "verifica/saldatura.h"

#include <cmath>

#include "librerie/token.h"
#include "nodo/sessione.h"
#include "verifica/comuni.h"

namespace qf17 {
namespace {

// Coefficients of the fillet weld rule, by steel.
struct CoefficientiSaldatura {
  double b1 = 0;
  double b2 = 0;
  bool noti = false;
};

CoefficientiSaldatura Coefficienti(const std::string& acciaio) {
  const std::string nome = Maiuscolo(acciaio);
  if (nome == "S 235 (FE 360)") return {0.85, 1.0, true};
  if (nome == "S 275 (FE 430)" || nome == "S 355 (FE 510)") return {0.7, 0.85, true};
  return {};
}

// Ratio of the weld stresses to the limit: the combined stress over b1 and, when a normal
// stress and a transverse shear act together, their sum over b2. Components count as absent
// only when exactly zero.
double Rapporto(double s, double tp, double tn, double b1, double b2, double lim) {
  const bool cS = s != 0, cP = tp != 0, cN = tn != 0;
  if (cS && cP && cN) {
    return MaxDi(std::sqrt(tn * tn + s * s + tp * tp) / b1 / lim,
                 (std::abs(tn) + std::abs(s)) / b2 / lim);
  }
  if (!cS && cP && cN) return std::sqrt(tn * tn + tp * tp) / b1 / lim;
  if (cS && cP && !cN) return std::sqrt(s * s + tp * tp) / b1 / lim;
  if (cS && !cP && !cN) return std::abs(s) / b1 / lim;
  if (!cS && cP && !cN) return std::abs(tp) / b1 / lim;
  if (!cS && !cP && cN) return std::abs(tn) / b1 / lim;
  if (cS && !cP && cN) {
    return MaxDi(std::abs(s) / b1 / lim,
                 MaxDi(std::abs(tn) / b1 / lim, (std::abs(tn) + std::abs(s)) / b2 / lim));
  }
  return 0;
}

}  // namespace

EsitoSaldatura VerificaSaldatura(const Sessione& sessione, int j, int i, int l, double Lim,
                                 std::int16_t& ok) {
  const Saldatura& w = sessione.nodo.Saldature(i, l);
  const double s = w.SigPerp[j], tp = w.TauPar[j], tn = w.TauPerp[j];
  EsitoSaldatura esito;
  // The printed values are rounded; the tables keep theirs.
  esito.Sig = Arrot1(s);
  esito.TauPar = Arrot1(tp);
  esito.TauPerp = Arrot1(tn);
  const CoefficientiSaldatura c = Coefficienti(sessione.nodo.acciaio.Nome);
  if (!c.noti) {
    // No coefficient, no ratio: the weld cannot be said to hold.
    esito.CoefficientiNoti = false;
    esito.Rapporto = 0;
    ok = 0;
    return esito;
  }
  esito.Rapporto = Rapporto(s, tp, tn, c.b1, c.b2, Lim);
  if (esito.Rapporto > 1.0) ok = 0;
  return esito;
}

void TensioniEqSaldatura(Sessione& sessione, int j, int i, int l) {
  Saldatura& w = sessione.nodo.Saldature(i, l);
  const double s = w.SigPerp[j], tp = w.TauPar[j], tn = w.TauPerp[j];
  w.SEq1[j] = std::sqrt(tn * tn + s * s + tp * tp);
  w.SEq2[j] = std::abs(tn) + std::abs(s);
}

}  // namespace qf17
