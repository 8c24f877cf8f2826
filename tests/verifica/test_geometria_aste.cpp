// Member edges in the node geometry: edge lines, crossings with the gusset, profile ends, the
// 30-degree spread and the effective width. Every expected figure is worked out in the comments.

#include <gtest/gtest.h>

#include <cmath>

#include "test_geometria_prova.h"

namespace qf17 {
namespace {

using prova::AttesoPunto;
using prova::kR2;
using prova::kTollGeom;
using prova::kW100;
using prova::NodoGeometria;

// The fixture's gusset with c = 0: C1 (100, -50), C2 (100, -150), C3 (0, -250), C4 (-200,
// -250): side 1 x = 100, side 2 y = x - 250 (100 long in x), side 3 y = -250 from x 0 to -200.
void SenzaC(NodoGeometria& g) {
  g.n.Fz_c = 0;
}

TEST(GeometriaAste, VerticaleSchienaVersoLInterno) {
  // 90 degrees, lato 0, P = -1: Pend 0, Quota(1) = (-P) dx = 15, Quota(2) = (h - dx) P = -45.
  NodoGeometria g;
  SenzaC(g);
  g.Asta(1, 90, 0);
  g.Esegui();
  const Saldatura& b1 = g.n.Saldature(1, 1);
  const Saldatura& b2 = g.n.Saldature(1, 2);
  EXPECT_EQ(b1.Pend, 0);
  EXPECT_EQ(b2.Pend, 0);
  EXPECT_EQ(b1.Quota, 15);
  EXPECT_EQ(b2.Quota, -45);
  // x = 15 meets side 2 at y = 15 - 250 = -235 (21.2 from C3, 120.2 from C2, side 141.4);
  // x = -45 meets side 2 at -295, 205 from C2: off it; side 3 at (-45, -250).
  EXPECT_EQ(b1.Lato, 2);
  EXPECT_EQ(b2.Lato, 3);
  AttesoPunto(b1, 4, 15, -235, "1");
  AttesoPunto(b2, 4, -45, -250, "2");
  // a = (0, -1), n = (1, 0), L 100, h 60: T1 = (15 - 60, -235 + 100) = (-45, -135),
  // T2 = (-45, -250 + 100) = (-45, -150). |T2| > |T1|: edge 1 places the cut at y = -135.
  AttesoPunto(b1, 1, 15, -135, "1");
  AttesoPunto(b2, 1, -45, -135, "2");
  AttesoPunto(b1, 2, 15, -235, "1");
  AttesoPunto(b2, 2, -45, -235, "2");  // T1 + L a: edge 2's own crossing gives way
  // LunghOltre = max(200, 200): edge 1 point 3 = (15, -235 - 200), edge 2 h to the left.
  AttesoPunto(b1, 3, 15, -435, "1");
  AttesoPunto(b2, 3, -45, -435, "2");
  // Spread w = 100 tan 30 = 57.735: (15 + 57.735, -135) and (-45 - 57.735, -135). The line
  // y = -135 meets side 1 at (100, -135), 202.7 from the second point, more than the 175.47
  // between them: no cut. Beff = 60 + 2 * 57.735 = 175.470.
  AttesoPunto(b1, 5, 15 + kW100, -135, "1");
  AttesoPunto(b2, 5, -45 - kW100, -135, "2");
  EXPECT_NEAR(g.s.geometria.Beff[1], 175.47005383792515, kTollGeom);
}

TEST(GeometriaAste, VerticaleSchienaVersoLEsternoTagliataDalContorno) {
  // lato 1: Quota(1) = (h - dx)(-P) = 45, Quota(2) = P dx = -15.
  NodoGeometria g;
  SenzaC(g);
  g.Asta(1, 90, 1);
  g.Esegui();
  const Saldatura& b1 = g.n.Saldature(1, 1);
  const Saldatura& b2 = g.n.Saldature(1, 2);
  EXPECT_EQ(b1.Quota, 45);
  EXPECT_EQ(b2.Quota, -15);
  // x = 45 on side 2 at y = -205 (63.6 from C3, 77.8 from C2); x = -15 on side 3 (side 2 at
  // -265 is 162.6 from C2).
  EXPECT_EQ(b1.Lato, 2);
  EXPECT_EQ(b2.Lato, 3);
  AttesoPunto(b1, 2, 45, -205, "1");
  // T1 = (45 - 60, -205 + 100) = (-15, -105), T2 = (-15, -150): the cut at y = -105.
  AttesoPunto(b1, 1, 45, -105, "1");
  AttesoPunto(b2, 1, -15, -105, "2");
  AttesoPunto(b2, 2, -15, -205, "2");
  AttesoPunto(b1, 3, 45, -405, "1");
  AttesoPunto(b2, 3, -15, -405, "2");
  // Spread: (45 + 57.735, -105) and (-15 - 57.735, -105), 175.47 apart. Side 1 (x = 100) meets
  // y = -105 at (100, -105): 2.735 and 172.735 from the ends, both less: the first point moves
  // there and Beff = 100 + 72.735 = 172.735.
  AttesoPunto(b1, 5, 100, -105, "1");
  AttesoPunto(b2, 5, -15 - kW100, -105, "2");
  EXPECT_NEAR(g.s.geometria.Beff[1], 172.73502691896257, kTollGeom);
}

TEST(GeometriaAste, InclinataA45SchienaVersoLInterno) {
  // 45 degrees: Pend = -tan 45 = -1, cos 45 = sqrt2 / 2, Quota(1) = 15 / cos = 15 sqrt2 =
  // 21.2132, Quota(2) = (-60 + 15) / cos = -45 sqrt2 = -63.6396.
  NodoGeometria g;
  g.Asta(1, 45, 0);
  g.Esegui();
  const Saldatura& b1 = g.n.Saldature(1, 1);
  const Saldatura& b2 = g.n.Saldature(1, 2);
  EXPECT_NEAR(b1.Pend, -1, 1e-12);
  EXPECT_NEAR(b2.Pend, -1, 1e-12);
  EXPECT_NEAR(b1.Quota, 15 * kR2, kTollGeom);
  EXPECT_NEAR(b2.Quota, -45 * kR2, kTollGeom);
  // Edge 1 y = -x + 15 sqrt2 and side 2 y = x - 450: x = 225 + 7.5 sqrt2 = 235.6066,
  // y = -214.3934 (91.1 from C2, 50.4 from C3). Edge 2 y = -x - 45 sqrt2 meets side 2 at
  // x = 193.18, 151.1 from C2 (off), and side 3 at x = 250 - 45 sqrt2 = 186.3604.
  EXPECT_EQ(b1.Lato, 2);
  EXPECT_EQ(b2.Lato, 3);
  AttesoPunto(b1, 4, 235.6066017177982, -214.3933982822018, "1");
  AttesoPunto(b2, 4, 186.36038969321072, -250, "2");
  // a = (sqrt2/2, -sqrt2/2), n = (sqrt2/2, sqrt2/2): T1 = E1 - 100 a - 60 n = (225 - 72.5
  // sqrt2, -225 + 27.5 sqrt2), |T1| = 222.79; T2 = E2 - 100 a = (250 - 95 sqrt2, -250 + 50
  // sqrt2), |T2| = 213.35. |T2| is not greater: edge 2 places the cut at T2.
  AttesoPunto(b2, 1, 250 - 95 * kR2, -250 + 50 * kR2, "2");
  AttesoPunto(b1, 1, 250 - 65 * kR2, -250 + 80 * kR2, "1");  // T2 + 60 n
  AttesoPunto(b1, 2, 250 - 15 * kR2, -250 + 30 * kR2, "1");  // + 100 a: short of E1
  AttesoPunto(b2, 2, 250 - 45 * kR2, -250, "2");
  AttesoPunto(b2, 3, 250 + 55 * kR2, -250 - 100 * kR2, "2");  // E2 + 200 a
  AttesoPunto(b1, 3, 250 + 85 * kR2, -250 - 70 * kR2, "1");   // + 60 n
  // Spread: 57.735 n = (40.8248, 40.8248) on point 1 of edge 1 and minus on edge 2. The line
  // between them, y = x - 294.94, meets side 3 at x = 44.94, 217.7 from the first point: no cut.
  AttesoPunto(b1, 5, 198.90094749213512, -96.0380859637661, "1");
  AttesoPunto(b2, 5, 74.82488252816967, -220.11415092773154, "2");
  EXPECT_NEAR(g.s.geometria.Beff[1], 175.47005383792515, kTollGeom);
}

TEST(GeometriaAste, InclinataA45SchienaVersoLEsterno) {
  // lato 1: Quota(1) = (60 - 15) / cos 45 = 45 sqrt2, Quota(2) = -15 / cos 45 = -15 sqrt2.
  NodoGeometria g;
  g.Asta(1, 45, 1);
  g.Esegui();
  const Saldatura& b1 = g.n.Saldature(1, 1);
  const Saldatura& b2 = g.n.Saldature(1, 2);
  EXPECT_NEAR(b1.Quota, 45 * kR2, kTollGeom);
  EXPECT_NEAR(b2.Quota, -15 * kR2, kTollGeom);
  // Both edges meet side 2 (y = x - 450), which is square to the member:
  // x = (450 + 45 sqrt2) / 2 = 256.8198 and x = (450 - 15 sqrt2) / 2 = 214.3934.
  EXPECT_EQ(b1.Lato, 2);
  EXPECT_EQ(b2.Lato, 2);
  AttesoPunto(b1, 2, 225 + 22.5 * kR2, -225 + 22.5 * kR2, "1");
  AttesoPunto(b2, 2, 225 - 7.5 * kR2, -225 - 7.5 * kR2, "2");
  // T1 = T2 = (225 - 57.5 sqrt2, -225 + 42.5 sqrt2): both cuts 100 inside the same side.
  AttesoPunto(b1, 1, 225 - 27.5 * kR2, -225 + 72.5 * kR2, "1");
  AttesoPunto(b2, 1, 225 - 57.5 * kR2, -225 + 42.5 * kR2, "2");
  AttesoPunto(b1, 3, 225 + 122.5 * kR2, -225 - 77.5 * kR2, "1");  // E1 + 200 a
  AttesoPunto(b2, 3, 225 + 92.5 * kR2, -225 - 107.5 * kR2, "2");  // - 60 n
  AttesoPunto(b1, 5, 226.93395608112618, -81.6446876815643, "1");
  AttesoPunto(b2, 5, 102.85789111716073, -205.72075264552976, "2");
  EXPECT_NEAR(g.s.geometria.Beff[1], 175.47005383792515, kTollGeom);
}

TEST(GeometriaAste, IlSegnoDiPSoloSuiBordiVerticali) {
  // Member C at -45 degrees puts the gusset above the chord (P = +1) for every member; B at
  // 135 keeps it below (P = -1). A vertical member's abscissae follow P; a sloped member's
  // intercepts do not.
  struct Caso {
    double tetaA;  // member A, lato 0, h 60, dx 15
    double tetaAltra;
    int altra;
    int P;
    double quota1, quota2;
  } casi[] = {
      {90, 135, 2, -1, 15, -45},              // (-P) dx, (h - dx) P
      {90, -45, 3, 1, -15, 45},               // the same formulas with P = +1
      {45, 135, 2, -1, 15 * kR2, -45 * kR2},  // dx / cos 45, (-h + dx) / cos 45
      {45, -45, 3, 1, 15 * kR2, -45 * kR2},   // unchanged
  };
  for (const Caso& c : casi) {
    NodoGeometria g;
    g.Asta(1, c.tetaA, 0);
    g.Asta(c.altra, c.tetaAltra, 0);
    g.Esegui();
    EXPECT_EQ(g.n.PosFazzoletto, c.P);
    EXPECT_NEAR(g.n.Saldature(1, 1).Quota, c.quota1, kTollGeom) << c.tetaA << " " << c.P;
    EXPECT_NEAR(g.n.Saldature(1, 2).Quota, c.quota2, kTollGeom) << c.tetaA << " " << c.P;
  }
}

// The fixture's gusset with c = 0 and f = 150: C3 (0, -250), C4 (-200, -300): side 3
// y = 0.25 x - 250; LunghOltre = max(200, 250) = 250.
void Opposto(NodoGeometria& g) {
  g.n.Fz_c = 0;
  g.n.Fz_f = 150;
  g.Asta(1, 90, 0, AstModo::Opposta);
  g.n.Saldature(1, 1).Nome = "sald A";
  g.n.Saldature(1, 1).TauPar[1] = 7;
  g.n.Saldature(4, 1).TauPar[1] = 3;
}

TEST(GeometriaAste, CoppiaOppostaQuattroCandidati) {
  NodoGeometria g;
  Opposto(g);
  g.Esegui();
  EXPECT_EQ(g.n.Ast_flag[4], 1);
  EXPECT_EQ(g.n.Aste[4], g.n.Aste[1]);
  EXPECT_EQ(g.n.Ast_teta[4], g.n.Ast_teta[1]);
  EXPECT_EQ(g.n.Saldature(4, 1).Nome, "sald A");  // the whole record is copied
  EXPECT_EQ(g.n.Saldature(4, 1).TauPar[1], 7);
  EXPECT_EQ(g.n.Saldature(4, 1).Sld_L, 400);  // then the chord weld: 100 + 200 + 0 + 100
  EXPECT_EQ(g.n.Saldature(4, 2).Sld_L, 100);
  // Vertical, P = -1, s 10, h 60: Quota (s/2 + h)(-P) = 65, P s / 2 = -5, (-P) s / 2 = 5,
  // (s/2 + h) P = -65.
  Saldatura* b[4] = {&g.n.Saldature(1, 1), &g.n.Saldature(1, 2), &g.n.Saldature(4, 1),
                     &g.n.Saldature(4, 2)};
  const double quote[4] = {65, -5, 5, -65};
  // Crossings: x = 65 on side 2 at -185; x = -5 on side 3 at 0.25 (-5) - 250 = -251.25;
  // x = 5 on side 2 at -245 (side 3 at (5, -248.75) is 211.3 from C4, side 206.2);
  // x = -65 on side 3 at -266.25.
  const double yIncrocio[4] = {-185, -251.25, -245, -266.25};
  const int lati[4] = {2, 3, 2, 3};
  for (int k = 0; k < 4; ++k) {
    EXPECT_EQ(b[k]->Pend, 0) << k;
    EXPECT_EQ(b[k]->Quota, quote[k]) << k;
    EXPECT_EQ(b[k]->Lato, lati[k]) << k;
    AttesoPunto(*b[k], 4, quote[k], yIncrocio[k], "crossing");
  }
  // a = (0, -1), n = (1, 0), L 100: T1 = (65 - 60, -85), |T1| = 85.15; T2 = (-5, -151.25),
  // 151.33; T3 = (5 + 10, -145), 145.77; T4 = (-65 + 70, -166.25), 166.33: T4 wins, w = 2h + s
  // = 130. Point 1 of (1, 1) = (-65 + 130, -266.25 + 100) = (65, -166.25), point 3 = (65,
  // -266.25 - 250); then h, s, h to the left: x 5, -5, -65. Edge (1, 2) ends at x = 5 while
  // its line is x = -5, and (4, 1) the other way round: the table's Quota and the cut's order
  // disagree, and both are kept.
  const double xEstremo[4] = {65, 5, -5, -65};
  for (int k = 0; k < 4; ++k) {
    AttesoPunto(*b[k], 1, xEstremo[k], -166.25, "end");
    AttesoPunto(*b[k], 2, xEstremo[k], -266.25, "end");
    AttesoPunto(*b[k], 3, xEstremo[k], -516.25, "end");
  }
  // Spread on the outer edges only: (65 + 57.735, -166.25) and (-65 - 57.735, -166.25), 245.47
  // apart; inner edges keep point 1. Side 2 (y = x - 250) meets y = -166.25 at x = 83.75,
  // 38.99 and 206.49 from the ends: the first point moves there. Side 4 (y = -1.5 x - 600)
  // meets it at x = -289.17, beyond. Beff = 83.75 + 65 + 57.735 = 206.485.
  AttesoPunto(*b[0], 5, 83.75, -166.25, "spread");
  AttesoPunto(*b[1], 5, 5, -166.25, "spread");
  AttesoPunto(*b[2], 5, -5, -166.25, "spread");
  AttesoPunto(*b[3], 5, -65 - kW100, -166.25, "spread");
  EXPECT_NEAR(g.s.geometria.Beff[1], 206.48502691896257, kTollGeom);
}

TEST(GeometriaAste, CambiandoModoLaSecondaFilaSparisce) {
  NodoGeometria g;
  Opposto(g);
  g.n.Ast_flag[5] = 1;  // member B absent: its second row is left as it is
  g.Esegui();
  ASSERT_EQ(g.n.Ast_flag[4], 1);
  g.n.Ast_modo[1] = 0;
  g.Esegui();
  EXPECT_EQ(g.n.Ast_flag[4], 0);
  EXPECT_EQ(g.n.Ast_flag[5], 1);
  // Single again: Quota 15 and -45, as the lone vertical member.
  EXPECT_EQ(g.n.Saldature(1, 1).Quota, 15);
  EXPECT_EQ(g.n.Saldature(1, 2).Quota, -45);
}

TEST(GeometriaAste, UnBordoCheNonIncontraLatiTieneIPuntiPrecedenti) {
  // A gusset of no length (a = b = c = d = 0): every side lies on x = 0 or is a point, so the
  // vertical edges x = 15 and x = -45 meet nothing.
  NodoGeometria g;
  g.n.Fz_a = g.n.Fz_b = g.n.Fz_c = g.n.Fz_d = 0;
  g.Asta(1, 90, 0);
  Saldatura& b1 = g.n.Saldature(1, 1);
  Saldatura& b2 = g.n.Saldature(1, 2);
  b1.XS[2] = 10, b1.YS[2] = -300, b1.XS[4] = 11, b1.YS[4] = -301, b1.Lato = 5;
  b2.XS[2] = -50, b2.YS[2] = -320, b2.Lato = 4;
  g.Esegui();
  EXPECT_EQ(b1.Lato, 5);
  EXPECT_EQ(b2.Lato, 4);
  AttesoPunto(b1, 4, 11, -301, "1");
  AttesoPunto(b1, 2, 10, -300, "1");
  // From the old crossings: T1 = (10 - 60, -300 + 100) = (-50, -200), T2 = (-50, -220),
  // farther: the cut at y = -200. LunghOltre 200.
  AttesoPunto(b1, 1, 10, -200, "1");
  AttesoPunto(b2, 1, -50, -200, "2");
  AttesoPunto(b2, 2, -50, -300, "2");
  AttesoPunto(b1, 3, 10, -500, "1");
  AttesoPunto(b2, 3, -50, -500, "2");
  // Spread (67.735, -200) and (-107.735, -200): side 2, x = 0 from -150 to -250, cuts it at
  // (0, -200), 67.7 and 107.7 away: Beff = 107.735. Side 4 gives the same point again, now
  // 107.735 from the second end, not less than Beff: nothing more moves.
  AttesoPunto(b1, 5, 0, -200, "1");
  EXPECT_NEAR(g.s.geometria.Beff[1], 107.73502691896257, kTollGeom);
  EXPECT_TRUE(GeometriaFinita(g.n, g.s.geometria));
}

// Everything the geometry writes for the node's rows and sides, for exact comparisons.
std::vector<double> Figura(const NodoGeometria& g) {
  std::vector<double> v = {g.n.Cor_teta, static_cast<double>(g.n.PosFazzoletto),
                           g.s.geometria.LunghOltre};
  for (int r = 1; r <= 6; ++r) {
    v.push_back(g.n.Ast_flag[r]);
    for (int j = 1; j <= 2; ++j) {
      const Saldatura& b = g.n.Saldature(r, j);
      v.insert(v.end(), {b.Sld_L, b.Pend, b.Quota, static_cast<double>(b.Lato)});
      for (int k = 1; k <= 5; ++k) v.insert(v.end(), {b.XS[k], b.YS[k]});
    }
  }
  for (int s = 1; s <= 6; ++s) {
    const LatoFazzoletto& l = g.s.geometria.LatiFazzoletto[s];
    v.insert(v.end(),
             {static_cast<double>(l.TipoLato), l.M, l.Q, l.XV, l.XP[1], l.XP[2], l.YP[1], l.YP[2]});
  }
  return v;
}

TEST(GeometriaAste, IlCoefficienteDimezzaSoloBeff) {
  NodoGeometria g;
  SenzaC(g);
  g.Asta(1, 90, 1);
  g.Esegui();
  const std::vector<double> prima = Figura(g);
  g.n.Ast_coeff[1] = 0.5;
  g.Esegui();
  EXPECT_EQ(Figura(g), prima);
  // 172.735 / 2
  EXPECT_NEAR(g.s.geometria.Beff[1], 86.367513459481285, kTollGeom);
  g.n.Ast_coeff[1] = -0.5;  // the width takes its absolute value
  g.Esegui();
  EXPECT_NEAR(g.s.geometria.Beff[1], 86.367513459481285, kTollGeom);
}

TEST(GeometriaAste, DueEsecuzioniDannoLaStessaFigura) {
  NodoGeometria semplice;
  semplice.Asta(1, 45, 0);
  semplice.Asta(2, 90, 1);
  semplice.Asta(3, 135, 1, AstModo::Doppia);
  NodoGeometria opposto;
  Opposto(opposto);
  for (NodoGeometria* g : {&semplice, &opposto}) {
    g->n.Cor_teta = 3.0;  // reduced by the first run only
    g->Esegui();
    const std::vector<double> prima = Figura(*g);
    const double beff = g->s.geometria.Beff[1];
    g->Esegui();
    EXPECT_EQ(Figura(*g), prima);
    EXPECT_EQ(g->s.geometria.Beff[1], beff);
  }
}

TEST(GeometriaAste, FigureDegeneriENumeriNonFiniti) {
  // No thickness: the opposed profiles' inner edges coincide on x = 0; all finite.
  NodoGeometria senzaSpessore;
  Opposto(senzaSpessore);
  senzaSpessore.n.Fz_s = 0;
  senzaSpessore.Esegui();
  EXPECT_EQ(senzaSpessore.n.Saldature(1, 2).Quota, 0);
  EXPECT_TRUE(GeometriaFinita(senzaSpessore.n, senzaSpessore.s.geometria));
  // A member a hair short of 90 degrees counts as sloped: a huge slope, still finite.
  NodoGeometria quasiVerticale;
  quasiVerticale.Asta(1, 89.99999, 0);
  quasiVerticale.Esegui();
  EXPECT_LT(quasiVerticale.n.Saldature(1, 1).Pend, -1e6);
  EXPECT_TRUE(GeometriaFinita(quasiVerticale.n, quasiVerticale.s.geometria));
  // Only entries that are not numbers or overflow make the figure non-finite.
  NodoGeometria angoloNonNumero;
  angoloNonNumero.Asta(1, 45, 0);
  angoloNonNumero.n.Ast_teta[1] = std::nan("");
  angoloNonNumero.Esegui();
  EXPECT_FALSE(GeometriaFinita(angoloNonNumero.n, angoloNonNumero.s.geometria));
  NodoGeometria enorme;
  enorme.Asta(1, 45, 0);
  enorme.n.Fz_a = enorme.n.Fz_b = 1e308;  // corner C5 at x = -1E308 - 1E308 = -infinity
  enorme.Esegui();
  EXPECT_FALSE(GeometriaFinita(enorme.n, enorme.s.geometria));
}

}  // namespace
}  // namespace qf17
