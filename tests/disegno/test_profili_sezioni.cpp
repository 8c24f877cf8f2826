// A section turned, mirrored and scaled stays closed, of its size, with its fillet a quarter
// turn. Upright sections at scale 1 of the three kinds are pinned by the samples' sheets.

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "disegno/esecutivo/profili_disegno.h"
#include "librerie/profilo.h"
#include "test_profili_prova.h"

namespace qf17 {
namespace {

constexpr double kPi = std::numbers::pi;

TEST(ProfiliSezioni, RuotataSpecchiataEScalata) {
  Profilo l;
  l.Nome = "LU70x7", l.Tipo = 1, l.h = 70, l.b = 70, l.a = 7, l.e = 7, l.r1 = 7, l.dBarX = 19.7;
  struct Caso {
    double angolo, scala, specchio;
    double xMin, xMax, yMin, yMax;
  };
  // Placed at (100, 50): mirrored, u to the left; a quarter turn clockwise at twice the size, u
  // down and v right; half a turn, u left and v down.
  for (const Caso& c : {Caso{0, 1, -1, 30, 100, 50, 120}, Caso{kPi / 2, 2, 1, 100, 240, -90, 50},
                        Caso{kPi, 1, 1, 30, 100, -20, 50}}) {
    SCOPED_TRACE(c.angolo);
    prova::DisegnoProva d;
    DisegnaSezione(d.t, l, 100, 50, c.angolo, c.scala, c.specchio);
    EXPECT_NEAR(d.s.disegno.EstMinX, c.xMin, 1e-9);
    EXPECT_NEAR(d.s.disegno.EstMaxX, c.xMax, 1e-9);
    EXPECT_NEAR(d.s.disegno.EstMinY, c.yMin, 1e-9);
    EXPECT_NEAR(d.s.disegno.EstMaxY, c.yMax, 1e-9);
    const auto archi = prova::Archi(d.s);
    for (const auto& [punto, tratti] : prova::GradiVertici(prova::Linee(d.s), archi)) {
      EXPECT_EQ(tratti, 2) << punto.x << ", " << punto.y;
    }
    ASSERT_EQ(archi.size(), 1u);
    const auto& a = archi[0];
    const double apertura = std::atan2(a.fine.y - a.centro.y, a.fine.x - a.centro.x) -
                            std::atan2(a.inizio.y - a.centro.y, a.inizio.x - a.centro.x);
    EXPECT_NEAR(std::fmod(apertura + 4 * kPi, 2 * kPi), kPi / 2, 1e-9);
    EXPECT_NEAR(a.Diametro(), 14 * c.scala, 1e-9);
  }
}

}  // namespace
}  // namespace qf17
