// Where each bolt stands in its fan, without looking at every pair of bolts.
//
// A bolt k is first of its fan when no bolt of the fan lies 0.01 or more below it in u, last
// when none lies 0.01 or more above it (and it is not first); otherwise its pitch is the least
// |uk - um| over the other bolts of the fan. Since a rounded difference uk - um only grows as um
// falls, "first" is the same as "|uk - least| < 0.01" and "last" as "|uk - greatest| < 0.01":
// the extreme bolts need not be found, only whether a fan bolt exists beyond 0.01.
//
// 1. The bolts are sorted by u, then v; a run of equal u is a level, sorted by v. Within a
//    level the fan test |vk - vm| <= T |uk - um| holds on one run of v, found by a binary
//    search with the very same rounded test, so a level is answered in O(log s).
// 2. Below k the levels are visited by rising |uk - um|: the first level holding a fan bolt
//    gives the pitch on that side, and the first at 0.01 or more settles that k is not first.
//    The same above. A bolt of the same u is in the fan only when it has the same v too.
// 3. A side whose fan is empty would make step 2 visit every level on that side. So first a
//    certificate: in the coordinates A = T u + v, B = T u - v the lower half of the fan is the
//    quadrant A_m <= A_k, B_m <= B_k (the upper, both >=). Sorted by A with running minima of
//    B, "no other bolt in the quadrant widened by eta" is answered in O(log n). The rounded fan
//    test differs from the exact cone by a few 1e-15 of the coordinates, so eta = 1e-9 of them
//    only ever lets through more bolts: a side declared empty is empty for the rounded test too.
//    A side that may hold a fan bolt is visited as in step 2, which decides exactly.
//
// Cost: O(n log n) for the sorting, plus per bolt the levels visited before a fan bolt is met
// on each side, times O(log s). Rows, grids and staggered rows meet one in the next level or
// two (a cloud of scattered bolts in some tens), so the whole is about O(n log n). The worst case,
// a fan bolt met only after many levels that hold none (bolts strung out at more than 30 degrees
// from u, with one far away in the cone), is O(n^2), as the plain pair loop. Coordinates that are
// not finite, or beyond 1e12 mm, go to the pair loop.
#include "verifica/bulloni_slu_ventaglio.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "verifica/comuni.h"

namespace qf17 {

namespace {

constexpr double kSoglia = 0.01;
constexpr double kInfinito = std::numeric_limits<double>::infinity();

bool NelVentaglio(double uk, double vk, double um, double vm, double T) {
  return std::abs(vk - vm) <= T * std::abs(uk - um);
}

PostoBullone DaEstremi(double uk, double minimo, double massimo, double passo) {
  if (std::abs(uk - minimo) < kSoglia) return {PostoNelVentaglio::Primo, 0};
  if (std::abs(uk - massimo) < kSoglia) return {PostoNelVentaglio::Ultimo, 0};
  return {PostoNelVentaglio::Interno, passo};
}

// The bolts sorted by (u, v) and cut into levels of equal u.
class Livelli {
 public:
  Livelli(const std::vector<double>& u, const std::vector<double>& v) : u_(u), v_(v) {
    const int n = static_cast<int>(u.size());
    std::vector<int> ordine(n);
    std::iota(ordine.begin(), ordine.end(), 0);
    std::sort(ordine.begin(), ordine.end(),
              [&](int a, int b) { return u[a] < u[b] || (u[a] == u[b] && v[a] < v[b]); });
    vOrdinati_.resize(n);
    posizione_.resize(n);
    livello_.resize(n);
    for (int i = 0; i < n; ++i) {
      const int k = ordine[i];
      if (i == 0 || u[k] != uLivello_.back()) {
        inizio_.push_back(i);
        uLivello_.push_back(u[k]);
      }
      vOrdinati_[i] = v[k];
      posizione_[k] = i;
      livello_[k] = static_cast<int>(uLivello_.size()) - 1;
    }
    inizio_.push_back(n);
  }

  int Numero() const { return static_cast<int>(uLivello_.size()); }
  int Livello(int k) const { return livello_[k]; }

  // |uk - u| of level L when it holds a bolt of k's fan, else a negative number.
  double DistanzaSeNelVentaglio(int k, int L, double T) const {
    const double uk = u_[k];
    const double vk = v_[k];
    const double delta = std::abs(uk - uLivello_[L]);
    const double w = T * delta;
    const auto primo = vOrdinati_.begin() + inizio_[L];
    const auto ultimo = vOrdinati_.begin() + inizio_[L + 1];
    // Below vk the rounded distance falls as v rises: the bolts out of reach come first.
    const auto it = std::partition_point(
        primo, ultimo, [&](double vm) { return vm < vk && !(std::abs(vk - vm) <= w); });
    if (it != ultimo && std::abs(vk - *it) <= w) return delta;
    return -1;
  }

  // Another bolt of k's level with k's own v: the only ones of that level in its fan.
  bool GemelloNelLivello(int k) const {
    const int i = posizione_[k];
    const int L = livello_[k];
    const double vk = v_[k];
    if (i > inizio_[L] && std::abs(vk - vOrdinati_[i - 1]) <= 0) return true;
    return i + 1 < inizio_[L + 1] && std::abs(vk - vOrdinati_[i + 1]) <= 0;
  }

