// The net-section and gusset checks over the load sets of the largest node the model holds:
// four groups of 2000 bolts, three members, 200 load sets. Sections kept over the sets against
// sections worked out at every call, and against the plain loops (on fewer bolts or sets where
// they would take minutes).
#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
#include <random>

#include "nodo/sessione.h"
#include "oracolo_sezioni.h"
#include "piattaforma_muta.h"
#include "verifica/fazzoletto.h"
#include "verifica/profili.h"
#include "verifica/sezioni_cache.h"

namespace qf17 {
namespace {

enum class Disposizione {
  Griglia,  // rows 60 apart of 10 bolts 40 apart: what a real large group looks like
  Fila      // every bolt within 20 mm in x: each section's row holds the whole group
};

Profilo Angolare() {
  Profilo p;
  p.Nome = "LU200x20";
  p.h = p.b = 200;
  p.a = p.e = 20;
  p.Area = 7640;
  p.dBarY = 56.8;
  p.I2 = 2.85e7;
  return p;
}

struct NodoGrande {
  explicit NodoGrande(int bulloni, Disposizione disposizione) {
    Nodo& n = sessione.nodo;
    std::mt19937_64 g(17);
    std::uniform_real_distribution<double> forza(-1e5, 1e5), vicino(0, 20);
    sessione.opzioni[25] = 1;
    n.Fz_s = 20;
    n.PosFazzoletto = 1;
    n.Corrente = Angolare();
    n.Corrente.Area = 2 * 7640.0 * bulloni;  // no chord section without net area
    for (int i = 1; i <= 3; ++i) {
      n.Aste[i] = Angolare();
      n.Ast_flag[i] = 1;
      n.Ast_modo[i] = static_cast<std::int16_t>(i - 1);
      n.Ast_coeff[i] = 1;
      n.Ast_teta[i] = 0.5 * i;
    }
    for (int gr = 0; gr <= 3; ++gr) {
      n.nBull[gr] = static_cast<std::int16_t>(bulloni);
      for (int k = 1; k <= bulloni; ++k) {
        const bool griglia = disposizione == Disposizione::Griglia;
        n.xBull(gr, k) = griglia ? 60.0 * ((k - 1) / 10) : vicino(g);
        n.yBull(gr, k) = griglia ? 40.0 * ((k - 1) % 10) : 40.0 * (k % 50);
        n.FiBull(gr, k) = k % 7 == 0 ? 24 : 20;
      }
    }
    n.nSollAg = kMaxSollecitazioni;
    for (int j = 1; j <= kMaxSollecitazioni; ++j) {
      for (int i = 1; i <= 3; ++i) n.SforzoNormale(i, j) = j % 11 == 0 ? 0 : forza(g);
    }
  }

  PiattaformaMuta piattaforma;
  Sessione sessione{piattaforma};
};

// A run's sets with one cache kept over them, as a run keeps it.
void BM_SezioniConCache(benchmark::State& stato) {
  NodoGrande nodo(static_cast<int>(stato.range(0)), static_cast<Disposizione>(stato.range(1)));
  const int set = static_cast<int>(stato.range(2));
  for (auto _ : stato) {
    CacheSezioni cache;
    for (int j = 1; j <= set; ++j) {
      VerificaProfili(nodo.sessione, j, cache);
      VerificaFazzoletto(nodo.sessione, j, cache);
    }
    benchmark::DoNotOptimize(nodo.sessione.Risultati().SigDiff(1, set));
  }
}

// The same calls without a cache: the sections are sorted and worked out at every call.
void BM_SezioniSenzaCache(benchmark::State& stato) {
  NodoGrande nodo(static_cast<int>(stato.range(0)), static_cast<Disposizione>(stato.range(1)));
  const int set = static_cast<int>(stato.range(2));
  for (auto _ : stato) {
    for (int j = 1; j <= set; ++j) {
      VerificaProfili(nodo.sessione, j);
      VerificaFazzoletto(nodo.sessione, j);
    }
    benchmark::DoNotOptimize(nodo.sessione.Risultati().SigDiff(1, set));
  }
}

// The plain loops.
void BM_SezioniOracolo(benchmark::State& stato) {
  NodoGrande nodo(static_cast<int>(stato.range(0)), static_cast<Disposizione>(stato.range(1)));
  const int set = static_cast<int>(stato.range(2));
  auto r = std::make_unique<RisultatiVerifica>();
  for (auto _ : stato) {
    for (int j = 1; j <= set; ++j) {
      prova::OracoloProfili(nodo.sessione, j, *r, nodo.piattaforma);
      prova::OracoloFazzoletto(nodo.sessione, j, *r, nodo.piattaforma);
    }
    benchmark::DoNotOptimize(r->SigDiff(1, set));
  }
}

constexpr int kGriglia = static_cast<int>(Disposizione::Griglia);
constexpr int kFila = static_cast<int>(Disposizione::Fila);

BENCHMARK(BM_SezioniConCache)
    ->Args({2000, kGriglia, 200})
    ->Args({2000, kFila, 200})
    ->Args({250, kGriglia, 200})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SezioniSenzaCache)
    ->Args({2000, kGriglia, 200})
    ->Args({2000, kFila, 5})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SezioniOracolo)
    ->Args({2000, kGriglia, 5})
    ->Args({2000, kFila, 5})
    ->Args({250, kGriglia, 200})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

}  // namespace
}  // namespace qf17

BENCHMARK_MAIN();
