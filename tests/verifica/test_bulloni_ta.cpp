#include <gtest/gtest.h>

#include "verifica/bulloni_ta.h"
#include "verifica/test_bulloni_ta_prova.h"

namespace qf17 {
namespace {

using prova::ProvaBulloniTA;

// Two bolts of 16 on member A (channel: bolted height 120 - 2 * 10 = 100, line of action at
// 50), N = 1000 along the member.
TEST(BulloniTA, DueBulloniSullAsseSiDividonoLaForza) {
  ProvaBulloniTA p;
  p.Bullone(1, 30, 50, 16);
  p.Bullone(1, 90, 50, 16);
  BulloniTA(p.sessione, 2, 1, 1000, 0, 0);
  // xG = 60, yG = 50 = yP: MomG = 0, each bolt R = 1000 / 2 = 500.
  // TauBull = 100 * 500 / (pi * 16^2 / 4) = 50000 / 201.0619 = 248.680
  // RifBull = 100 * max(500 / 10 / 16, 500 / 6 / 16) = 100 * 5.20833 = 520.833
  for (int k = 1; k <= 2; ++k) {
    EXPECT_NEAR(p.r.TauBull(1, k, 1), 248.680, 0.001);
    EXPECT_NEAR(p.r.RifBull(1, k, 1), 520.833, 0.001);
  }
  EXPECT_TRUE(p.piattaforma.messaggi.empty());
}

TEST(BulloniTA, BulloniFuoriAsseAggiungonoIlMomento) {
  ProvaBulloniTA p;
  p.Bullone(1, 30, 40, 16);
  p.Bullone(1, 90, 40, 16);
  BulloniTA(p.sessione, 2, 7, 1000, 0, 0);
  // yG = 40: MomG = -(50 - 40) * 1000 = -10000; Ip = 30^2 + 30^2 = 1800.
  // FxB = 500, FyB = (-10000 / 1800) * (-/+30) = +/-166.667 on either bolt.
  // R = sqrt(500^2 + 166.667^2) = sqrt(277777.8) = 527.046
  // TauBull = 52704.6 / 201.0619 = 262.131; RifBull = 100 * 527.046 / 6 / 16 = 549.007
  for (int k = 1; k <= 2; ++k) {
    EXPECT_NEAR(p.r.TauBull(1, k, 7), 262.131, 0.001);
    EXPECT_NEAR(p.r.RifBull(1, k, 7), 549.007, 0.001);
  }
}

TEST(BulloniTA, BaricentroPesatoMaMomentoPolareNo) {
  ProvaBulloniTA p;
  p.Bullone(1, 30, 40, 20);
  p.Bullone(1, 90, 40, 10);
  BulloniTA(p.sessione, 2, 1, 1000, 0, 0);
  // Areas 100 pi and 25 pi: xG = (30 * 100 + 90 * 25) / 125 = 42, yG = 40.
  // Ip = 12^2 + 48^2 = 2448 (an area-weighted one would differ). MomG = -10000.
  // Bolt 1: FyB = (-10000 / 2448) * (-12) = 49.020, R = sqrt(500^2 + 49.020^2) = 502.397,
  //   TauBull = 100 R / (100 pi) = 159.918, RifBull = 100 R / 6 / 20 = 418.664.
  // Bolt 2: FyB = (-10000 / 2448) * 48 = -196.078, R = 537.072,
  //   TauBull = 100 R / (25 pi) = 683.822, RifBull = 100 R / 6 / 10 = 895.121.
  EXPECT_NEAR(p.r.TauBull(1, 1, 1), 159.918, 0.001);
  EXPECT_NEAR(p.r.RifBull(1, 1, 1), 418.664, 0.001);
  EXPECT_NEAR(p.r.TauBull(1, 2, 1), 683.822, 0.001);
  EXPECT_NEAR(p.r.RifBull(1, 2, 1), 895.121, 0.001);
}

// The chord: forces at xP, line of action at mid height of its bolted rectangle.
TEST(BulloniTA, CorrenteConForzeNelPiano) {
  ProvaBulloniTA p;
  p.nodo.Corrente.h = 200;  // bolted height 180, yP = 90
  p.nodo.Corrente.a = 8;
  for (double y : {60.0, 100.0}) {
    p.Bullone(0, 80, y, 20);
    p.Bullone(0, 120, y, 20);
  }
  BulloniTA(p.sessione, 1, 3, 1000, 500, 130);
  // xG = 100, yG = 80; MomG = (130 - 100) * 500 - (90 - 80) * 1000 = 5000;
  // Ip = 4 * (20^2 + 20^2) = 3200, MomG / Ip = 1.5625.
  // Bolt 1 (80, 60): FxB = 250 + 1.5625 * 20 = 281.25, FyB = 125 - 1.5625 * 20 = 93.75,
  //   R = sqrt(87890.625) = 296.464.
  // Bolt 4 (120, 100): FxB = 218.75, FyB = 156.25, R = sqrt(72265.625) = 268.823.
  // TauBull = 100 R / (100 pi) = R / pi. Gusset both sides: b1 = 2 R / 10 / 20 = R / 100,
  // web b2 = R / 8 / 20: RifBull = 100 * R / 100 = R.
  EXPECT_NEAR(p.r.TauBull(0, 1, 3), 296.464 / 3.14159265358979, 0.001);
  EXPECT_NEAR(p.r.RifBull(0, 1, 3), 296.464, 0.001);
  EXPECT_NEAR(p.r.TauBull(0, 4, 3), 268.823 / 3.14159265358979, 0.001);
  EXPECT_NEAR(p.r.RifBull(0, 4, 3), 268.823, 0.001);
}

TEST(BulloniTA, RifollamentoDelFazzolettoSecondoIlModo) {
  // Two bolts of 16 on the axis, R = 500, gusset 4: b2 = 500 / 6 / 16 = 5.208.
  struct Caso {
    int modo;
    double rif;  // 100 * max(b1, b2)
  };
  const Caso casi[] = {{0, 781.25},   // b1 = 500 / 4 / 16 = 7.8125
                       {1, 1562.5},   // b1 = 2 * 500 / 4 / 16 = 15.625
                       {2, 1562.5}};  // opposed profiles too
  for (const Caso& c : casi) {
    ProvaBulloniTA p;
    p.nodo.Fz_s = 4;
    p.nodo.Ast_modo[2] = static_cast<std::int16_t>(c.modo);
    p.Bullone(2, 30, 50, 16);
    p.Bullone(2, 90, 50, 16);
    BulloniTA(p.sessione, 3, 1, 1000, 0, 0);
    EXPECT_NEAR(p.r.RifBull(2, 1, 1), c.rif, 1e-9) << "modo " << c.modo;
  }
}

TEST(BulloniTA, BulloniTuttiInUnPuntoLascianoLeTabelle) {
  struct Caso {
    const char* nome;
    std::vector<double> x;
  };
  // Two bolts 0.01 apart: Ip = 2 * 0.005^2 = 0.00005, not above 0.0001.
  const Caso casi[] = {{"uno", {60}}, {"coincidenti", {60, 60}}, {"vicinissimi", {60, 60.01}}};
  for (const Caso& c : casi) {
    ProvaBulloniTA p;
    for (double x : c.x) p.Bullone(1, x, 40, 16);
    for (int k = 1; k <= 2; ++k) {
      p.r.TauBull(1, k, 1) = 123;
      p.r.RifBull(1, k, 1) = 456;
    }
    BulloniTA(p.sessione, 2, 1, 1000, 0, 0);
    EXPECT_EQ(p.r.TauBull(1, 1, 1), 123) << c.nome;
    EXPECT_EQ(p.r.RifBull(1, 1, 1), 456) << c.nome;
    EXPECT_TRUE(p.piattaforma.messaggi.empty()) << c.nome;
  }
}

TEST(BulloniTA, CorrenteSaldatoOGruppoVuotoNonFannoNulla) {
  ProvaBulloniTA p;
  p.nodo.Corrente.Tipo = 2;
  p.Bullone(0, 30, 40, 16);
  p.Bullone(0, 90, 40, 16);
  p.r.TauBull(0, 1, 1) = 7;
  BulloniTA(p.sessione, 1, 1, 1000, 500, 60);
  BulloniTA(p.sessione, 4, 1, 1000, 0, 0);  // member C has no bolt
  EXPECT_EQ(p.r.TauBull(0, 1, 1), 7);
  EXPECT_TRUE(p.piattaforma.messaggi.empty());
}

TEST(BulloniTA, GruppoSenzaAreaAvvisaColNumeroDelGruppo) {
  for (int g : {1, 3}) {
    ProvaBulloniTA p;
    p.r.ControlloGeometricoTA = 1;  // the layout checks are not reached either
    p.Bullone(g - 1, 30, 40, 0);
    p.Bullone(g - 1, 200, 40, 0);
    p.r.TauBull(g - 1, 1, 1) = 9;
    BulloniTA(p.sessione, g, 1, 1000, 0, 0);
    ASSERT_EQ(p.piattaforma.messaggi.size(), 1u);
    const auto& m = p.piattaforma.messaggi[0];
    EXPECT_EQ(m.testo, "Area bulloni nulla nell'asta " + std::to_string(g));
    EXPECT_EQ(m.titolo, "QF17");
    EXPECT_EQ(m.pulsanti, Pulsanti::Ok);
    EXPECT_EQ(m.icona, Icona::Nessuna);
    EXPECT_EQ(p.r.TauBull(g - 1, 1, 1), 9);
  }
}

TEST(BulloniTA, AreaBullonataPerGruppoETipo) {
  ProvaBulloniTA p;
  Profilo angolare = ProvaBulloniTA::Canale();
  angolare.Tipo = 1, angolare.h = 100, angolare.e = 8, angolare.dBarX = 28.5;
  p.nodo.Aste[2] = angolare, p.nodo.Ast_ins[2] = 95.5, p.nodo.Fz_a = 50, p.nodo.Fz_b = 40.5;
  p.nodo.Fz_c = 60, p.nodo.Fz_d = 0.25;

  struct Caso {
    int g;
    double LArea, HArea, yP;
  };
  const Caso casi[] = {{1, 150.75, 100, 50},  // chord channel: 50 + 40.5 + 60 + 0.25; 120 - 2 * 10
                       {2, 120, 100, 50},     // member channel
                       {3, 95.5, 92, 71.5}};  // member angle: 100 - 8; 100 - 28.5
  for (const Caso& c : casi) {
    const AreaBullonata a = AreaBullonataTA(p.nodo, c.g);
    EXPECT_EQ(a.LArea, c.LArea) << c.g;
    EXPECT_EQ(a.HArea, c.HArea) << c.g;
    EXPECT_EQ(a.yP, c.yP) << c.g;
  }

  p.nodo.Corrente = angolare;
  const AreaBullonata corrente = AreaBullonataTA(p.nodo, 1);
  EXPECT_EQ(corrente.HArea, 92);
  EXPECT_EQ(corrente.yP, 71.5);

  // The chord's length is what the gusset boxes show: 0.1 + 0.2 is shown, and read, as 0.3.
  p.nodo.Fz_a = 0.1 + 0.2;
  p.nodo.Fz_b = p.nodo.Fz_c = p.nodo.Fz_d = 0;
  EXPECT_EQ(AreaBullonataTA(p.nodo, 1).LArea, 0.3);
}

// The largest node: 4 groups of 2000 bolts under 200 sets, in two rows either side of the
// line of action, so that each bolt takes N / 2000.
TEST(BulloniTA, NodoPiuGrande) {
  ProvaBulloniTA p;
  p.nodo.Corrente.a = 6;
  for (int g = 0; g <= 3; ++g) {
    for (int k = 1; k <= 2000; ++k) p.Bullone(g, 10 + (k - 1) / 2 * 0.1, k % 2 ? 30 : 70, 16);
  }
  for (int j = 1; j <= 200; ++j) {
    for (int g = 1; g <= 4; ++g) BulloniTA(p.sessione, g, j, 2000 * 500.0, 0, 0);
  }
  // R = 500 as in the two-bolt example: TauBull = 248.680 for every bolt.
  EXPECT_NEAR(p.r.TauBull(0, 2000, 200), 248.680, 0.001);
  EXPECT_NEAR(p.r.TauBull(3, 1, 1), 248.680, 0.001);
  EXPECT_NEAR(p.r.RifBull(3, 1999, 100), 520.833, 0.001);
}

}  // namespace
}  // namespace qf17
