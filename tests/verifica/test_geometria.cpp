// Chord angle, gusset side, the gusset outline and the small angle helpers of the node geometry.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "test_geometria_prova.h"
#include "verifica/comuni.h"

namespace qf17 {
namespace {

using prova::NodoGeometria;

TEST(GeometriaAngoloCorrente, SiRiduceAlMezzoGiroPiuVicinoAZeroInUnPassoSolo) {
  const double pi = 3.14159265358979;
  struct Caso {
    double teta, atteso;
  } casi[] = {
      {3.0, 3.0 - pi},    // |3| > |3 - pi| = 0.14159
      {1.5, 1.5},         // |1.5| < |1.5 - pi| = 1.64159
      {-3.0, -3.0 + pi},  // |-3| > |-3 + pi|
      {-1.5, -1.5},      {0.0, 0.0},
      {7.0, 7.0 - pi},  // one half turn only: 3.85841 stays beyond pi/2
  };
  for (const Caso& c : casi) {
    NodoGeometria g;
    g.n.Cor_teta = c.teta;
    g.Esegui();
    EXPECT_EQ(g.n.Cor_teta, c.atteso) << c.teta;
  }
}

TEST(GeometriaPosizioneFazzoletto, DecideLUltimaAstaPresente) {
  const double nessuna = std::numeric_limits<double>::quiet_NaN();
  struct Caso {
    double corrente;  // radians
    double teta[3];   // degrees, NaN = member absent
    int atteso;
  } casi[] = {
      // d = 45 deg, q = 0.25: Int(q) / 2 = 0 = Int(q / 2) -> -1 (gusset below the chord)
      {0, {45, nessuna, nessuna}, -1},
      // q = -0.25: Int(q) / 2 = -0.5, Int(-0.125) = -1, they differ -> +1
      {0, {-45, nessuna, nessuna}, 1},
      // q = 200 / 180 = 1.11: Int 1, 1 / 2 = 0.5, Int(0.556) = 0 -> +1
      {0, {200, nessuna, nessuna}, 1},
      // A below, C above: C decides -> +1; and the other way round -> -1
      {0, {45, nessuna, -45}, 1},
      {0, {-45, 90, 135}, -1},
      // d = 45 deg - 1 rad = -0.2146 rad -> q < 0 -> +1
      {1.0, {45, nessuna, nessuna}, 1},
      {0, {nessuna, nessuna, nessuna}, 0},
  };
  for (const Caso& c : casi) {
    NodoGeometria g;
    g.n.Cor_teta = c.corrente;
    for (int i = 1; i <= 3; ++i) {
      if (!std::isnan(c.teta[i - 1])) g.Asta(i, c.teta[i - 1], 0);
    }
    EXPECT_EQ(Posizione_fazzoletto_(g.n), c.atteso) << c.teta[0] << " " << c.teta[2];
    g.Esegui();
    EXPECT_EQ(g.n.PosFazzoletto, c.atteso);
  }
}

TEST(GeometriaPosizioneFazzoletto, SenzaAsteIlFazzolettoCollassaSullaRettaOff) {
  NodoGeometria g;
  g.n.Corrente.Tipo = 1;  // an angle: Off = (50 - 20) * P, which P = 0 makes 0 as well
  g.Esegui();
  ASSERT_EQ(g.n.PosFazzoletto, 0);
  for (int k = 1; k <= 6; ++k) {
    EXPECT_EQ(g.Lato(k).YP[1], 0.0) << k;
    EXPECT_EQ(g.Lato(k).YP[2], 0.0) << k;
  }
  // Sides 1 and 5 (across the chord) shrink to a point; the others lie on y = 0.
  const int tipi[7] = {0, 0, 1, 1, 1, 0, 1};
  for (int k = 1; k <= 6; ++k) EXPECT_EQ(g.Lato(k).TipoLato, tipi[k]) << k;
  EXPECT_EQ(g.Lato(3).M, 0.0);
  EXPECT_EQ(g.Lato(3).Q, 0.0);
}

TEST(GeometriaDirezione, VerticaleConLaParteInteraPerDifetto) {
  const double pi = 3.14159265358979;
  struct Caso {
    double t;
    bool verticale;
  } casi[] = {
      {GradiInRadianti(90), true},    // 2t/pi = 1, t/pi = 0.5
      {GradiInRadianti(-90), true},   // 2t/pi = -1, t/pi = -0.5
      {GradiInRadianti(270), true},   // 2t/pi = 3
      {pi / 2 + 1e-6, true},          // 2t/pi = 1.0000006, within 0.0001 above 1
      {pi / 2 - 1e-6, false},         // 2t/pi = 0.9999994: its integer part is 0, not 1
      {0.0, false},                   // t/pi is an integer: level
      {GradiInRadianti(180), false},  // likewise
      {GradiInRadianti(45), false},
  };
  for (const Caso& c : casi) EXPECT_EQ(DirezioneVerticale(c.t), c.verticale) << c.t;
}

TEST(GeometriaDirezione, AngoloSegmento) {
  const double pi = 3.14159265358979;
  struct Caso {
    double x2, y2, atteso;
  } casi[] = {
      {0, 5, pi / 2},
      {0.00005, -5, -pi / 2},  // run within the tolerance: vertical, by the sign of the rise
      {0, 0, pi / 2},          // no length at all: counted as rising
      {3, 0.00005, 0},
      {-3, 0, pi},
      {2, 1, std::atan(0.5)},
      // Running left the formula is atan(dy / |dx|) + sign(dy) pi / 2, not the true direction
      // (pi - atan(0.5) = 2.6779): 0.4636 + 1.5708 = 2.0344, and -0.4636 - 1.5708 = -2.0344.
      {-2, 1, std::atan(0.5) + pi / 2},
      {-2, -1, std::atan(-0.5) - pi / 2},
  };
  for (const Caso& c : casi) EXPECT_EQ(AngoloSegmento(0, 0, c.x2, c.y2), c.atteso) << c.x2;
}

TEST(GeometriaLati, TipiDeiLatiEValoriDelTelaio) {
  NodoGeometria g;
  g.Asta(1, 45, 0);
  g.Esegui();
  // Corners of the hand-built node (see the fixture), P = -1, Off = 0 for a channel.
  struct Atteso {
    int tipo;
    double x1, y1, x2, y2, M, Q, XV;
  } attesi[7] = {{},
                 {2, 300, -50, 300, -150, 0, 0, 300},
                 // dY / dX = -100 / -100 = 1; Q = -150 - 1 * 300 = -450
                 {1, 300, -150, 200, -250, 1, -450, 0},
                 {1, 200, -250, -200, -250, 0, -250, 0},
                 // 100 / -100 = -1; Q = -250 - (-1)(-200) = -450
                 {1, -200, -250, -300, -150, -1, -450, 0},
                 {2, -300, -150, -300, -50, 0, 0, -300},
                 {1, -300, -50, 300, -50, 0, -50, 0}};
  for (int k = 1; k <= 6; ++k) {
    const LatoFazzoletto& l = g.Lato(k);
    const Atteso& a = attesi[k];
    EXPECT_EQ(l.TipoLato, a.tipo) << k;
    EXPECT_EQ(l.XP[1], a.x1) << k;
    EXPECT_EQ(l.YP[1], a.y1) << k;
    EXPECT_EQ(l.XP[2], a.x2) << k;
    EXPECT_EQ(l.YP[2], a.y2) << k;
    EXPECT_EQ(l.M, a.M) << k;
    EXPECT_EQ(l.Q, a.Q) << k;
    EXPECT_EQ(l.XV, a.XV) << k;
  }
}

TEST(GeometriaLati, LatiSenzaLunghezza) {
  struct Caso {
    const char* nome;
    double c, d, g, h, e;
    int tipi[7];
  } casi[] = {
      // The corner cut gone: C2 = C3 = (200, -150).
      {"d = h = 0", 200, 0, 100, 0, 100, {0, 2, 0, 1, 1, 2, 1}},
      // c = 0 and h = 0 leave side 2 from (100, -150) to (0, -150): level, 100 long.
      {"c = h = 0", 0, 100, 100, 0, 100, {0, 2, 1, 1, 1, 2, 1}},
      // g = 0: C1 = C2 = (300, -50); e = 0: C5 = C6 = (-300, -50).
      {"g = 0", 200, 100, 0, 100, 100, {0, 0, 1, 1, 1, 2, 1}},
      {"e = 0", 200, 100, 100, 100, 0, {0, 2, 1, 1, 1, 0, 1}},
  };
  for (const Caso& c : casi) {
    NodoGeometria g;
    g.n.Fz_c = c.c, g.n.Fz_d = c.d, g.n.Fz_g = c.g, g.n.Fz_h = c.h, g.n.Fz_e = c.e;
    g.Asta(1, 45, 0);
    g.Esegui();
    for (int k = 1; k <= 6; ++k) EXPECT_EQ(g.Lato(k).TipoLato, c.tipi[k]) << c.nome << " " << k;
  }
}

TEST(GeometriaLati, UnLatoSenzaLunghezzaNonFermaLAsta) {
  // d = h = 0: side 2 is the single point C2 = C3 = (200, -150). A vertical member with its
  // edge 1 at x = (-P) dx = 200 (dx 200, h 260) passes through it: side 1 is vertical like the
  // edge, side 2 is skipped, and side 3 from (200, -150) to (-200, -250) takes it at the corner.
  NodoGeometria g;
  g.n.Fz_d = 0, g.n.Fz_h = 0;
  g.Asta(1, 90, 0, AstModo::Singola, 260, 200);
  g.Esegui();
  ASSERT_EQ(g.Lato(2).TipoLato, 0);
  const Saldatura& b1 = g.n.Saldature(1, 1);
  EXPECT_EQ(b1.Lato, 3);
  prova::AttesoPunto(b1, 4, 200, -150);
}

TEST(GeometriaLati, ACavallaDiDueLatiVinceIlSecondo) {
  // Edge 1 at x = 200 passes through C3 = (200, -250), the end of side 2 and the start of side
  // 3: two crossings at the same distance from R = (0, 1E10); the later side wins.
  NodoGeometria g;
  g.Asta(1, 90, 0, AstModo::Singola, 260, 200);
  g.Esegui();
  EXPECT_EQ(g.n.Saldature(1, 1).Lato, 3);
  prova::AttesoPunto(g.n.Saldature(1, 1), 4, 200, -250);
}

TEST(GeometriaLati, CorrenteAngolareRuotato) {
  // Angle chord h 100, centroid 28 from the back: Off = (50 - 28) * P = -22 with the member at
  // 120 degrees on a chord at 30 (d = 90 degrees, q = 0.5 -> P = -1).
  NodoGeometria g;
  g.n.Corrente.Tipo = 1;
  g.n.Corrente.dBarX = 28;
  g.n.Cor_teta = GradiInRadianti(30);
  g.Asta(1, 120, 0);
  g.Esegui();
  ASSERT_EQ(g.n.PosFazzoletto, -1);
  // Chord frame C1 (300, -50 - 22), C3 (200, -250 - 22). X = x cos30 + y sin30,
  // Y = -x sin30 + y cos30, cos30 = 0.8660254038:
  // C1: X = 259.8076211 - 36 = 223.8076211, Y = -150 - 62.3538291 = -212.3538291
  // C3: X = 173.2050808 - 136 = 37.2050808, Y = -100 - 235.5589098 = -335.5589098
  const double t = prova::kTollGeom;
  EXPECT_NEAR(g.Lato(1).XP[1], 223.8076211353316, t);
  EXPECT_NEAR(g.Lato(1).YP[1], -212.35382907247956, t);
  EXPECT_NEAR(g.Lato(3).XP[1], 37.20508075688778, t);
  EXPECT_NEAR(g.Lato(3).YP[1], -335.55890982936734, t);
  // Side 1 is x' = 300 in the chord frame: X cos30 - Y sin30 = 300, Y = X cot30 - 600.
  EXPECT_EQ(g.Lato(1).TipoLato, 1);
  EXPECT_NEAR(g.Lato(1).M, 1.7320508075688774, 1e-12);
  EXPECT_NEAR(g.Lato(1).Q, -600, t);
  // Side 3 is y' = -272: X sin30 + Y cos30 = -272, Y = -X tan30 - 272 / cos30.
  EXPECT_NEAR(g.Lato(3).M, -0.5773502691896257, 1e-12);
  EXPECT_NEAR(g.Lato(3).Q, -314.0785464391564, t);
  // In the chord frame the member is square to the chord, edges at x' = 15 and -45 meeting
  // side 3 at (15, -272) and (-45, -272):
  // X = 15 * 0.8660254 - 136 = -123.0096189, Y = -7.5 - 235.5589098 = -243.0589098
  // X = -45 * 0.8660254 - 136 = -174.9711432, Y = 22.5 - 235.5589098 = -213.0589098
  // The edge lines are sloped in the node's plane: Pend = -tan 120 = sqrt 3, Quota 15 / cos 120
  // = -30 and (-60 + 15) / cos 120 = 90.
  const Saldatura& b1 = g.n.Saldature(1, 1);
  const Saldatura& b2 = g.n.Saldature(1, 2);
  EXPECT_NEAR(b1.Pend, 1.7320508075688774, 1e-12);
  EXPECT_NEAR(b1.Quota, -30, t);
  EXPECT_NEAR(b2.Quota, 90, t);
  EXPECT_EQ(b1.Lato, 3);
  EXPECT_EQ(b2.Lato, 3);
  prova::AttesoPunto(b1, 2, -123.00961894323339, -243.05890982936734);
  prova::AttesoPunto(b2, 2, -174.9711431702997, -213.05890982936734);
  // Both cuts at x'-station 100 inside: (15, -172) and (-45, -172) turned into the plane.
  prova::AttesoPunto(b1, 1, -73.0096189432334, -156.45636945092346);
  prova::AttesoPunto(b2, 1, -124.97114317029973, -126.45636945092346);
}

TEST(GeometriaLati, InterseziLatiConLaDirezioneDiAngoloSegmento) {
  NodoGeometria g;
  g.Asta(1, 45, 0);
  g.Esegui();
  // Running left and rising 0.01 over 100: atan(0.0001) + pi/2 makes 2t/pi = 1.0000637, within
  // 0.0001 of 1, so the line counts as vertical, x = 50: side 3 at (50, -250) only.
  auto verso_sinistra = InterseziLati(g.s.geometria, 50, -50, -100, -99.99);
  ASSERT_EQ(verso_sinistra.size(), 1u);
  EXPECT_NEAR(verso_sinistra[0].x, 50, 1e-12);
  EXPECT_NEAR(verso_sinistra[0].y, -250, 1e-12);
  // The same segment the other way is sloped: y = -0.0001 x - 99.995. Side 1 (x = 300) at
  // y = -0.03 - 99.995 = -100.025 and side 5 (x = -300) at 0.03 - 99.995 = -99.965; sides 2
  // to 4 cross it outside their ends.
  auto verso_destra = InterseziLati(g.s.geometria, -50, 50, -99.99, -100);
  ASSERT_EQ(verso_destra.size(), 2u);
  EXPECT_NEAR(verso_destra[0].x, 300, 1e-9);
  EXPECT_NEAR(verso_destra[0].y, -100.025, 1e-9);
  EXPECT_NEAR(verso_destra[1].x, -300, 1e-9);
  EXPECT_NEAR(verso_destra[1].y, -99.965, 1e-9);
}

TEST(GeometriaSaldature, InserimentoSuiDueBordi) {
  NodoGeometria g;
  g.Asta(1, 45, 0);
  g.n.Ast_ins[1] = 120;
  g.n.Ast_ins[2] = 80;  // member B absent: its rows are set all the same
  g.n.Ast_ins[3] = 90;
  g.n.Saldature(1, 2).Sld_L = 5;
  g.Esegui();
  EXPECT_EQ(g.n.Saldature(1, 1).Sld_L, 120);
  EXPECT_EQ(g.n.Saldature(1, 2).Sld_L, 120);
  EXPECT_EQ(g.n.Saldature(2, 1).Sld_L, 80);
  EXPECT_EQ(g.n.Saldature(2, 2).Sld_L, 80);
  EXPECT_EQ(g.n.Saldature(3, 2).Sld_L, 90);
}

}  // namespace
}  // namespace qf17
