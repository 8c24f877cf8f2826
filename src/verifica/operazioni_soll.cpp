#include "verifica/operazioni_soll.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

#include "nodo/nodo.h"

namespace qf17 {
namespace {

constexpr double kTolleranza = 0.0001;

bool Uguali(double a, double b) {
  return std::abs(a - b) < kTolleranza;
}

// Set b repeats set a when the cases match and every present member has the same force; an
// absent member's force is not looked at.
bool Doppia(const Nodo& n, int a, int b) {
  if (n.CasoCarico[b] != n.CasoCarico[a]) return false;
  for (int i = 1; i <= kMaxAste; ++i) {
    if (!Uguali(n.SforzoNormale(i, a), n.SforzoNormale(i, b)) && n.Ast_flag[i] > 0) return false;
  }
  return true;
}

// The first repeated set of a scan from a = 1, or 0. The pairs with b before a were already
// tried as (b, a), so the set found is always the later of its pair.
int PrimaDoppia(const Nodo& n) {
  for (int a = 1; a < n.nSollAg; ++a) {
    for (int b = 1; b <= n.nSollAg; ++b) {
      if (b != a && Doppia(n, a, b)) return b;
    }
  }
  return 0;
}

// Extremes of one case type, member 1..3.
struct Estremi {
  std::array<double, kMaxAste + 1> max{};
  std::array<double, kMaxAste + 1> min{};
};

bool Presente(const Nodo& n, int i) {
  return n.Ast_flag[i] == 1;
}

// Only the first present member of the first set of each case type starts from its force; every
// other member starts from 0, so an all-tensile member keeps minimum 0 and an all-compressive
// one maximum 0. The reduction is meant to work from these values.
void ValoriIniziali(const Nodo& n, Estremi& casoI, Estremi& casoII) {
  bool fattoI = false, fattoII = false;
  for (int j = 1; j <= n.nSollAg; ++j) {
    for (int i = 1; i <= kMaxAste; ++i) {
      if (!Presente(n, i)) continue;
      const double f = n.SforzoNormale(i, j);
      if (n.CasoCarico[j] == 0 && !fattoI) {
        casoI.max[i] = casoI.min[i] = f;
        fattoI = true;
      }
      if (n.CasoCarico[j] == 1 && !fattoII) {
        casoII.max[i] = casoII.min[i] = f;
        fattoII = true;
      }
    }
  }
}

void CercaEstremi(const Nodo& n, Estremi& casoI, Estremi& casoII) {
  for (int j = 1; j <= n.nSollAg; ++j) {
    Estremi& e = n.CasoCarico[j] != 0 ? casoII : casoI;
    for (int i = 1; i <= kMaxAste; ++i) {
      if (!Presente(n, i)) continue;
      const double f = n.SforzoNormale(i, j);
      if (f > e.max[i]) e.max[i] = f;
      if (f < e.min[i]) e.min[i] = f;
    }
  }
}

bool Governa(const Nodo& n, int j, const Estremi& e) {
  for (int i = 1; i <= kMaxAste; ++i) {
    if (!Presente(n, i)) continue;
    const double f = n.SforzoNormale(i, j);
    if (Uguali(f, e.max[i]) || Uguali(f, e.min[i])) return true;
  }
  return false;
}

struct SetTenuto {
  std::array<double, kMaxAste + 1> forze{};
  std::int16_t caso = 0;
};

}  // namespace

bool RimuoviDoppie(Nodo& nodo) {
  bool rimosso = false;
  for (int b = PrimaDoppia(nodo); b != 0; b = PrimaDoppia(nodo)) {
    RimuoviSoll(nodo, b);
    rimosso = true;
  }
  return rimosso;
}

void RiduciMaxMin(Nodo& nodo) {
  RimuoviDoppie(nodo);
  Estremi casoI, casoII;
  ValoriIniziali(nodo, casoI, casoII);
  CercaEstremi(nodo, casoI, casoII);

  std::vector<SetTenuto> tenuti;
  for (int j = 1; j <= nodo.nSollAg; ++j) {
    if (!Governa(nodo, j, nodo.CasoCarico[j] != 0 ? casoII : casoI)) continue;
    SetTenuto t;
    for (int i = 1; i <= kMaxAste; ++i) t.forze[i] = nodo.SforzoNormale(i, j);
    t.caso = nodo.CasoCarico[j];
    tenuti.push_back(t);
  }

  // Only forces and cases are packed: each row keeps its name, and the rows beyond the new
  // count keep whatever they held.
  nodo.nSollAg = static_cast<std::int16_t>(tenuti.size());
  for (int j = 1; j <= nodo.nSollAg; ++j) {
    const SetTenuto& t = tenuti[static_cast<std::size_t>(j - 1)];
    for (int i = 1; i <= kMaxAste; ++i) nodo.SforzoNormale(i, j) = t.forze[i];
    nodo.CasoCarico[j] = t.caso;
  }
}

void RimuoviSoll(Nodo& nodo, int j) {
  if (j < 1 || j > nodo.nSollAg) return;
  for (int k = j; k < nodo.nSollAg; ++k) {
    for (int i = 1; i <= kMaxAste; ++i) nodo.SforzoNormale(i, k) = nodo.SforzoNormale(i, k + 1);
    nodo.CasoCarico[k] = nodo.CasoCarico[k + 1];
    nodo.NomeSa[k] = nodo.NomeSa[k + 1];
  }
  nodo.NomeSa[nodo.nSollAg] = "";
  --nodo.nSollAg;
}

}  // namespace qf17