 private:
  const std::vector<double>& u_;
  const std::vector<double>& v_;
  std::vector<double> vOrdinati_;
  std::vector<int> posizione_;
  std::vector<int> livello_;
  std::vector<int> inizio_;
  std::vector<double> uLivello_;
};

// "Is there possibly another bolt m with P_m <= P_k and Q_m <= Q_k, within eta?"
class Quadrante {
 public:
  Quadrante(std::vector<double> P, std::vector<double> Q, double eta)
      : P_(std::move(P)), Q_(std::move(Q)), eta_(eta) {
    const int n = static_cast<int>(P_.size());
    std::vector<int> ordine(n);
    std::iota(ordine.begin(), ordine.end(), 0);
    std::sort(ordine.begin(), ordine.end(), [&](int a, int b) { return P_[a] < P_[b]; });
    pOrdinati_.resize(n);
    minimi_.resize(n);
    Minimi m;
    for (int i = 0; i < n; ++i) {
      const int k = ordine[i];
      pOrdinati_[i] = P_[k];
      if (Q_[k] < m.q1) {
        m.q2 = m.q1;
        m.q1 = Q_[k];
        m.k1 = k;
      } else if (Q_[k] < m.q2) {
        m.q2 = Q_[k];
      }
      minimi_[i] = m;
    }
  }

  bool ForseAltro(int k) const {
    const auto fine = std::upper_bound(pOrdinati_.begin(), pOrdinati_.end(), P_[k] + eta_);
    if (fine == pOrdinati_.begin()) return false;
    const Minimi& m = minimi_[fine - pOrdinati_.begin() - 1];
    const double q = m.k1 != k ? m.q1 : m.q2;
    return q <= Q_[k] + eta_;
  }

 private:
  // The two least Q of a prefix, and whose the least is.
  struct Minimi {
    double q1 = kInfinito;
    int k1 = -1;
    double q2 = kInfinito;
  };
  std::vector<double> P_;
  std::vector<double> Q_;
  double eta_;
  std::vector<double> pOrdinati_;
  std::vector<Minimi> minimi_;
};

bool Trattabili(const std::vector<double>& u, const std::vector<double>& v) {
  for (std::size_t k = 0; k < u.size(); ++k) {
    if (!(std::abs(u[k]) <= 1e12) || !(std::abs(v[k]) <= 1e12)) return false;
  }
  return true;
}

class Ventagli {
 public:
  Ventagli(const std::vector<double>& u, const std::vector<double>& v, double T)
      : T_(T), livelli_(u, v), sotto_(Ruotate(u, v, T, false)), sopra_(Ruotate(u, v, T, true)) {}

  PostoBullone Posto(int k) const {
    const double sotto = sotto_.ForseAltro(k) ? PassoVerso(k, -1) : kInfinito;
    if (sotto == kInfinito) return {PostoNelVentaglio::Primo, 0};
    const double sopra = sopra_.ForseAltro(k) ? PassoVerso(k, +1) : kInfinito;
    if (sopra == kInfinito) return {PostoNelVentaglio::Ultimo, 0};
    const double passo = livelli_.GemelloNelLivello(k) ? 0.0 : MinDi(sotto, sopra);
    return {PostoNelVentaglio::Interno, passo};
  }

 private:
  // The quadrant of the lower half fan (A, B), or of the upper one (-B, -A).
  static Quadrante Ruotate(const std::vector<double>& u, const std::vector<double>& v, double T,
                           bool sopra) {
    const std::size_t n = u.size();
    std::vector<double> P(n), Q(n);
    double scala = 0;
    for (std::size_t k = 0; k < n; ++k) {
      const double A = T * u[k] + v[k];
      const double B = T * u[k] - v[k];
      P[k] = sopra ? -B : A;
      Q[k] = sopra ? -A : B;
      scala = std::max(scala, std::abs(u[k]) + std::abs(v[k]));
    }
    return Quadrante(std::move(P), std::move(Q), 1e-9 * (1 + scala));
  }

  // The least |uk - um| over the fan on one side (-1 below, +1 above), when that side holds a
  // fan bolt 0.01 or more away; infinity when it holds none.
  double PassoVerso(int k, int verso) const {
    double passo = kInfinito;
    for (int L = livelli_.Livello(k) + verso; L >= 0 && L < livelli_.Numero(); L += verso) {
      const double delta = livelli_.DistanzaSeNelVentaglio(k, L, T_);
      if (delta < 0) continue;
      passo = MinDi(passo, delta);
      if (delta >= kSoglia) return passo;
    }
    return kInfinito;
  }

  double T_;
  Livelli livelli_;
  Quadrante sotto_;
  Quadrante sopra_;
};

}  // namespace

std::vector<PostoBullone> PostiNeiVentagliCoppie(const std::vector<double>& u,
                                                 const std::vector<double>& v, double T) {
  const std::size_t n = u.size();
  std::vector<PostoBullone> posti(n);
  for (std::size_t k = 0; k < n; ++k) {
    double minimo = u[k];
    double massimo = u[k];
    double passo = kInfinito;
    for (std::size_t m = 0; m < n; ++m) {
      if (!NelVentaglio(u[k], v[k], u[m], v[m], T)) continue;
      minimo = MinDi(minimo, u[m]);
      massimo = MaxDi(massimo, u[m]);
      if (m != k) passo = MinDi(passo, std::abs(u[k] - u[m]));
    }
    posti[k] = DaEstremi(u[k], minimo, massimo, passo);
  }
  return posti;
}

std::vector<PostoBullone> PostiNeiVentagli(const std::vector<double>& u,
                                           const std::vector<double>& v, double T) {
  if (!Trattabili(u, v)) return PostiNeiVentagliCoppie(u, v, T);
  const Ventagli ventagli(u, v, T);
  std::vector<PostoBullone> posti(u.size());
  for (std::size_t k = 0; k < u.size(); ++k) posti[k] = ventagli.Posto(static_cast<int>(k));
  return posti;
}

}  // namespace qf17
