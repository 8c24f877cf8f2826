// Section outlines: closed, of the section's size, with their root fillets, turned and mirrored.

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>

#include "disegno/esecutivo/profili_disegno.h"
#include "librerie/profilo.h"
#include "test_profili_prova.h"

namespace qf17 {
namespace {

using prova::DisegnoProva;
using prova::Vicini;

constexpr double kPi = std::numbers::pi;

// LU70x7, UPN160 and HEA200 as the section table completes them (angle r1 = a, channel r1 = e).
Profilo Angolare() {
  Profilo p;
  p.Nome = "LU70x7", p.Tipo = 1, p.h = 70, p.b = 70, p.a = 7, p.e = 7, p.r1 = 7, p.dBarX = 19.7;
  return p;
}
Profilo Canale() {
  Profilo p;
  p.Nome = "UPN160", p.Tipo = 0, p.h = 160, p.b = 65, p.a = 7.5, p.e = 10.5, p.r1 = 10.5;
  p.dBarX = 80;
  return p;
}
Profilo DoppioT() {
  Profilo p;
  p.Nome = "HEA200", p.Tipo = 2, p.h = 190, p.b = 200, p.a = 6.5, p.e = 10, p.r1 = 18;
  return p;
}

// Counter-clockwise sweep of a stored arc, from its start to its end.
double Apertura(const prova::ArcoLetto& a) {
  const double inizio = std::atan2(a.inizio.y - a.centro.y, a.inizio.x - a.centro.x);
  const double fine = std::atan2(a.fine.y - a.centro.y, a.fine.x - a.centro.x);
  return std::fmod(fine - inizio + 4 * kPi, 2 * kPi);
}

TEST(ProfiliSezioni, ContorniChiusiDellaMisuraDellaSezione) {
  struct Caso {
    Profilo profilo;
    std::size_t linee, archi;
    double xMin, xMax;  // u across the drawing at angle 0; v from 0 to h
  };
  for (const Caso& c : {
           // Angle: heel, toe of the leg along u, its thickness, fillet, leg along v, back: 6
           // lines and the root.
           Caso{Angolare(), 6, 1, 0, 70},
           // Channel: back, two flanges (outer face, toe, sloped inner face) and the web face
           // between two fillets: 8 lines.
           Caso{Canale(), 8, 2, 0, 65},
           // I: 12 lines and four root fillets, centred on the web.
           Caso{DoppioT(), 12, 4, -100, 100},
       }) {
    SCOPED_TRACE(c.profilo.Nome);
    DisegnoProva d;
    d.s.disegno.ColoreCorrente = 3;
    DisegnaSezione(d.t, c.profilo, 0, 0, 0, 1, 1);
    const auto linee = prova::Linee(d.s);
    const auto archi = prova::Archi(d.s);
    EXPECT_EQ(linee.size(), c.linee);
    EXPECT_EQ(archi.size(), c.archi);
    for (const auto& [punto, strokes] : prova::GradiVertici(linee, archi)) {
      EXPECT_EQ(strokes, 2) << punto.x << ", " << punto.y;
    }
    for (const auto& l : linee) EXPECT_EQ(l.colore, 3);
    // Each fillet is the short way round: a quarter turn, a little less against a sloped flange.
    for (const auto& a : archi) {
      EXPECT_GT(Apertura(a), kPi / 2 - 0.09);
      EXPECT_LT(Apertura(a), kPi / 2 + 1e-9);
    }
    EXPECT_NEAR(d.s.disegno.EstMinX, c.xMin, 1e-9);
    EXPECT_NEAR(d.s.disegno.EstMaxX, c.xMax, 1e-9);
    EXPECT_NEAR(d.s.disegno.EstMinY, 0, 1e-9);
    EXPECT_NEAR(d.s.disegno.EstMaxY, c.profilo.h, 1e-9);
  }
}

TEST(ProfiliSezioni, RaccordiERastremazione) {
  DisegnoProva a;
  DisegnaSezione(a.t, Angolare(), 0, 0, 0, 1, 1);
  // The root fillet of the angle: radius a = 7 in the corner (7, 7), centre (14, 14).
  const auto archiL = prova::Archi(a.s);
  ASSERT_EQ(archiL.size(), 1u);
  EXPECT_TRUE(Vicini(archiL[0].centro, {14, 14}));
  EXPECT_NEAR(archiL[0].Diametro(), 14, 1e-9);

  // The channel's flange is 10.5 - (65 / 2) x 0.08 = 7.9 thick at the toe; the inner faces meet
  // the web face u = 7.5 through fillets of radius e.
  DisegnoProva u;
  DisegnaSezione(u.t, Canale(), 0, 0, 0, 1, 1);
  bool puntaBassa = false;
  bool puntaAlta = false;
  for (const auto& l : prova::Linee(u.s)) {
    for (const Punto p : {l.a, l.b}) {
      puntaBassa = puntaBassa || Vicini(p, {65, 7.9});
      puntaAlta = puntaAlta || Vicini(p, {65, 152.1});
    }
  }
  EXPECT_TRUE(puntaBassa);
  EXPECT_TRUE(puntaAlta);
  for (const auto& arco : prova::Archi(u.s)) {
    EXPECT_NEAR(arco.Diametro(), 21, 1e-9);
    EXPECT_TRUE(std::abs(arco.inizio.x - 7.5) < 1e-9 || std::abs(arco.fine.x - 7.5) < 1e-9);
  }

  // The I's fillets: radius 18 in the corners (+-3.25, 10) and (+-3.25, 180).
  DisegnoProva i;
  DisegnaSezione(i.t, DoppioT(), 0, 0, 0, 1, 1);
  const auto archiI = prova::Archi(i.s);
  ASSERT_EQ(archiI.size(), 4u);
  for (const Punto c :
       {Punto{21.25, 28}, Punto{21.25, 162}, Punto{-21.25, 162}, Punto{-21.25, 28}}) {
    int trovati = 0;
    for (const auto& arco : archiI) trovati += Vicini(arco.centro, c) ? 1 : 0;
    EXPECT_EQ(trovati, 1) << c.x << ", " << c.y;
  }
}

TEST(ProfiliSezioni, RuotataSpecchiataEScalata) {
  struct Caso {
    double angolo, scala, specchio;
    double xMin, xMax, yMin, yMax;
  };
  // The angle LU70x7 placed at (100, 50).
  for (const Caso& c : {
           // Mirrored: u runs to the left.
           Caso{0, 1, -1, 30, 100, 50, 120},
           // A quarter turn clockwise: u goes down, v to the right; twice the size.
           Caso{kPi / 2, 2, 1, 100, 240, -90, 50},
           // Half a turn: u to the left, v down.
           Caso{kPi, 1, 1, 30, 100, -20, 50},
       }) {
    DisegnoProva d;
    DisegnaSezione(d.t, Angolare(), 100, 50, c.angolo, c.scala, c.specchio);
    EXPECT_NEAR(d.s.disegno.EstMinX, c.xMin, 1e-9) << c.angolo;
    EXPECT_NEAR(d.s.disegno.EstMaxX, c.xMax, 1e-9) << c.angolo;
    EXPECT_NEAR(d.s.disegno.EstMinY, c.yMin, 1e-9) << c.angolo;
    EXPECT_NEAR(d.s.disegno.EstMaxY, c.yMax, 1e-9) << c.angolo;
    for (const auto& [punto, strokes] : prova::GradiVertici(prova::Linee(d.s), prova::Archi(d.s))) {
      EXPECT_EQ(strokes, 2) << punto.x << ", " << punto.y;
    }
    for (const auto& a : prova::Archi(d.s)) {
      EXPECT_NEAR(Apertura(a), kPi / 2, 1e-9);
      EXPECT_NEAR(a.Diametro(), 14 * c.scala, 1e-9);
    }
  }
}

}  // namespace
}  // namespace qf17
