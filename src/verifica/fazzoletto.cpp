#include "verifica/fazzoletto.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "nodo/sessione.h"
#include "verifica/comuni.h"
#include "verifica/sezioni_cache.h"

namespace qf17 {
namespace {

using sezioni::EsitoSezione;
using sezioni::SezioneDiffusione;

// The force spreads into the plate at 30 degrees each side of the bolt row.
constexpr double kDiffusione = 0.523598775598299;
// A net area at or below this counts as none.
constexpr double kAreaMinima = 0.0001;

// One member's bolts in plain tables: bolt b + 1 at b.
struct BulloniAsta {
  std::vector<double> x, y, d0;
  int n() const { return static_cast<int>(x.size()); }
};

BulloniAsta LeggiBulloni(const Sessione& s, int g) {
  const Nodo& nd = s.nodo;
  BulloniAsta b;
  for (int k = 1; k <= nd.nBull[g]; ++k) {
    b.x.push_back(nd.xBull(g, k));
    b.y.push_back(nd.yBull(g, k));
    b.d0.push_back(DiamForo(s.opzioni, nd.FiBull(g, k)));
  }
  return b;
}

// The inputs of a member's diffusion sections; true when they changed since the last call.
bool ImprontaCambiata(const Sessione& s, int g, sezioni::Impronta& imp) {
  const Nodo& nd = s.nodo;
  imp.Inizia();
  imp.Aggiungi(std::int64_t{nd.nBull[g]});
  imp.Aggiungi(s.opzioni[25]);
  imp.Aggiungi(nd.Ast_coeff[g]);
  imp.Aggiungi(nd.Fz_s);
  for (int k = 1; k <= nd.nBull[g]; ++k) {
    imp.Aggiungi(nd.xBull(g, k));
    imp.Aggiungi(nd.yBull(g, k));
    imp.Aggiungi(nd.FiBull(g, k));
  }
  return imp.Cambiata();
}

// Holes of the bolts within one hole diameter of the section in x and inside its spread.
double AreaNetta(double aSez, double xs, double yInf, double ySup, double fzs, const BulloniAsta& b,
                 int q) {
  if (b.d0[q] >= std::abs(b.x[q] - xs) && yInf <= b.y[q] && b.y[q] <= ySup) {
    aSez = aSez - fzs * b.d0[q];
  }
  return aSez;
}

SezioneDiffusione Sezione(int cont, double aSez) {
  return {cont, aSez, aSez <= kAreaMinima ? EsitoSezione::AreaNulla : EsitoSezione::Calcolata};
}

// The sections by the plain loops over the whole group, for groups with a coordinate or a
// hole that is not a finite number, where the sorted shortcuts would not hold.
void SezioniConCicli(const BulloniAsta& b, double coeff, double fzs,
                     std::vector<SezioneDiffusione>& out) {
  const int n = b.n();
  std::vector<int> ord(n + 1);
  std::vector<double> xo(n + 1);
  for (int k = 1; k <= n; ++k) {
    ord[k] = k;
    xo[k] = b.x[k - 1];
  }
  OrdinaBulloni(ord, xo, n);
  for (int p = n - 1; p >= 1; --p) {
    const double xs = xo[p], ys = b.y[ord[p] - 1];
    double ySup = -1000000, yInf = 1000000;
    int cont = 0;
    for (int q = 0; q < n; ++q) {
      if (b.x[q] >= xs) {
        ++cont;
        const double u = xs - b.x[q];
        ySup = MaxDi(ySup, u * std::tan(-kDiffusione) + ys);
        yInf = MinDi(yInf, u * std::tan(kDiffusione) + ys);
      }
    }
    if (cont < 1) {
      out.push_back({0, 0, EsitoSezione::Errore});
      return;
    }
    double aSez = std::abs(ySup - yInf) * coeff * fzs;
    if (aSez <= kAreaMinima) continue;
    for (int q = 0; q < n; ++q) aSez = AreaNetta(aSez, xs, yInf, ySup, fzs, b, q);
    out.push_back(Sezione(cont, aSez));
  }
}

// The same sections through the bolts sorted by x. The spread of a section reaches back to the
// bolt of greatest x, whatever the others are (the rounded edges grow with the distance), and
// only bolts within the largest hole diameter in x can lose a hole; these are taken by bolt
// number, so the area is reduced in the order of the plain loop.
void SezioniOrdinate(const BulloniAsta& b, double coeff, double fzs,
                     std::vector<SezioneDiffusione>& out) {
  const int n = b.n();
  const sezioni::BulloniPerX ordine(b.x);
  const double dMax = *std::max_element(b.d0.begin(), b.d0.end());
  const double tSup = std::tan(-kDiffusione), tInf = std::tan(kDiffusione);
  for (int p = n - 1; p >= 1; --p) {
    const int s = ordine.Bullone(p - 1);
    const double xs = b.x[s], ys = b.y[s];
    const int cont = ordine.ContaDa(xs);
    const double uMax = xs - ordine.XMassimo();
    const double ySup = MaxDi(-1000000, uMax * tSup + ys);
    const double yInf = MinDi(1000000, uMax * tInf + ys);
    double aSez = std::abs(ySup - yInf) * coeff * fzs;
    if (aSez <= kAreaMinima) continue;
    ordine.VisitaVicini(xs, dMax,
                        [&](int q) { aSez = AreaNetta(aSez, xs, yInf, ySup, fzs, b, q); });
    out.push_back(Sezione(cont, aSez));
  }
}

void PreparaSezioni(const Sessione& s, int g, sezioni::DiffusioneAsta& c) {
  if (!ImprontaCambiata(s, g, c.impronta)) return;
  c.sezioni.clear();
  const BulloniAsta b = LeggiBulloni(s, g);
  const double coeff = s.nodo.Ast_coeff[g], fzs = s.nodo.Fz_s;
  if (sezioni::TuttiFiniti(b.x) && sezioni::TuttiFiniti(b.y) && sezioni::TuttiFiniti(b.d0)) {
    SezioniOrdinate(b, coeff, fzs, c.sezioni);
  } else {
    SezioniConCicli(b, coeff, fzs, c.sezioni);
  }
}

void Avviso(Sessione& s, const std::string& testo) {
  s.piattaforma.Messaggio(testo, "QF17", Icona::Nessuna, Pulsanti::Ok);
}

}  // namespace

void OrdinaBulloni(std::vector<int>& ordine, std::vector<double>& x, int n) {
  bool scambi = true;
  while (scambi) {
    scambi = false;
    for (int i = 1; i < n; ++i) {
      if (x[i] > x[i + 1]) {
        std::swap(x[i], x[i + 1]);
        std::swap(ordine[i], ordine[i + 1]);
        scambi = true;
      }
    }
  }
}

void VerificaFazzoletto(Sessione& sessione, int j) {
  CacheSezioni cache;
  VerificaFazzoletto(sessione, j, cache);
}

// The force of the member, taken whole, is shared equally by its bolts: a section carries the
// part of the bolts from it outward, and the largest stress of the sections is kept with the
// force's sign.
void VerificaFazzoletto(Sessione& sessione, int j, CacheSezioni& cache) {
  RisultatiVerifica& r = sessione.Risultati();
  const Nodo& nd = sessione.nodo;
  const std::string errore = "Errore nella verifica del fazzoletto";
  const std::string areaNulla = "Area netta nulla nella verifica del fazzoletto";
  for (int g = 1; g <= kMaxAste; ++g) {
    const double N = nd.SforzoNormale(g, j);
    const int n = nd.nBull[g];
    r.SigDiff(g, j) = 0;
    if (n < 1) continue;
    sezioni::DiffusioneAsta& c = cache.diffusione[g];
    PreparaSezioni(sessione, g, c);
    double sig = 0;
    for (const SezioneDiffusione& sez : c.sezioni) {
      if (sez.esito == EsitoSezione::Errore) {
        Avviso(sessione, errore);
        break;
      }
      if (sez.esito == EsitoSezione::AreaNulla) {
        Avviso(sessione, areaNulla);
        continue;
      }
      const double nSez = N * sez.Cont / n;
      const double sigma = kF2 * std::abs(nSez / sez.ASez);
      sig = Segno(nSez) * MaxDi(sigma, std::abs(sig));
    }
    r.SigDiff(g, j) = sig;
  }
}

}  // namespace qf17
