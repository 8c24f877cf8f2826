#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "verifica/bulloni_slu.h"
#include "verifica/test_bulloni_slu_prova.h"

namespace qf17 {
namespace {

using prova::ProvaBulloniSLU;

// Bolts all in one spot (Ip not above 0.0001) share a force through them equally.
TEST(ForzeBulloniSLU, TuttiInUnPuntoSenzaMomentoParteUguale) {
  struct Caso {
    const char* nome;
    int g;
    int bulloni;
    double Fx, Fy, xP;
    double atteso;
  };
  const Caso casi[] = {
      // Member A, bolt on the line of action: MomG = 0, 1000 / 1.
      {"uno sull'asta", 2, 1, 1000, 0, 0, 1000},
      // Two coincident bolts: 1000 / 2 each.
      {"due coincidenti", 2, 2, 1000, 0, 0, 500},
      // Chord, xP on the bolt: MomG = 0 * -400 - 0 * 300; sqrt(300^2 + 400^2) = 500.
      {"corrente", 1, 1, 300, -400, 60, 500},
      // MomG = (60.00005 - 60) * 1 = 0.00005, below 0.0001: still shared, 1 / 1.
      {"momento minimo", 1, 1, 0, 1, 60.00005, 1},
  };
  ProvaBulloniSLU p;
  for (const Caso& c : casi) {
    const int gruppo = c.g - 1;
    p.nodo.nBull[gruppo] = 0;
    for (int k = 1; k <= c.bulloni; ++k) p.Bullone(gruppo, 60, 50, 16);
    ForzeBulloniSLU(p.sessione, c.g, 2, c.Fx, c.Fy, c.xP);
    for (int k = 1; k <= c.bulloni; ++k) EXPECT_NEAR(p.r.FedBull(gruppo, k, 2), c.atteso, 1e-9);
  }
}

// One bolt with the force off it cannot take the moment: the table keeps the last run's figure.
TEST(ForzeBulloniSLU, BulloneSoloConMomentoTieneIlValorePrecedente) {
  ProvaBulloniSLU p;
  p.Bullone(0, 60, 50, 16);
  // First run, xP on the bolt: sqrt(1000^2 + 500^2) = 1118.034.
  ForzeBulloniSLU(p.sessione, 1, 3, 1000, 500, 60);
  EXPECT_NEAR(p.r.FedBull(0, 1, 3), 1118.034, 0.001);
  // Next run, xP = 90: MomG = (90 - 60) * 500 = 15000; nothing is written.
  ForzeBulloniSLU(p.sessione, 1, 3, 2000, 500, 90);
  EXPECT_NEAR(p.r.FedBull(0, 1, 3), 1118.034, 0.001);
  // MomG = (61 - 60) * 0.0001 = 0.0001: not below 0.0001, so nothing either.
  ForzeBulloniSLU(p.sessione, 1, 3, 0, 0.0001, 61);
  EXPECT_NEAR(p.r.FedBull(0, 1, 3), 1118.034, 0.001);
  // A member's bolt off the line of action: MomG = -(50 - 40) * 1000.
  p.Bullone(1, 60, 40, 16);
  p.r.FedBull(1, 1, 3) = 123;
  ForzeBulloniSLU(p.sessione, 2, 3, 1000, 0, 0);
  EXPECT_EQ(p.r.FedBull(1, 1, 3), 123);
}

TEST(RapportoBullone, ForzaSullaMinoreResistenza) {
  struct Caso {
    const char* nome;
    double FedBull, FvRd, FbRd;
    double atteso;
  };
  const Caso casi[] = {
      {"scarico", 0, 0, -5, 0},             // nothing more is looked at
      {"classe ignota", 10, 0, 2880, 100},  // FvRd = 0
      {"rifollamento negativo", -10, 7720.778, -5, 100},
      {"rifollamento nullo", 10, 7720.778, 0, 100},
      {"rifollamento", -3000, 7720.778, 2880, 3000 / 2880.0},  // 1.041667
      {"taglio", 500, 400, 4320, 1.25},                        // 500 / 400
  };
  ProvaBulloniSLU p;
  for (const Caso& c : casi) {
    p.r.RapportoBull(2, 5, 9) = 7, p.r.FedBull(2, 5, 9) = c.FedBull, p.r.FvRd(2, 5) = c.FvRd;
    p.r.FbRd(2, 5) = c.FbRd;
    RapportoBullone(p.sessione, 2, 5, 9);
    EXPECT_DOUBLE_EQ(p.r.RapportoBull(2, 5, 9), c.atteso) << c.nome;
  }
}

// Through the whole chain: a loaded bolt of an unknown class, and a bolt so near the end that
// kRes goes below zero, both give 100.
// Member A, bolts of 16 at x = 5 and 60 on the line of action y = 50, N = 1000: 500 each.
//   aRes on y, each bolt alone across y: 50 / 48 = 1.04, so 1.
//   kRes on x: bolt 1 least, 2.8 * 5 / 16 - 1.7 = -0.825: FbRd = -0.825 * 2764.8 < 0;
//   bolt 2 greatest, 2.8 * (120 - 60) / 16 - 1.7 = 8.8, so 2.5: FbRd = 2.5 * 2764.8 = 6912.
//   Class 8.8: bolt 2 gives 500 / min(7720.778, 6912) = 0.0723380.
//   Class 12.9: FvRd = 0, 100 for both.
TEST(RapportoBullone, ClasseIgnotaEKResNegativoDanno100) {
  struct Caso {
    const char* classe;
    double rapporto1, rapporto2;
  };
  const Caso casi[] = {{"8.8", 100, 500 / 6912.0}, {"12.9", 100, 100}};
  ProvaBulloniSLU p;
  p.Bullone(1, 5, 50, 16);
  p.Bullone(1, 60, 50, 16);
  for (const Caso& c : casi) {
    p.nodo.vite.Nome = c.classe;
    ResistenzeBulloniSLU(p.sessione, 2);
    ForzeBulloniSLU(p.sessione, 2, 1, 1000, 0, 0);
    EXPECT_NEAR(p.r.FbRd(1, 1), -0.825 * 2764.8, 1e-9);
    for (int k = 1; k <= 2; ++k) RapportoBullone(p.sessione, 1, k, 1);
    EXPECT_DOUBLE_EQ(p.r.RapportoBull(1, 1, 1), c.rapporto1) << c.classe;
    EXPECT_DOUBLE_EQ(p.r.RapportoBull(1, 2, 1), c.rapporto2) << c.classe;
  }
}

// fd = fy / gM up to a gusset of 40 mm, fy40 / gM above: 2350 / 1.05 = 2238.095 and
// 2150 / 1.05 = 2047.619. A stress of 2100 passes the first and fails the second.
TEST(EsitoSLU, ResistenzaDiProgettoSecondoLoSpessore) {
  struct Caso {
    double s;
    std::int16_t ok;
  };
  const Caso casi[] = {{40, 1}, {40.5, 0}};
  ProvaBulloniSLU p;
  p.nodo.nSollAg = 1, p.r.SigProf(1, 1) = 2100, p.r.SigDiff(2, 1) = -2100, p.r.SigSotto[1] = -2100;
  // sqrt(1200^2 + 3 * 1000^2) = sqrt(4440000) = 2107.131
  p.r.SigProf(0, 1) = 1200;
  p.r.TauCorr[1] = 1000;
  for (const Caso& c : casi) {
    p.nodo.Fz_s = c.s;
    EsitoSLU(p.sessione);
    EXPECT_EQ(p.r.OkProf(1, 1), c.ok) << c.s;
    EXPECT_EQ(p.r.OkDiff(2, 1), c.ok) << c.s;
    EXPECT_EQ(p.r.OkSotto[1], c.ok) << c.s;
    EXPECT_EQ(p.r.OkCorr[1], c.ok) << c.s;
  }
}

TEST(EsitoSLU, BandierineDeiBulloni) {
  ProvaBulloniSLU p;
  p.nodo.nSollAg = 2;
  for (int g = 0; g <= 3; ++g) {
    for (int k = 1; k <= 3; ++k) p.Bullone(g, 20.0 * k, 50, 16);
  }
  // Set 1: a ratio of exactly 1.0 passes, just above fails; only the group's own flag falls.
  p.r.RapportoBull(1, 2, 1) = 1.0;
  p.r.RapportoBull(2, 3, 1) = 1.0000001;
  p.r.RapportoBull(0, 1, 1) = 1.5;
  // A slot beyond the group's bolts is not read.
  p.r.RapportoBull(3, 4, 1) = 50;
  // Set 2 starts with every flag down from an earlier run: all are raised first. Its stresses
  // equal fd exactly, which passes.
  const double fd = 2350 / 1.05;
  p.r.SigProf(3, 2) = fd;
  p.r.SigSotto[2] = -fd;
  p.r.OkCorr[2] = p.r.OkSotto[2] = 0;
  for (int g = 0; g <= 3; ++g) {
    p.r.OkTau(g, 2) = p.r.OkRif(g, 2) = p.r.OkProf(g, 2) = p.r.OkDiff(g, 2) = 0;
  }
  EsitoSLU(p.sessione);
  EXPECT_EQ(p.r.OkTau(1, 1), 1);
  EXPECT_EQ(p.r.OkTau(2, 1), 0);
  EXPECT_EQ(p.r.OkTau(0, 1), 0);
  EXPECT_EQ(p.r.OkTau(3, 1), 1);
  for (int g = 0; g <= 3; ++g) {
    // The bearing flag has no check of its own under limit states.
    EXPECT_EQ(p.r.OkRif(g, 1), 1) << g;
    EXPECT_EQ(p.r.OkTau(g, 2), 1) << g;
    EXPECT_EQ(p.r.OkRif(g, 2), 1) << g;
    EXPECT_EQ(p.r.OkProf(g, 2), 1) << g;
    EXPECT_EQ(p.r.OkDiff(g, 2), 1) << g;
  }
  EXPECT_EQ(p.r.OkCorr[2], 1);
  EXPECT_EQ(p.r.OkSotto[2], 1);
}

}  // namespace
}  // namespace qf17
