#include "verifica/risultati_finiti.h"

#include <cmath>
#include <initializer_list>
#include <utility>

namespace qf17 {
namespace {

const char* Gruppo(int g) {
  static const char* const kNomi[] = {"del corrente", "dell'asta A", "dell'asta B", "dell'asta C"};
  return kNomi[g];
}

std::string Combinazione(int j) {
  return ", combinazione " + std::to_string(j);
}

using Voci = std::initializer_list<std::pair<const char*, double>>;

// The name of the first value of `voci` that is not finite, or empty.
std::string NonFinito(Voci voci) {
  for (const auto& [nome, valore] : voci) {
    if (!std::isfinite(valore)) return nome;
  }
  return {};
}

std::string Bulloni(const Nodo& n, const RisultatiVerifica& r, bool slu, int g, int j) {
  for (int k = 1; k <= n.nBull[g]; ++k) {
    const std::string nome =
        slu ? NonFinito({{"Fed", r.FedBull(g, k, j)}, {"rapporto", r.RapportoBull(g, k, j)}})
            : NonFinito({{"Tau", r.TauBull(g, k, j)}, {"Sigma rifollamento", r.RifBull(g, k, j)}});
    if (!nome.empty()) {
      return nome + " del bullone " + std::to_string(k) + " " + Gruppo(g) + Combinazione(j);
    }
  }
  return {};
}

std::string Resistenze(const Nodo& n, const RisultatiVerifica& r) {
  for (int g = 0; g <= 3; ++g) {
    for (int k = 1; k <= n.nBull[g]; ++k) {
      const std::string nome = NonFinito({{"FvRd", r.FvRd(g, k)}, {"FbRd", r.FbRd(g, k)}});
      if (!nome.empty()) return nome + " del bullone " + std::to_string(k) + " " + Gruppo(g);
    }
  }
  return {};
}

std::string Set(const Nodo& n, const RisultatiVerifica& r, bool slu, int j) {
  const Saldatura& sald = n.Saldature(4, 1);
  std::string nome = NonFinito({{"tensione nel fazzoletto sotto il corrente", r.SigSotto[j]},
                                {"tensione tangenziale nel corrente", r.TauCorr[j]},
                                {"Tau parallela della saldatura", sald.TauPar[j]},
                                {"Sigma perpendicolare della saldatura", sald.SigPerp[j]}});
  if (!nome.empty()) return nome + Combinazione(j);
  for (int g = 0; g <= 3; ++g) {
    nome = NonFinito({{"tensione nella sezione netta", r.SigProf(g, j)},
                      {"tensione nella sezione di diffusione", r.SigDiff(g, j)}});
    if (!nome.empty()) return nome + " " + Gruppo(g) + Combinazione(j);
    nome = Bulloni(n, r, slu, g, j);
    if (!nome.empty()) return nome;
  }
  return {};
}

}  // namespace

std::string PrimoRisultatoNonFinito(const Nodo& n, const RisultatiVerifica& r, bool statiLimite) {
  if (statiLimite) {
    if (std::string nome = Resistenze(n, r); !nome.empty()) return nome;
  }
  for (int j = 1; j <= n.nSollAg; ++j) {
    if (std::string nome = Set(n, r, statiLimite, j); !nome.empty()) return nome;
  }
  return {};
}

}  // namespace qf17
