#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "nodo/nodo.h"
#include "oracolo_sezioni.h"
#include "verifica/profili.h"
#include "verifica/sezioni_cache.h"

namespace qf17 {
namespace {

using prova::ProvaSezioni;

struct BulloneAsta {
  double x, d = 20;
};

struct CasoProfilo {
  const char* nome;
  std::int16_t modo;
  std::vector<BulloneAsta> bulloni;
  double N;
  double sigProf;  // expected, daN/cm2
};

// Angle 60 x 6, area 691, holes 21: one hole takes 21 * 6 = 126 mm2. The single, double and
// opposed sections in tension and compression are those of the sample reports; here the edges.
const CasoProfilo kCasi[] = {
    // Double, 21 apart: still one row, both holes: 691 - 252 = 439, doubled 878 -> 1138.952.
    {"doppia a 21", 1, {{0}, {21}}, 10000, 1138.952},
    // No force: no stress, whatever the section.
    {"scarica", 0, {{0}}, 0, 0},
    // No bolts: the gross section is never checked.
    {"senza bulloni", 0, {}, 10000, 0},
};

TEST(Profili, SezioniNette) {
  ProvaSezioni p;  // one session for all: the result tables are large
  for (const CasoProfilo& c : kCasi) {
    p.nodo.nBull[2] = 0;
    for (const BulloneAsta& b : c.bulloni) p.Bullone(2, b.x, 0, b.d);
    p.nodo.Ast_modo[2] = c.modo;
    p.nodo.SforzoNormale(2, 1) = c.N;
    p.r.SigProf(2, 1) = 12345;  // what an earlier run left
    VerificaProfili(p.sessione, 1);
    EXPECT_NEAR(p.r.SigProf(2, 1), c.sigProf, 0.001) << c.nome;
    EXPECT_TRUE(p.piattaforma.messaggi.empty()) << c.nome;
  }
}

// The row is judged on the hole of the section's own bolt: bolts of 20 (hole 21) at 0 and of
// 12 (hole 13) at 20. Through the first, the second is in its row; through the second, the
// first is not. Area 200, double member compressed:
// - through bolt 1: 200 - 126 - 78 = -4: the message;
// - through bolt 2: 200 - 78 = 122, doubled 244: 100 * 10000 / 244 = 4098.361.
// (The other bolt's hole would give 74 -> 6756.757 and the message on bolt 2.)
TEST(Profili, FilaSecondoIlForoDellaSezione) {
  ProvaSezioni p;
  p.nodo.Aste[1].Area = 200;
  p.nodo.Ast_modo[1] = 1;
  p.Bullone(1, 0, 0, 20);
  p.Bullone(1, 20, 0, 12);
  p.nodo.SforzoNormale(1, 1) = -10000;
  VerificaProfili(p.sessione, 1);
  EXPECT_NEAR(p.r.SigProf(1, 1), -4098.361, 0.001);
  ASSERT_EQ(p.piattaforma.messaggi.size(), 1u);
  const auto& m = p.piattaforma.messaggi[0];
  EXPECT_EQ(m.testo, "Area netta della sezione del profilo LU60x6 nulla");
  EXPECT_EQ(m.titolo, "ATTENZIONE");
  EXPECT_EQ(m.icona, Icona::Attenzione);
  EXPECT_EQ(m.pulsanti, Pulsanti::Ok);
}

// The second moment loses the holes only for a single profile: with I2 = 100 a single angle
// has none left (100 - 285.61 * 126 < 0) and says so; a double one keeps 100 and its stress.
// An I2 of 0 silences any member, even a double one. One message per bolt and per set.
TEST(Profili, MomentoNettoNullo) {
  ProvaSezioni p;
  p.nodo.Aste[1].I2 = 100, p.nodo.Aste[2].I2 = 100, p.nodo.Ast_modo[2] = 1, p.nodo.Aste[3].I2 = 0;
  p.nodo.Ast_modo[3] = 1, p.nodo.Aste[3].Nome = "LU70x7";
  for (int i = 1; i <= 3; ++i) {
    p.Bullone(i, 0, 0);
    p.Bullone(i, 100, 0);
    p.nodo.SforzoNormale(i, 1) = 10000;
    p.nodo.SforzoNormale(i, 2) = 10000;
  }
  CacheSezioni cache;
  VerificaProfili(p.sessione, 1, cache);
  VerificaProfili(p.sessione, 2, cache);
  EXPECT_EQ(p.r.SigProf(1, 1), 0);
  EXPECT_NEAR(p.r.SigProf(2, 2), 884.956, 0.001);
  EXPECT_EQ(p.r.SigProf(3, 2), 0);
  const std::string a = "Area netta della sezione del profilo LU60x6 nulla";
  const std::string c = "Area netta della sezione del profilo LU70x7 nulla";
  EXPECT_EQ(p.Testi(), (std::vector<std::string>{a, a, c, c, a, a, c, c}));
}

// The chord, a pair of channels of area 1700 and web 7, bolts of 20 (hole 21). Members of
// 60 degrees (N 10000) and 120 degrees (N -4000), chord at 0, gusset on the positive side:
// V = -10000 * 0.866025 - (-4000) * 0.866025 = -5196.15;
// H = -10000 * 0.5 - (-4000) * (-0.5) = -7000.
// Bolts 100 apart: 1700 - 147 = 1553, doubled 3106. 100 * 7000 / 3106 = 225.370, with the sign
// of member C's force: -225.370. Tau = 100 * 1.5 * 5196.15 / 3106 = 250.941.
// Members are absent and without bolts: their forces count all the same, their stresses stay 0.
TEST(Profili, Corrente) {
  ProvaSezioni p;
  p.nodo.Corrente.Area = 1700;
  p.nodo.Corrente.a = 7;
  p.Bullone(0, 0, 0);
  p.Bullone(0, 100, 0);
  p.nodo.Ast_teta[1] = GradiInRadianti(60);
  p.nodo.Ast_teta[3] = GradiInRadianti(120);
  for (int i = 1; i <= 3; ++i) p.nodo.Ast_flag[i] = 0;
  p.nodo.SforzoNormale(1, 1) = 10000;
  p.nodo.SforzoNormale(3, 1) = -4000;
  VerificaProfili(p.sessione, 1);
  EXPECT_NEAR(p.r.SigProf(0, 1), -225.370, 0.001);
  EXPECT_NEAR(p.r.TauCorr[1], 250.941, 0.001);
  EXPECT_EQ(p.r.SigProf(1, 1), 0);

  // Member C pulls: the sign follows it, though the chord's H is the same.
  p.nodo.Ast_teta[3] = GradiInRadianti(-60);
  p.nodo.SforzoNormale(3, 1) = 4000;  // V and H unchanged: -4000 at 120 = 4000 at -60
  VerificaProfili(p.sessione, 1);
  EXPECT_NEAR(p.r.SigProf(0, 1), 225.370, 0.001);
  EXPECT_TRUE(p.piattaforma.messaggi.empty());
}

// A chord with no net area: one message per bolt, nothing reported; without bolts both stay 0.
TEST(Profili, CorrenteSenzaAreaNetta) {
  ProvaSezioni p;
  p.nodo.Corrente.Area = 100;  // 100 - 7 * 21 < 0
  p.nodo.Corrente.a = 7;
  p.Bullone(0, 0, 0);
  p.Bullone(0, 100, 0);
  p.nodo.SforzoNormale(1, 1) = 10000;
  p.nodo.Ast_teta[1] = GradiInRadianti(60);
  p.r.TauCorr[1] = 12345;
  VerificaProfili(p.sessione, 1);
  EXPECT_EQ(p.r.SigProf(0, 1), 0);
  EXPECT_EQ(p.r.TauCorr[1], 0);
  ASSERT_EQ(p.piattaforma.messaggi.size(), 2u);
  for (const auto& m : p.piattaforma.messaggi) {
    EXPECT_EQ(m.testo, "Area netta della sezione del corrente nulla");
    EXPECT_EQ(m.titolo, "ATTENZIONE");
    EXPECT_EQ(m.icona, Icona::Attenzione);
  }

  p.nodo.nBull[0] = 0;
  p.r.TauCorr[1] = 12345;
  VerificaProfili(p.sessione, 1);
  EXPECT_EQ(p.r.TauCorr[1], 0);
  EXPECT_EQ(p.piattaforma.messaggi.size(), 2u);
}

}  // namespace
}  // namespace qf17
