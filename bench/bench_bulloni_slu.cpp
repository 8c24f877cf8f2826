// The limit-state bolt checks of the largest node: four groups of 2000 bolts. Resistances by
// the fan search against every pair, the layout checks with their pair loop, and the whole
// bolt stage of a run over 200 load sets.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <random>

#include "nodo/sessione.h"
#include "oracolo_bulloni_slu.h"
#include "piattaforma_muta.h"
#include "verifica/bulloni_slu.h"

namespace qf17 {
namespace {

enum class Disposizione {
  Griglia,   // 200 rows of 10 bolts, 60 along and 40 across: a real large group
  Fila,      // every bolt within 20 mm in x, 50 rows across: the fans hold many bolts
  Nuvola,    // scattered over 1200 x 400
  Diagonale  // one line at 68 degrees: every fan empty but for the bolt itself
};

Profilo Angolare() {
  Profilo p;
  p.Nome = "LU200x20";
  p.Tipo = 1;
  p.h = p.b = 200;
  p.a = p.e = 20;
  p.Area = 7640;
  p.dBarX = p.dBarY = 56.8;
  p.I2 = 2.85e7;
  return p;
}

struct NodoGrande {
  explicit NodoGrande(Disposizione disposizione) {
    Nodo& n = sessione.nodo;
    std::mt19937_64 g(17);
    std::uniform_real_distribution<double> forza(-1e5, 1e5), vicino(0, 20), lungo(0, 1200),
        alto(0, 400);
    sessione.opzioni[25] = 1;
    n.Fz_s = 20;
    n.Fz_a = n.Fz_b = n.Fz_c = n.Fz_d = 3000;
    n.vite.Nome = "8.8";
    n.vite.ftViti = 8000;
    n.vite.gMViti = 1.25;
    n.acciaio.ft = 3600;
    n.acciaio.ft40 = 3400;
    n.acciaio.fy = 2350;
    n.acciaio.fy40 = 2150;
    n.acciaio.gM = 1.05;
    n.Corrente = Angolare();
    for (int i = 1; i <= 3; ++i) {
      n.Aste[i] = Angolare();
      n.Ast_flag[i] = 1;
      n.Ast_modo[i] = static_cast<std::int16_t>(i - 1);
      n.Ast_ins[i] = 12000;
      n.Ast_teta[i] = 0.5 * i;
    }
    for (int gr = 0; gr <= 3; ++gr) {
      n.nBull[gr] = kMaxBulloni;
      for (int k = 1; k <= kMaxBulloni; ++k) {
        double x = 0, y = 0;
        switch (disposizione) {
          case Disposizione::Griglia:
            x = 60.0 * ((k - 1) / 10);
            y = 40.0 * ((k - 1) % 10);
            break;
          case Disposizione::Fila:
            x = vicino(g);
            y = 40.0 * (k % 50);
            break;
          case Disposizione::Nuvola:
            x = lungo(g);
            y = alto(g);
            break;
          case Disposizione::Diagonale:
            x = 0.2 * k;
            y = 0.5 * k;
            break;
        }
        n.xBull(gr, k) = x;
        n.yBull(gr, k) = y;
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

void BM_ResistenzeVentagli(benchmark::State& stato) {
  NodoGrande nodo(static_cast<Disposizione>(stato.range(0)));
  for (auto _ : stato) {
    for (int g = 1; g <= 4; ++g) ResistenzeBulloniSLU(nodo.sessione, g);
    benchmark::DoNotOptimize(nodo.sessione.Risultati().FbRd(3, kMaxBulloni));
  }
}

// Every bolt against every other.
void BM_ResistenzeOracolo(benchmark::State& stato) {
  NodoGrande nodo(static_cast<Disposizione>(stato.range(0)));
  for (auto _ : stato) {
    for (int g = 1; g <= 4; ++g) {
      benchmark::DoNotOptimize(prova::OracoloResistenzeSLU(nodo.sessione, g).FbRd.back());
    }
  }
}

// The layout rules of the four groups, with their pair loop over the pitches.
void BM_ControlliSLU(benchmark::State& stato) {
  NodoGrande nodo(static_cast<Disposizione>(stato.range(0)));
  for (auto _ : stato) {
    for (int g = 1; g <= 4; ++g) ControlliBulloniSLU(nodo.sessione, g);
    benchmark::DoNotOptimize(nodo.piattaforma.messaggi);
  }
}

// The bolt stage of a limit-state run as the driver calls it: the layout and resistances once,
// then per set the members' forces and ratios, the chord's, and the pass flags at the end.
void BM_BulloniSLUDiUnaVerifica(benchmark::State& stato) {
  NodoGrande nodo(static_cast<Disposizione>(stato.range(0)));
  Sessione& s = nodo.sessione;
  const Nodo& n = s.nodo;
  for (auto _ : stato) {
    for (int g = 1; g <= 4; ++g) {
      ControlliBulloniSLU(s, g);
      ResistenzeBulloniSLU(s, g);
    }
    for (int j = 1; j <= n.nSollAg; ++j) {
      for (int i = 1; i <= 3; ++i) {
        ForzeBulloniSLU(s, i + 1, j, n.SforzoNormale(i, j) / (n.Ast_modo[i] != 0 ? 2 : 1), 0, 0);
        for (int k = 1; k <= n.nBull[i]; ++k) RapportoBullone(s, i, k, j);
      }
      ForzeBulloniSLU(s, 1, j, 0.5 * n.SforzoNormale(1, j), 0.25 * n.SforzoNormale(2, j), 6000);
      for (int k = 1; k <= n.nBull[0]; ++k) RapportoBullone(s, 0, k, j);
    }
    EsitoSLU(s);
    benchmark::DoNotOptimize(s.Risultati().RapportoBull(0, 1, 1));
  }
}

// The pass flags of 200 sets over the ratios of the four groups.
void BM_EsitoSLU(benchmark::State& stato) {
  NodoGrande nodo(Disposizione::Griglia);
  for (auto _ : stato) {
    EsitoSLU(nodo.sessione);
    benchmark::DoNotOptimize(nodo.sessione.Risultati().OkTau(0, 1));
  }
}

constexpr int kGriglia = static_cast<int>(Disposizione::Griglia);
constexpr int kFila = static_cast<int>(Disposizione::Fila);
constexpr int kNuvola = static_cast<int>(Disposizione::Nuvola);
constexpr int kDiagonale = static_cast<int>(Disposizione::Diagonale);

BENCHMARK(BM_ResistenzeVentagli)
    ->Arg(kGriglia)
    ->Arg(kFila)
    ->Arg(kNuvola)
    ->Arg(kDiagonale)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ResistenzeOracolo)
    ->Arg(kGriglia)
    ->Arg(kFila)
    ->Arg(kNuvola)
    ->Arg(kDiagonale)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);
BENCHMARK(BM_ControlliSLU)->Arg(kGriglia)->Arg(kFila)->Arg(kNuvola)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EsitoSLU)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_BulloniSLUDiUnaVerifica)
    ->Arg(kGriglia)
    ->Arg(kNuvola)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);

}  // namespace
}  // namespace qf17

BENCHMARK_MAIN();
