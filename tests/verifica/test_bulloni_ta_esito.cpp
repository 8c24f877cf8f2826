#include <gtest/gtest.h>

#include <functional>

#include "verifica/bulloni_ta.h"
#include "verifica/test_bulloni_ta_prova.h"

namespace qf17 {
namespace {

using prova::ProvaBulloniTA;

TEST(CoefficienteRifollamento, RigheDellaTabella) {
  struct Caso {
    double a, d, k;
  };
  const Caso casi[] = {
      {30, 10, 2.5},
      {45, 10, 2.5},
      {29.99, 10, 2.0},
      {20, 10, 2.0},
      {19.99, 10, 1.4},
      {15, 10, 1.4},
      {14.99, 10, 1.0},
      {12, 10, 1.0},
      // Below 1.2 d the coefficient is the distance itself, in mm.
      {11, 10, 11},
      {11.99, 10, 11.99},
      {5, 16, 5},
  };
  for (const Caso& c : casi) {
    EXPECT_EQ(CoefficienteRifollamento(c.a, c.d), c.k) << "a " << c.a << " d " << c.d;
  }
}

// Steel 1600 up to 40 mm, 1400 above; bolt shear 1100. One load set unless a case adds one.
struct ProvaEsito : ProvaBulloniTA {
  ProvaEsito() {
    nodo.acciaio.SAmm = 1600;
    nodo.acciaio.SAmm40 = 1400;
    nodo.vite.TauAmmViti = 1100;
    nodo.nSollAg = 1;
  }
};

struct CasoEsito {
  const char* nome;
  std::function<void(ProvaEsito&)> prepara;
  std::function<std::int16_t(const RisultatiVerifica&)> bandierina;
  std::int16_t atteso;
};

TEST(EsitoTA, LimitiDelleBandierine) {
  using R = const RisultatiVerifica&;
  // Member A with bolts of 10 at x = 50 and 11: a = 11 < 1.2 * 10, k = 11, bearing limit
  // 1600 * 11 = 17600 (with the proper coefficient 1.0 it would be 1600).
  auto membroA = [](ProvaEsito& p) {
    p.Bullone(1, 50, 40, 10);
    p.Bullone(1, 11, 40, 10);
  };
  // Chord bolts of 16 at x = 50 and 80: 50 >= 3 * 16, k = 2.5, limit 4000.
  auto corrente = [](ProvaEsito& p) {
    p.Bullone(0, 50, 40, 16);
    p.Bullone(0, 80, 40, 16);
  };
  const CasoEsito casi[] = {
      {"rifollamento = 1600 * 11",
       [&](ProvaEsito& p) {
         membroA(p);
         p.r.RifBull(1, 2, 1) = 17600;
       },
       [](R r) { return r.OkRif(1, 1); }, 1},
      {"rifollamento oltre 1600 * 11",
       [&](ProvaEsito& p) {
         membroA(p);
         p.r.RifBull(1, 1, 1) = -17600.01;
       },
       [](R r) { return r.OkRif(1, 1); }, 0},
      {"rifollamento corrente = 1600 * 2.5",
       [&](ProvaEsito& p) {
         corrente(p);
         p.r.RifBull(0, 2, 1) = 4000;
       },
       [](R r) { return r.OkRif(0, 1); }, 1},
      {"rifollamento corrente oltre",
       [&](ProvaEsito& p) {
         corrente(p);
         p.r.RifBull(0, 2, 1) = 4000.01;
       },
       [](R r) { return r.OkRif(0, 1); }, 0},
      {"taglio = 1100",
       [&](ProvaEsito& p) {
         membroA(p);
         p.r.TauBull(1, 2, 1) = -1100;
       },
       [](R r) { return r.OkTau(1, 1); }, 1},
      {"taglio oltre 1100",
       [&](ProvaEsito& p) {
         corrente(p);
         p.r.TauBull(0, 1, 1) = 1100.01;
       },
       [](R r) { return r.OkTau(0, 1); }, 0},
      // Load case II: 1.125 * 1600 = 1800 for the steel, the bolt shear stays 1100.
      {"caso II profilo = 1800",
       [](ProvaEsito& p) {
         p.nodo.CasoCarico[1] = 1;
         p.r.SigProf(2, 1) = -1800;
       },
       [](R r) { return r.OkProf(2, 1); }, 1},
      {"caso II profilo oltre 1800",
       [](ProvaEsito& p) {
         p.nodo.CasoCarico[1] = 1;
         p.r.SigProf(2, 1) = 1800.01;
       },
       [](R r) { return r.OkProf(2, 1); }, 0},
      {"caso II taglio non aumenta",
       [&](ProvaEsito& p) {
         corrente(p);
         p.nodo.CasoCarico[1] = 1;
         p.r.TauBull(0, 1, 1) = 1237.5;
       },
       [](R r) { return r.OkTau(0, 1); }, 0},
      // Gusset over 40 mm: 1400, and 1.125 * 1400 = 1575 in case II.
      {"spessore 40 diffusione 1600",
       [](ProvaEsito& p) {
         p.nodo.Fz_s = 40;
         p.r.SigDiff(3, 1) = 1600;
       },
       [](R r) { return r.OkDiff(3, 1); }, 1},
      {"spessore 41 diffusione 1600",
       [](ProvaEsito& p) {
         p.nodo.Fz_s = 41;
         p.r.SigDiff(3, 1) = 1600;
       },
       [](R r) { return r.OkDiff(3, 1); }, 0},
      {"spessore 41 caso II 1575",
       [](ProvaEsito& p) {
         p.nodo.Fz_s = 41;
         p.nodo.CasoCarico[1] = 2;
         p.r.SigDiff(3, 1) = 1575;
       },
       [](R r) { return r.OkDiff(3, 1); }, 1},
      // The flags read the stresses as they are: 1600.04 would print as 1600.0.
      {"non arrotondato", [](ProvaEsito& p) { p.r.SigProf(1, 1) = 1600.04; },
       [](R r) { return r.OkProf(1, 1); }, 0},
      // Chord: sqrt(1000^2 + 3 * 700^2) = sqrt(2470000) = 1571.6; with 750: 1639.4.
      {"ideale corrente 1571.6",
       [](ProvaEsito& p) {
         p.r.SigProf(0, 1) = 1000;
         p.r.TauCorr[1] = 700;
       },
       [](R r) { return r.OkCorr[1]; }, 1},
      {"ideale corrente 1639.4",
       [](ProvaEsito& p) {
         p.r.SigProf(0, 1) = 1000;
         p.r.TauCorr[1] = -750;
       },
       [](R r) { return r.OkCorr[1]; }, 0},
      {"ideale corrente = 1600", [](ProvaEsito& p) { p.r.SigProf(0, 1) = -1600; },
       [](R r) { return r.OkCorr[1]; }, 1},
      // The chord's own section is judged by OkCorr only.
      {"corrente non tocca OkProf(0)", [](ProvaEsito& p) { p.r.SigProf(0, 1) = 5000; },
       [](R r) { return r.OkProf(0, 1); }, 1},
      {"sotto il corrente = 1600", [](ProvaEsito& p) { p.r.SigSotto[1] = -1600; },
       [](R r) { return r.OkSotto[1]; }, 1},
      {"sotto il corrente oltre", [](ProvaEsito& p) { p.r.SigSotto[1] = -1600.01; },
       [](R r) { return r.OkSotto[1]; }, 0},
      // A group without bolts tests none of the old values its table holds.
      {"gruppo vuoto", [](ProvaEsito& p) { p.r.TauBull(2, 1, 1) = 99999; },
       [](R r) { return r.OkTau(2, 1); }, 1},
  };
  for (const CasoEsito& c : casi) {
    ProvaEsito p;
    c.prepara(p);
    EsitoTA(p.sessione);
    EXPECT_EQ(c.bandierina(p.r), c.atteso) << c.nome;
  }
}

TEST(EsitoTA, BandierineRialzateAdOgniSetEdOltreNonToccate) {
  ProvaEsito p;
  p.nodo.nSollAg = 2;
  for (int j = 1; j <= 3; ++j) {
    p.r.OkCorr[j] = p.r.OkSotto[j] = 0;
    for (int g = 0; g <= 3; ++g) {
      p.r.OkTau(g, j) = p.r.OkRif(g, j) = p.r.OkProf(g, j) = p.r.OkDiff(g, j) = 0;
    }
  }
  p.r.SigProf(1, 2) = 2000;  // only OkProf(1, 2) falls
  EsitoTA(p.sessione);
  for (int j = 1; j <= 2; ++j) {
    EXPECT_EQ(p.r.OkCorr[j], 1);
    EXPECT_EQ(p.r.OkSotto[j], 1);
    for (int g = 0; g <= 3; ++g) {
      EXPECT_EQ(p.r.OkTau(g, j), 1);
      EXPECT_EQ(p.r.OkRif(g, j), 1);
      EXPECT_EQ(p.r.OkProf(g, j), (g == 1 && j == 2) ? 0 : 1) << g << " " << j;
      EXPECT_EQ(p.r.OkDiff(g, j), 1);
    }
  }
  EXPECT_EQ(p.r.OkCorr[3], 0);
  EXPECT_EQ(p.r.OkTau(1, 3), 0);
}

// One bolt alone shares nothing: with the tables at zero the checks pass.
TEST(EsitoTA, BulloneSoloConTabelleAZeroPassa) {
  ProvaEsito p;
  p.Bullone(1, 60, 40, 16);
  BulloniTA(p.sessione, 2, 1, 100000, 0, 0);
  EsitoTA(p.sessione);
  EXPECT_EQ(p.r.TauBull(1, 1, 1), 0);
  EXPECT_EQ(p.r.OkTau(1, 1), 1);
  EXPECT_EQ(p.r.OkRif(1, 1), 1);
}

}  // namespace
}  // namespace qf17
