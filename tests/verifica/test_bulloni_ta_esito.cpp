#include <gtest/gtest.h>

#include "verifica/bulloni_ta.h"
#include "verifica/test_bulloni_ta_prova.h"

namespace qf17 {
namespace {

using prova::ProvaBulloniTA;

// Below 1.2 d the coefficient is the distance itself, in mm.
TEST(CoefficienteRifollamento, RigheDellaTabella) {
  struct Caso {
    double a, d, k;
  };
  const Caso casi[] = {
      {30, 10, 2.5},    {45, 10, 2.5},      {29.99, 10, 2.0}, {20, 10, 2.0},
      {19.99, 10, 1.4}, {15, 10, 1.4},      {14.99, 10, 1.0}, {12, 10, 1.0},
      {11, 10, 11},     {11.99, 10, 11.99}, {5, 16, 5},
  };
  for (const Caso& c : casi) {
    EXPECT_EQ(CoefficienteRifollamento(c.a, c.d), c.k) << "a " << c.a << " d " << c.d;
  }
}

// Steel 1600 up to 40 mm, 1400 above; bolt shear 1100. One load set unless a case adds one.
struct ProvaEsito : ProvaBulloniTA {
  ProvaEsito() {
    nodo.acciaio.SAmm = 1600, nodo.acciaio.SAmm40 = 1400, nodo.vite.TauAmmViti = 1100;
    nodo.nSollAg = 1;
  }
};

// One figure written into the tables, one flag read back. Bolts: none; member A with bolts of 10
// at x = 50 and 11: a = 11 < 1.2 * 10, k = 11, bearing limit 1600 * 11 = 17600 (with the proper
// coefficient 1.0 it would be 1600); or chord bolts of 16 at x = 50 and 80: 50 >= 3 * 16,
// k = 2.5, limit 4000.
enum class Bulloni { Nessuno, AstaA, Corrente };
enum class Cifra { Rif, Tau, Prof, Diff, Sotto, Ideale };
struct CasoEsito {
  const char* nome;
  Bulloni bulloni;
  std::int16_t caso;
  double spessore;
  Cifra cifra;
  int g, k;
  double valore;
  std::int16_t atteso;
  double tauCorr = 0;  // Ideale: the chord's shear beside SigProf(0)
};

TEST(EsitoTA, LimitiDelleBandierine) {
  using enum Bulloni;
  using enum Cifra;
  const CasoEsito casi[] = {
      {"rifollamento = 1600 * 11", AstaA, 0, 10, Rif, 1, 2, 17600, 1},
      {"rifollamento oltre 1600 * 11", AstaA, 0, 10, Rif, 1, 1, -17600.01, 0},
      {"rifollamento corrente = 1600 * 2.5", Corrente, 0, 10, Rif, 0, 2, 4000, 1},
      {"rifollamento corrente oltre", Corrente, 0, 10, Rif, 0, 2, 4000.01, 0},
      {"taglio = 1100", AstaA, 0, 10, Tau, 1, 2, -1100, 1},
      {"taglio oltre 1100", Corrente, 0, 10, Tau, 0, 1, 1100.01, 0},
      // Load case II: 1.125 * 1600 = 1800 for the steel, the bolt shear stays 1100.
      {"caso II profilo = 1800", Nessuno, 1, 10, Prof, 2, 0, -1800, 1},
      {"caso II profilo oltre 1800", Nessuno, 1, 10, Prof, 2, 0, 1800.01, 0},
      {"caso II taglio non aumenta", Corrente, 1, 10, Tau, 0, 1, 1237.5, 0},
      // Gusset over 40 mm: 1400, and 1.125 * 1400 = 1575 in case II.
      {"spessore 40 diffusione 1600", Nessuno, 0, 40, Diff, 3, 0, 1600, 1},
      {"spessore 41 diffusione 1600", Nessuno, 0, 41, Diff, 3, 0, 1600, 0},
      {"spessore 41 caso II 1575", Nessuno, 2, 41, Diff, 3, 0, 1575, 1},
      // The flags read the stresses as they are: 1600.04 would print as 1600.0.
      {"non arrotondato", Nessuno, 0, 10, Prof, 1, 0, 1600.04, 0},
      // Chord: sqrt(1000^2 + 3 * 700^2) = sqrt(2470000) = 1571.6; with 750: 1639.4.
      {"ideale corrente 1571.6", Nessuno, 0, 10, Ideale, 0, 0, 1000, 1, 700},
      {"ideale corrente 1639.4", Nessuno, 0, 10, Ideale, 0, 0, 1000, 0, -750},
      {"ideale corrente = 1600", Nessuno, 0, 10, Ideale, 0, 0, -1600, 1},
      // The chord's own section is judged by OkCorr only.
      {"corrente non tocca OkProf(0)", Nessuno, 0, 10, Prof, 0, 0, 5000, 1},
      {"sotto il corrente = 1600", Nessuno, 0, 10, Sotto, 0, 0, -1600, 1},
      {"sotto il corrente oltre", Nessuno, 0, 10, Sotto, 0, 0, -1600.01, 0},
      // A group without bolts tests none of the old values its table holds.
      {"gruppo vuoto", Nessuno, 0, 10, Tau, 2, 1, 99999, 1},
  };
  for (const CasoEsito& c : casi) {
    ProvaEsito p;
    RisultatiVerifica& r = p.r;
    if (c.bulloni == AstaA) p.Bullone(1, 50, 40, 10), p.Bullone(1, 11, 40, 10);
    if (c.bulloni == Corrente) p.Bullone(0, 50, 40, 16), p.Bullone(0, 80, 40, 16);
    p.nodo.CasoCarico[1] = c.caso;
    p.nodo.Fz_s = c.spessore;
    std::int16_t* bandierina = nullptr;
    switch (c.cifra) {
      case Rif:
        r.RifBull(c.g, c.k, 1) = c.valore, bandierina = &r.OkRif(c.g, 1);
        break;
      case Tau:
        r.TauBull(c.g, c.k, 1) = c.valore, bandierina = &r.OkTau(c.g, 1);
        break;
      case Prof:
        r.SigProf(c.g, 1) = c.valore, bandierina = &r.OkProf(c.g, 1);
        break;
      case Diff:
        r.SigDiff(c.g, 1) = c.valore, bandierina = &r.OkDiff(c.g, 1);
        break;
      case Sotto:
        r.SigSotto[1] = c.valore, bandierina = &r.OkSotto[1];
        break;
      case Ideale:
        r.SigProf(0, 1) = c.valore, r.TauCorr[1] = c.tauCorr, bandierina = &r.OkCorr[1];
        break;
    }
    EsitoTA(p.sessione);
    EXPECT_EQ(*bandierina, c.atteso) << c.nome;
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
