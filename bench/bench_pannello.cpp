// The panel and the bolt editor refreshed on the largest node the model holds: 2000 sections in
// the library (the combos' lists), three double members, four groups of 2000 bolts, 200 load
// sets. The desktop program refreshes after every value committed, so each must stay well under
// a millisecond.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "bulloni/form_bulloni.h"
#include "nodo/panel/ins_dati.h"
#include "nodo/panel/pannello.h"
#include "nodo/sessione.h"
#include "piattaforma_muta.h"

namespace qf17 {
namespace {

struct NodoGrande {
  NodoGrande() {
    LibreriaProfili& l = s.profili;
    for (int r = 1; r <= kMaxProfili; ++r) {
      Profilo& p = l.Profili[r];
      p.Nome = (r % 2 ? "LU" : "UPN") + std::to_string(r);
      p.Tipo = static_cast<std::int16_t>(r % 2);
      p.h = p.b = 100;
      p.a = p.e = 10;
      p.Area = 1900;
    }
    l.NumProfili1 = 0;
    l.NumProfiliTot = kMaxProfili;
    s.materiali.Acciai[1].Nome = "S 235";
    s.materiali.Acciai[1].SAmm = 1600;
    s.materiali.NumAcciai = 1;
    s.unita.FatForze = 1;
    s.opzioni[25] = 1;
    Nodo& n = s.nodo;
    n.Corrente = l.Profili[kMaxProfili];
    n.acciaio = s.materiali.Acciai[1];
    n.Fz_a = n.Fz_b = n.Fz_c = n.Fz_d = 500;
    for (int i = 1; i <= kMaxAste; ++i) {
      n.Aste[i] = l.Profili[2 * i + 1];
      n.Ast_flag[i] = n.Ast_flag[i + 3] = 1;
      n.Ast_modo[i] = 1;
      n.Ast_ins[i] = 1000;
    }
    for (int g = 0; g <= 3; ++g) {
      n.nBull[g] = kMaxBulloni;
      for (int k = 1; k <= kMaxBulloni; ++k) {
        n.xBull(g, k) = 10 * (k % 100), n.yBull(g, k) = 10 * (k / 100), n.FiBull(g, k) = 16;
      }
    }
    n.nSollAg = kMaxSollecitazioni;
    for (int j = 1; j <= n.nSollAg; ++j) n.NomeSa[j] = "Soll " + std::to_string(j);
    AggiornaPannello(p, s);  // the combos' lists are made once, not at each refresh
  }
  PiattaformaMuta piattaforma;
  std::unique_ptr<Sessione> sessione = std::make_unique<Sessione>(piattaforma);
  Sessione& s = *sessione;
  InsDati p;
};

void BM_AggiornaPannello(benchmark::State& stato) {
  NodoGrande g;
  for (auto _ : stato) {
    AggiornaPannello(g.p, g.s);
    benchmark::DoNotOptimize(g.p.c("geomp", 5).testo.data());
  }
}
BENCHMARK(BM_AggiornaPannello)->Unit(benchmark::kMicrosecond);

// A gusset size typed and committed, then every box written again.
void BM_CasellaConfermata(benchmark::State& stato) {
  NodoGrande g;
  int i = 0;
  for (auto _ : stato) {
    g.p.c("FzTxt", 0).testo = std::to_string(400 + (++i % 7));
    TbValuta(g.p, g.s.nodo, g.s.unita, {FamigliaCasella::FzTxt, 0});
    pnn1_aggiorna_textbox(g.p, g.s.nodo, g.s.unita, g.s.piattaforma);
  }
}
BENCHMARK(BM_CasellaConfermata)->Unit(benchmark::kMicrosecond);

// The editor of a 2000-bolt group: the list moved and the preview drawn again.
void BM_EditorBulloni(benchmark::State& stato) {
  NodoGrande g;
  auto form =
      ApriFormBulloni(g.s.nodo, g.s.opzioni, g.piattaforma, 2, CaselleDalNodo(g.s.nodo), 600, 300);
  int valore = 0;
  for (auto _ : stato) {
    Scroll1Cambia(*form, g.s.nodo, 1 + (++valore % 1996));
    DisegnaBp(*form, g.s.nodo);
    benchmark::DoNotOptimize(form->anteprima.data());
  }
}
BENCHMARK(BM_EditorBulloni)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace qf17

BENCHMARK_MAIN();
