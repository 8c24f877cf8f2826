#include <gtest/gtest.h>

#include "verifica/bulloni_ta.h"
#include "verifica/test_bulloni_ta_prova.h"

namespace qf17 {
namespace {

using prova::ProvaBulloniTA;

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

// The chord's length is what the gusset boxes show: 0.1 + 0.2 is shown, and read, as 0.3.
TEST(BulloniTA, LunghezzaDelCorrenteComeMostrata) {
  ProvaBulloniTA p;
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
  // R = 500: TauBull = 100 R / (pi 16^2 / 4) = 248.680, RifBull = 100 R / 6 / 16 = 520.833.
  EXPECT_NEAR(p.r.TauBull(0, 2000, 200), 248.680, 0.001);
  EXPECT_NEAR(p.r.TauBull(3, 1, 1), 248.680, 0.001);
  EXPECT_NEAR(p.r.RifBull(3, 1999, 100), 520.833, 0.001);
}

}  // namespace
}  // namespace qf17
