// Member edges in the node geometry: edge lines, crossings with the gusset, profile ends, the
// 30-degree spread and the effective width. Every expected figure is worked out in the comments.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

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

constexpr double kNo = std::numeric_limits<double>::quiet_NaN();  // not checked

// Member A alone (h 60, dx 15, inserted 100; a its direction, n its normal): edge lines,
// crossings with the gusset, profile ends and the spread of both edges.
struct CasoBordi {
  const char* nome;
  struct {
    bool senzaC;
    double gradi;
    int lato;
    double pend, quota1, quota2;
    int lato1, lato2;  // the sides crossed by edges 1 and 2
    double beff;
  } dati;
  double punti[2][5][2];  // points 1..5 (x, y) of edges 1 and 2
};

const CasoBordi kBordi[] = {
    // 90 degrees, lato 0, P = -1: Quota (-P) dx = 15 and (h - dx) P = -45. x = 15 meets side 2
    // at y = -235; x = -45 misses it (-295 is 205 from C2) and meets side 3 at -250.
    // T1 = (15 - 60, -235 + 100), T2 = (-45, -150): |T2| > |T1|, edge 1 places the cut at
    // y = -135; points 2 at T1 + L a (edge 2's own crossing gives way), points 3 at the
    // crossing + LunghOltre 200. Spread 57.735 either side of y = -135; side 1 meets it at
    // (100, -135), farther than the 175.47 between the ends: Beff = 60 + 2 x 57.735.
    {"verticale, schiena verso l'interno",
     {true, 90, 0, 0, 15, -45, 2, 3, 175.47005383792515},
     {{{15, -135}, {15, -235}, {15, -435}, {15, -235}, {15 + kW100, -135}},
      {{-45, -135}, {-45, -235}, {-45, -435}, {-45, -250}, {-45 - kW100, -135}}}},
    // lato 1: Quota (h - dx)(-P) = 45, P dx = -15; crossings (45, -205) and side 3; T1 =
    // (-15, -105), T2 = (-15, -150): the cut at y = -105. Side 1 meets the spread at (100, -105),
    // 2.735 and 172.735 from its ends: the first point moves there, Beff = 100 + 72.735.
    {"verticale, schiena verso l'esterno, tagliata dal contorno",
     {true, 90, 1, kNo, 45, -15, 2, 3, 172.73502691896257},
     {{{45, -105}, {45, -205}, {45, -405}, {kNo, kNo}, {100, -105}},
      {{-15, -105}, {-15, -205}, {-15, -405}, {kNo, kNo}, {-15 - kW100, -105}}}},
    // 45 degrees: Pend -tan 45, Quota 15 / cos 45 = 15 sqrt2 and -45 sqrt2. Edge 1 meets side 2
    // (y = x - 450) at x = 225 + 7.5 sqrt2; edge 2 misses it (151.1 from C2) and meets side 3 at
    // x = 250 - 45 sqrt2. |T1| = 222.79, |T2| = 213.35: |T2| is not greater, so edge 2 places
    // the cut at T2 = E2 - 100 a, edge 1's at T2 + 60 n; points 2 at + 100 a, points 3 at
    // E2 + 200 a (+ 60 n). Spread 57.735 n = (40.8248, 40.8248) either side: the line
    // y = x - 294.94 meets side 3 at x = 44.94, 217.7 away: no cut.
    {"45 gradi, schiena verso l'interno",
     {false, 45, 0, -1, 15 * kR2, -45 * kR2, 2, 3, 175.47005383792515},
     {{{250 - 65 * kR2, -250 + 80 * kR2},
       {250 - 15 * kR2, -250 + 30 * kR2},
       {250 + 85 * kR2, -250 - 70 * kR2},
       {235.6066017177982, -214.3933982822018},
       {198.90094749213512, -96.0380859637661}},
      {{250 - 95 * kR2, -250 + 50 * kR2},
       {250 - 45 * kR2, -250},
       {250 + 55 * kR2, -250 - 100 * kR2},
       {186.36038969321072, -250},
       {74.82488252816967, -220.11415092773154}}}},
    // lato 1: Quota (60 - 15) / cos 45 = 45 sqrt2 and -15 sqrt2; both edges meet side 2, square
    // to the member, at x = (450 + 45 sqrt2) / 2 and (450 - 15 sqrt2) / 2; T1 = T2 =
    // (225 - 57.5 sqrt2, -225 + 42.5 sqrt2): both cuts 100 inside the same side.
    {"45 gradi, schiena verso l'esterno",
     {false, 45, 1, kNo, 45 * kR2, -15 * kR2, 2, 2, 175.47005383792515},
     {{{225 - 27.5 * kR2, -225 + 72.5 * kR2},
       {225 + 22.5 * kR2, -225 + 22.5 * kR2},
       {225 + 122.5 * kR2, -225 - 77.5 * kR2},
       {kNo, kNo},
       {226.93395608112618, -81.6446876815643}},
      {{225 - 57.5 * kR2, -225 + 42.5 * kR2},
       {225 - 7.5 * kR2, -225 - 7.5 * kR2},
       {225 + 92.5 * kR2, -225 - 107.5 * kR2},
       {kNo, kNo},
       {102.85789111716073, -205.72075264552976}}}},
};

TEST(GeometriaAste, BordiIncrociEstremiEDiffusione) {
  for (const CasoBordi& c : kBordi) {
    SCOPED_TRACE(c.nome);
    NodoGeometria g;
    if (c.dati.senzaC) SenzaC(g);
    g.Asta(1, c.dati.gradi, c.dati.lato);
    g.Esegui();
    const Saldatura* b[2] = {&g.n.Saldature(1, 1), &g.n.Saldature(1, 2)};
    for (int e = 0; e < 2; ++e) {
      if (!std::isnan(c.dati.pend)) {
        EXPECT_NEAR(b[e]->Pend, c.dati.pend, 1e-12);
      }
      EXPECT_NEAR(b[e]->Quota, e ? c.dati.quota2 : c.dati.quota1, kTollGeom);
      EXPECT_EQ(b[e]->Lato, e ? c.dati.lato2 : c.dati.lato1);
      for (int k = 1; k <= 5; ++k) {
        const double* p = c.punti[e][k - 1];
        if (!std::isnan(p[0])) AttesoPunto(*b[e], k, p[0], p[1], e ? "2" : "1");
      }
    }
    EXPECT_NEAR(g.s.geometria.Beff[1], c.dati.beff, kTollGeom);
  }
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
