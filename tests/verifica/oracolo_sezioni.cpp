#include "oracolo_sezioni.h"

#include <cmath>
#include <utility>
#include <vector>

#include "verifica/comuni.h"

namespace qf17::prova {
namespace {

void Ordina(std::vector<int>& ord, std::vector<double>& x, int n) {
  bool scambi = true;
  while (scambi) {
    scambi = false;
    for (int i = 1; i < n; ++i) {
      if (x[i] > x[i + 1]) {
        std::swap(x[i], x[i + 1]);
        std::swap(ord[i], ord[i + 1]);
        scambi = true;
      }
    }
  }
}

double Foro(const Sessione& s, int g, int k) {
  return DiamForo(s.opzioni, s.nodo.FiBull(g, k));
}

}  // namespace

void OracoloFazzoletto(const Sessione& s, int j, RisultatiVerifica& r, Piattaforma& p) {
  const Nodo& nd = s.nodo;
  const double T = 0.523598775598299;
  for (int g = 1; g <= 3; ++g) {
    const double N = nd.SforzoNormale(g, j);
    const int n = nd.nBull[g];
    r.SigDiff(g, j) = 0;
    if (n < 1) continue;
    std::vector<int> ord(n + 1);
    std::vector<double> X(n + 1);
    for (int k = 1; k <= n; ++k) {
      ord[k] = k;
      X[k] = nd.xBull(g, k);
    }
    Ordina(ord, X, n);
    for (int p2 = n - 1; p2 >= 1; --p2) {
      const double xs = nd.xBull(g, ord[p2]);
      const double ys = nd.yBull(g, ord[p2]);
      double YSup = -1000000, YInf = 1000000;
      int Cont = 0;
      for (int b = 1; b <= n; ++b) {
        const double xb = nd.xBull(g, b);
        if (xb >= xs) {
          Cont = Cont + 1;
          const double u = xs - xb;
          YSup = MaxDi(YSup, u * std::tan(-T) + ys);
          YInf = MinDi(YInf, u * std::tan(T) + ys);
        }
      }
      if (Cont < 1) {
        p.Messaggio("Errore nella verifica del fazzoletto", "QF17", Icona::Nessuna, Pulsanti::Ok);
        break;
      }
      const double NSez = N * Cont / n;
      double ASez = std::abs(YSup - YInf) * nd.Ast_coeff[g] * nd.Fz_s;
      if (ASez <= 0.0001) continue;
      for (int b = 1; b <= n; ++b) {
        const double d0 = Foro(s, g, b);
        const double xb = nd.xBull(g, b), yb = nd.yBull(g, b);
        if (d0 >= std::abs(xb - xs) && YInf <= yb && yb <= YSup) ASez = ASez - nd.Fz_s * d0;
      }
      if (ASez <= 0.0001) {
        p.Messaggio("Area netta nulla nella verifica del fazzoletto", "QF17", Icona::Nessuna,
                    Pulsanti::Ok);
        continue;
      }
      const double sigma = 100 * std::abs(NSez / ASez);
      r.SigDiff(g, j) = Segno(NSez) * MaxDi(sigma, std::abs(r.SigDiff(g, j)));
    }
  }
}

void OracoloProfili(const Sessione& s, int j, RisultatiVerifica& r, Piattaforma& p) {
  const Nodo& nd = s.nodo;
  double H = 0, V = 0, N = 0, AL1 = 0, AL2 = 0;
  for (int i = 1; i <= 3; ++i) {
    N = nd.SforzoNormale(i, j);
    V = V + N * (-nd.PosFazzoletto) * std::sin(nd.Ast_teta[i] - nd.Cor_teta);
    H = H - N * std::cos(nd.Ast_teta[i] - nd.Cor_teta);
    const int m = nd.Ast_modo[i];
    const Profilo& P = nd.Aste[i];
    r.SigProf(i, j) = 0;
    if (N > 0 && m != 1) {
      AL2 = (P.b - P.e) * P.a;
      AL1 = P.h * P.a;
    } else {
      AL1 = P.Area;
    }
    for (int k = 1; k <= nd.nBull[i]; ++k) {
      const double d0 = Foro(s, i, k);
      double An = AL1 - d0 * P.a;
      double In = P.I2;
      if (m == 0) In = In - P.dBarY * P.dBarY * (d0 * P.a);
      for (int q = 1; q <= nd.nBull[i]; ++q) {
        if (q == k) continue;
        if (d0 >= std::abs(nd.xBull(i, k) - nd.xBull(i, q))) {
          const double d0q = Foro(s, i, q);
          An = An - d0q * P.a;
          if (m == 0) In = In - P.dBarY * P.dBarY * (d0q * P.a);
        }
      }
      if (An <= 0.0001 || In <= 0.0001) {
        p.Messaggio("Area netta della sezione del profilo " + P.Nome + " nulla", "ATTENZIONE",
                    Icona::Attenzione, Pulsanti::Ok);
        continue;
      }
      if (N > 0) {
        if (m == 0) An = An + (3 * An / (3 * An + AL2)) * AL2;
        if (m == 1) An = 2 * An;
        if (m == 2) An = 2 * An + 2 * (5 * An / (5 * An + AL2)) * AL2;
      } else {
        if (m == 1 || m == 2) An = 2 * An;
      }
      double sv;
      if (m == 0) {
        const double Ecc = P.dBarY - P.a / 2;
        const double s1 = N / An + ((Ecc * N) / In) * P.dBarY;
        const double s2 = N / An - ((Ecc * N) / In) * (P.b - P.dBarY);
        sv = MaxDi(std::abs(s2), std::abs(s1));
      } else {
        sv = std::abs(N / An);
      }
      r.SigProf(i, j) = Segno(N) * MaxDi(100 * sv, std::abs(r.SigProf(i, j)));
    }
  }
  r.SigProf(0, j) = 0;
  r.TauCorr[j] = 0;
  const double a = nd.Corrente.a;
  for (int k = 1; k <= nd.nBull[0]; ++k) {
    const double d0 = Foro(s, 0, k);
    double An = nd.Corrente.Area - a * d0;
    for (int q = 1; q <= nd.nBull[0]; ++q) {
      if (q == k) continue;
      if (d0 >= std::abs(nd.xBull(0, k) - nd.xBull(0, q))) An = An - a * Foro(s, 0, q);
    }
    if (An <= 0.0001) {
      p.Messaggio("Area netta della sezione del corrente nulla", "ATTENZIONE", Icona::Attenzione,
                  Pulsanti::Ok);
      continue;
    }
    An = 2 * An;
    r.SigProf(0, j) = Segno(N) * MaxDi(100 * std::abs(H / An), std::abs(r.SigProf(0, j)));
    r.TauCorr[j] = MaxDi(100 * std::abs((3.0 / 2.0) * V / An), std::abs(r.TauCorr[j]));
  }
}

}  // namespace qf17::prova
