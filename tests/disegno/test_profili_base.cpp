// The pieces of the profile drawings: the member frame, holes, weld marks and the strip notes.

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "disegno/esecutivo/profili_disegno.h"
#include "test_profili_prova.h"

namespace qf17 {
namespace {

using prova::DisegnoProva;
using prova::Linee;
using prova::Vicini;

constexpr double kPi = std::numbers::pi;

TEST(ProfiliBase, RuotaPunto) {
  struct Caso {
    double x, y, ox, oy, a, attesoX, attesoY;
  };
  // x' = x cos a + y sin a + ox, y' = y cos a - x sin a + oy.
  for (const Caso& c : {
           Caso{10, 0, 0, 0, 0, 10, 0},
           // A quarter turn takes +x down: angles grow clockwise.
           Caso{10, 0, 0, 0, kPi / 2, 0, -10},
           Caso{0, 10, 0, 0, kPi / 2, 10, 0},
           // Half a turn about (100, 200): (-3 + 100, -4 + 200).
           Caso{3, 4, 100, 200, kPi, 97, 196},
           // 30 degrees: 10 * 0.8660254 + 5 * 0.5 + 1 = 12.160254; 5 * 0.8660254 - 10 * 0.5 + 2.
           Caso{10, 5, 1, 2, kPi / 6, 12.160254037844386, 1.3301270189221932},
       }) {
    const Punto p = RuotaPunto(c.x, c.y, c.ox, c.oy, c.a);
    EXPECT_NEAR(p.x, c.attesoX, 1e-12) << c.x << " " << c.y << " " << c.a;
    EXPECT_NEAR(p.y, c.attesoY, 1e-12) << c.x << " " << c.y << " " << c.a;
  }
}

TEST(ProfiliBase, MarcaSaldaturaContaIPassi) {
  struct Caso {
    double lunghezza, passo;
    std::int16_t estremi;
    int linee;
  };
  for (const Caso& c : {
           // n = Int(100 / 8 + 0.5) = 13: ticks at 8, 16 .. 96 (12), two end ticks, the closing.
           Caso{100, 8, 1, 15},
           Caso{100, 8, 0, 12},
           // 99 / 8 + 0.5 = 12.875: 12 steps, 11 ticks inside.
           Caso{99, 8, 0, 11},
           Caso{100, 0, 1, 0},
           Caso{0, 8, 1, 0},
       }) {
    DisegnoProva d;
    MarcaSaldatura(d.t, 0, 0, c.lunghezza, 0, 1, c.estremi, c.passo, 0);
    EXPECT_EQ(d.s.disegno.NumLinee, c.linee) << c.lunghezza << " / " << c.passo;
  }
}

TEST(ProfiliBase, MarcaSaldaturaTacchePerTraversoEChiusura) {
  DisegnoProva d;
  d.s.opzioni[20] = 5;
  MarcaSaldatura(d.t, 0, 0, 100, 0, 1, 1, 8, 0);
  const auto linee = Linee(d.s);
  ASSERT_EQ(linee.size(), 15u);
  // Start tick, then the twelfth tick at 12 * 8 = 96, then the end tick and the closing line,
  // each tick one leg (8) across the level line.
  EXPECT_TRUE(Vicini(linee[0].a, {0, 0}) && Vicini(linee[0].b, {0, 8}));
  EXPECT_TRUE(Vicini(linee[12].a, {96, 0}) && Vicini(linee[12].b, {96, 8}));
  EXPECT_TRUE(Vicini(linee[13].a, {100, 0}) && Vicini(linee[13].b, {100, 8}));
  EXPECT_TRUE(Vicini(linee[14].a, {0, 8}) && Vicini(linee[14].b, {100, 8}));
  for (const auto& l : linee) EXPECT_EQ(l.colore, 5);

  // Down the sheet (90 degrees, direction (0, -1)), ticks of -1 leg: Normale (1, 0) backwards.
  // 20 / 5 + 0.5 = 4.5: 4 steps, ticks at y = -5, -10, -15.
  DisegnoProva g;
  MarcaSaldatura(g.t, 0, 0, 0, -20, -1, 0, 5, kPi / 2);
  const auto giu = Linee(g.s);
  ASSERT_EQ(giu.size(), 3u);
  EXPECT_TRUE(Vicini(giu[0].a, {0, -5}) && Vicini(giu[0].b, {-5, -5}));
  EXPECT_TRUE(Vicini(giu[2].a, {0, -15}) && Vicini(giu[2].b, {-5, -15}));
}

TEST(ProfiliBase, ForoCerchioECroce) {
  struct Caso {
    double fi, tolleranza, scala, diametro, braccio;
  };
  for (const Caso& c : {
           // D = 20 + 0.5; arm D / 2 + 0.1 fi = 10.25 + 2.
           Caso{20, 0.5, 1, 20.5, 12.25},
           // D = 16.5 x 2 = 33; arm (8.25 + 1.6) x 2.
           Caso{16, 0.5, 2, 33, 19.7},
           // A negative tolerance: d + 1.5 above 20, d + 1 up to 20.
           Caso{24, -1, 1, 25.5, 15.15},
           Caso{20, -1, 1, 21, 12.5},
       }) {
    DisegnoProva d;
    d.s.opzioni[25] = c.tolleranza;
    DisegnaForo(d.t, 10, 20, c.fi, c.scala);
    const auto archi = prova::Archi(d.s);
    ASSERT_EQ(archi.size(), 1u);
    EXPECT_NEAR(archi[0].Diametro(), c.diametro, 1e-9) << c.fi;
    EXPECT_TRUE(Vicini(archi[0].centro, {10, 20}));
    EXPECT_EQ(archi[0].colore, 1);  // the outline colour of a fresh installation
    const auto linee = Linee(d.s);
    ASSERT_EQ(linee.size(), 2u);
    EXPECT_TRUE(Vicini(linee[0].a, {10 - c.braccio, 20}) &&
                Vicini(linee[0].b, {10 + c.braccio, 20}))
        << c.fi;
    EXPECT_TRUE(Vicini(linee[1].a, {10, 20 - c.braccio}) &&
                Vicini(linee[1].b, {10, 20 + c.braccio}))
        << c.fi;
    for (const auto& l : linee) {
      EXPECT_EQ(l.colore, 2);  // the axis colour
      EXPECT_EQ(l.tipo, 1);    // dash-dot
    }
  }
}

TEST(ProfiliBase, ForiDelGruppoSpecchiatiEScalati) {
  DisegnoProva d;
  Nodo& n = d.s.nodo;
  n.nBull[1] = 2;
  n.xBull(1, 1) = 40, n.yBull(1, 1) = 30, n.FiBull(1, 1) = 20;
  n.xBull(1, 2) = 100, n.yBull(1, 2) = 30, n.FiBull(1, 2) = 20;
  DisegnaFori(d.t, 1, 5, 7, -1, 2);
  const auto archi = prova::Archi(d.s);
  ASSERT_EQ(archi.size(), 2u);
  // (5 - 40 x 2, 7 - 30 x 2) and (5 - 100 x 2, 7 - 60); diameter 20.5 x 2.
  EXPECT_TRUE(Vicini(archi[0].centro, {-75, -53}));
  EXPECT_TRUE(Vicini(archi[1].centro, {-195, -53}));
  EXPECT_NEAR(archi[1].Diametro(), 41, 1e-9);
}

TEST(ProfiliBase, NoteDeiDiametri) {
  struct Caso {
    std::vector<double> diametri;
    double tolleranza;
    std::string fori, bulloni;
  };
  for (const Caso& c : {
           Caso{{20, 20}, 0.5, "Fori ]20.5", "Bull. M20"},
           // The bolt note keeps the diameter sign between its values.
           Caso{{20, 16}, 0.5, "Fori ]20.5, ]16.5", "Bull. M20, ]16"},
           Caso{{20, 16, 20, 16}, 0.5, "Fori ]20.5, ]16.5", "Bull. M20, ]16"},
           // Repeats are found anywhere in the text so far: 2 is already in "M20".
           Caso{{20, 2}, 0.5, "Fori ]20.5, ]2.5", "Bull. M20"},
           // One decimal, ties up: 12.25 gives 12.3, its hole 12.75 gives 12.8.
           Caso{{12.25}, 0.5, "Fori ]12.8", "Bull. M12.3"},
           // A negative tolerance: 16 + 1 and 24 + 1.5.
           Caso{{16, 24}, -1, "Fori ]17, ]25.5", "Bull. M16, ]24"},
           Caso{{}, 0.5, "", ""},
       }) {
    DisegnoProva d;
    d.s.opzioni[25] = c.tolleranza;
    Nodo& n = d.s.nodo;
    n.nBull[2] = static_cast<std::int16_t>(c.diametri.size());
    for (std::size_t k = 0; k < c.diametri.size(); ++k) {
      n.FiBull(2, static_cast<int>(k) + 1) = c.diametri[k];
    }
    EXPECT_EQ(NotaFori(d.s, 2), c.fori);
    EXPECT_EQ(NotaBulloni(d.s, 2), c.bulloni);
  }
}

}  // namespace
}  // namespace qf17
