#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "disegno/esecutivo/quote.h"
#include "disegno/esecutivo/tavola_dis.h"
#include "quote_prova.h"

namespace qf17 {
namespace {

using prova::AttesoPunto;
using prova::Linee;
using prova::Testi;

class QuotaTest : public ::testing::Test, public prova::SessioneQuote {};

// The open arrow's half angle: tan(15 degrees) = 2 - sqrt(3).
const double kTan15 = 2 - std::sqrt(3.0);

// With no line colour only the text is stored, centred on the segment and `distanza` to the left
// of its direction; the segment still widens the extents, the origin included.
TEST_F(QuotaTest, ColoreMeno1SoloTestoCentrato) {
  struct Caso {
    double x1, x2, y1, y2;
    std::string testo;
    double larghezza, distanza;
    double ax, ay;
    std::int16_t angolo;
  };
  const Caso casi[] = {
      // "AB" 2 x 10 = 20 long on 100: q = 0.2; x = 50 - 100 x 0.1 = 40, y = 0 + 100 x 5 / 100.
      {0, 100, 0, 0, "AB", 10, 5, 40, 5, 0},
      // The same given right to left: the ends are sorted first.
      {100, 0, 0, 0, "AB", 10, 5, 40, 5, 0},
      // (0,0)-(30,40), L 50, "ABCDE" 5 x 2 = 10: q = 0.2; x = 15 - 30 x 0.1 - 40 x 5 / 50 = 8,
      // y = 20 - 40 x 0.1 + 30 x 5 / 50 = 19; atan(4/3) = 53.13 degrees.
      {0, 30, 0, 40, "ABCDE", 2, 5, 8, 19, 53},
      // Falling: (0,10)-(10,0), "A" 1 x 1 on 14.142: centre (5, 5) less half the text along the
      // line (-0.3536, +0.3536), no distance; -45 degrees.
      {0, 10, 10, 0, "A", 1, 0, 5 - 0.5 / std::sqrt(2.0), 5 + 0.5 / std::sqrt(2.0), -45},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.testo + " " + std::to_string(c.x1));
    AzzeraDisegno(a);
    a.OrigineX = 1000;
    Quota(s, c.testo, c.x1, c.x2, c.y1, c.y2, -1, 6, c.larghezza, 8, c.distanza, 1);
    EXPECT_EQ(a.NumLinee, 0);
    EXPECT_EQ(a.NumArchi, 0);
    const auto testi = Testi(a);
    ASSERT_EQ(testi.size(), 1u);
    AttesoPunto(testi[0].punto, 1000 + c.ax, c.ay, "ancora");
    EXPECT_EQ(testi[0].testo, c.testo);
    EXPECT_EQ(testi[0].angolo, c.angolo);
    EXPECT_EQ(testi[0].larghezza, c.larghezza * 10);
    EXPECT_EQ(testi[0].altezza, 80);
    EXPECT_EQ(testi[0].colore, 6);
  }
  EXPECT_EQ(a.EstMinX, 1000);
  EXPECT_EQ(a.EstMaxX, 1100);
  EXPECT_EQ(a.EstMaxY, 40);
}

// (0,0)-(30,40) with arrows of 5: a = atan(4/3), cos 0.6, sin 0.8, r tan15 = 1.3397460.
// End 1 tips: (3 -+ 0.8 x 1.3397460, 4 +- 0.6 x 1.3397460) = (1.9282032, 4.8038476) and
// (4.0717968, 3.1961524); end 2 the same taken back from (30, 40). The measure 50, "50" 16 long:
// q = 0.32, x = 15 - 30 x 0.16 - 40 x 10 / 50 = 2.2, y = 20 - 40 x 0.16 + 30 x 10 / 50 = 19.6.
TEST_F(QuotaTest, FrecceEAncoraDiUnaQuotaInclinata) {
  Quota(s, "", 0, 30, 0, 40, 4, 2, 8, 8, 10, 1);
  const double rt = 5 * kTan15;
  const Punto a1{3 - 0.8 * rt, 4 + 0.6 * rt}, b1{3 + 0.8 * rt, 4 - 0.6 * rt};
  const Punto a2{30 - a1.x, 40 - a1.y}, b2{30 - b1.x, 40 - b1.y};
  EXPECT_NEAR(a1.x, 1.9282032, 1e-7);
  EXPECT_NEAR(a1.y, 4.8038476, 1e-7);
  const auto linee = Linee(a);
  ASSERT_EQ(linee.size(), 7u);
  const struct {
    Punto a, b;
  } attese[] = {{{0, 0}, a1},   {{0, 0}, b1}, {a1, b1},          {{30, 40}, a2},
                {{30, 40}, b2}, {a2, b2},     {{0, 0}, {30, 40}}};
  for (std::size_t i = 0; i < linee.size(); ++i) {
    AttesoPunto(linee[i].a, attese[i].a.x, attese[i].a.y, "linea " + std::to_string(i));
    AttesoPunto(linee[i].b, attese[i].b.x, attese[i].b.y, "linea " + std::to_string(i));
    EXPECT_EQ(linee[i].colore, 4);
  }
  const auto testi = Testi(a);
  ASSERT_EQ(testi.size(), 1u);
  EXPECT_EQ(testi[0].testo, "50");
  AttesoPunto(testi[0].punto, 2.2, 19.6, "ancora");
  EXPECT_EQ(testi[0].angolo, 53);
  EXPECT_EQ(testi[0].colore, 2);
}

// Indicators point inward while two of them fit: a length of exactly 2 x 5 still does.
TEST_F(QuotaTest, IndicatoriDentroFinoADueDiametri) {
  struct Caso {
    double lunghezza;
    double verso;  // +1 inward, -1 outward
  };
  const double rt = 5 * kTan15;
  for (const Caso c : {Caso{100, 1}, Caso{10, 1}, Caso{9.99, -1}}) {
    SCOPED_TRACE(c.lunghezza);
    AzzeraDisegno(a);
    Quota(s, "", 0, c.lunghezza, 0, 0, 4, 1, 8, 8, 10, 1);
    const auto linee = Linee(a);
    ASSERT_EQ(linee.size(), 7u);
    // First tip of each end: (0, 0) + verso (5, r tan15), (L, 0) - verso (5, r tan15).
    AttesoPunto(linee[0].b, 5 * c.verso, rt * c.verso, "punta 1");
    AttesoPunto(linee[3].b, c.lunghezza - 5 * c.verso, -rt * c.verso, "punta 2");
  }
  // Circles instead of arrows: one of diameter 5 at each end, in the line's colour.
  s.opzioni[27] = 0;
  AzzeraDisegno(a);
  Quota(s, "", 0, 100, 0, 0, 4, 1, 8, 8, 10, 1);
  EXPECT_EQ(a.NumLinee, 1);
  const auto archi = prova::Archi(a);
  ASSERT_EQ(archi.size(), 2u);
  AttesoPunto(archi[0].centro, 0, 0, "cerchio 1");
  AttesoPunto(archi[0].inizio, 2.5, 0, "cerchio 1");
  AttesoPunto(archi[0].fine, 2.5, 0, "cerchio 1");
  AttesoPunto(archi[1].centro, 100, 0, "cerchio 2");
  EXPECT_EQ(archi[1].colore, 4);
}

// The measure is |fattore| x L rounded to one decimal with halves up, in its shortest form.
TEST_F(QuotaTest, MisuraAUnDecimale) {
  struct Caso {
    double lunghezza, fattore;
    const char* testo;
  };
  for (const Caso c :
       {Caso{1245.25, 1, "1245.3"}, Caso{99.96, 1, "100"}, Caso{12.25, 1, "12.3"},
        Caso{50, -2, "100"}, Caso{60, 0.5, "30"}, Caso{0.04, 1, "0"}, Caso{7.5, 1, "7.5"}}) {
    SCOPED_TRACE(c.testo);
    AzzeraDisegno(a);
    Quota(s, "", 0, c.lunghezza, 0, 0, 4, 1, 0.001, 8, 10, c.fattore);
    ASSERT_EQ(a.NumTesti, 1);
    EXPECT_EQ(Testi(a)[0].testo, c.testo);
  }
  EXPECT_EQ(TestoMisura(1245.25), "1245.3");
}

// A vertical dimension is sorted upward whatever the order given, so its text reads at +90 on
// the left of the line. "100", 24 long: q = 0.24, x = 0 - 100 x 10 / 100 = -10,
// y = 50 - 100 x 0.12 = 38.
TEST_F(QuotaTest, QuotaVerticaleSaleA90Gradi) {
  for (const bool dallAlto : {true, false}) {
    AzzeraDisegno(a);
    if (dallAlto) {
      Quota(s, "", 0, 0, 100, 0, 4, 1, 8, 8, 10, 1);
    } else {
      Quota(s, "", 0, 0, 0, 100, 4, 1, 8, 8, 10, 1);
    }
    const auto testi = Testi(a);
    ASSERT_EQ(testi.size(), 1u);
    EXPECT_EQ(testi[0].angolo, 90);
    EXPECT_EQ(testi[0].testo, "100");
    AttesoPunto(testi[0].punto, -10, 38, dallAlto ? "dall'alto" : "dal basso");
    // The first arrow is at the lower end, opening upward.
    AttesoPunto(Linee(a)[0].a, 0, 0, "prima freccia");
    AttesoPunto(Linee(a)[0].b, -5 * kTan15, 5, "prima freccia");
  }
}

// A segment under 0.0001 both ways draws nothing, but its ends still reach the extents.
TEST_F(QuotaTest, QuotaNullaNonDisegna) {
  for (const std::int16_t colore : {std::int16_t{4}, std::int16_t{-1}}) {
    AzzeraDisegno(a);
    Quota(s, "X", 5, 5.00009, 7, 6.99991, colore, 1, 8, 8, 10, 1);
    EXPECT_EQ(a.NumLinee, 0);
    EXPECT_EQ(a.NumArchi, 0);
    EXPECT_EQ(a.NumTesti, 0);
  }
  EXPECT_EQ(a.EstMinX, 5);
  EXPECT_EQ(a.EstMaxY, 7);
}

// In a chain a text longer than its dimension goes to the far side (-10 - 8 from the line),
// the next such text to the near side, and a text that fits resets the turn. Segments of 10
// with "10" 16 long do not fit; the one of 180 does.
TEST_F(QuotaTest, CatenaAlternaITestiCorti) {
  s.opzioni[3] = 2;
  s.opzioni[4] = 5;
  TavolaDis tavola(s);
  const std::vector<Punto> punti{{0, 0}, {10, 0}, {20, 0}, {200, 0}, {210, 0}, {220, 0}, {230, 0}};
  QuotaCatena(tavola, punti);
  EXPECT_EQ(a.QuotaAlterna, 0);
  const auto testi = Testi(a);
  ASSERT_EQ(testi.size(), 6u);
  const double attese[] = {-18, 10, 10, -18, 10, -18};
  const char* scritte[] = {"10", "10", "180", "10", "10", "10"};
  for (std::size_t i = 0; i < testi.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(testi[i].testo, scritte[i]);
    EXPECT_DOUBLE_EQ(testi[i].punto.y, attese[i]);
    EXPECT_EQ(testi[i].colore, 2);
    EXPECT_EQ(testi[i].larghezza, 80);
  }
  // Centred all the same: 5 - 16 / 2.
  EXPECT_DOUBLE_EQ(testi[0].punto.x, -3);
  for (const auto& l : Linee(a)) EXPECT_EQ(l.colore, 5);
  // Outside a chain nothing alternates.
  AzzeraDisegno(a);
  tavola.Quota("", 0, 10, 0, 0, 10, 1);
  tavola.Quota("", 10, 20, 0, 0, 10, 1);
  EXPECT_DOUBLE_EQ(Testi(a)[0].punto.y, 10);
  EXPECT_DOUBLE_EQ(Testi(a)[1].punto.y, 10);
}

// The chain's factor reaches every measure: a detail drawn twice its size reads true values.
TEST_F(QuotaTest, CatenaConFattore) {
  TavolaDis tavola(s);
  QuotaCatena(tavola, {{0, 0}, {200, 0}, {500, 0}}, 0.5);
  EXPECT_EQ(prova::Stringhe(a), (std::vector<std::string>{"100", "150"}));
}

TEST(OrdinaPunti, CrescentiSullAsseScelto) {
  std::vector<Punto> punti{{3, 1}, {1, 3}, {2, 2}, {1, 0}};
  OrdinaPunti(punti, Asse::X);
  EXPECT_EQ(punti[0].y, 3);  // equal X keep their order
  EXPECT_EQ(punti[1].y, 0);
  EXPECT_EQ(punti[3].x, 3);
  OrdinaPunti(punti, Asse::Y);
  EXPECT_EQ(punti[0].y, 0);
  EXPECT_EQ(punti[3].y, 3);
}

// The DIS sheet: each kind of text with its own options; a centred text has no line.
TEST_F(QuotaTest, TavolaDisDimensioniPerClasse) {
  s.opzioni[8] = 3, s.opzioni[7] = 4, s.opzioni[10] = 5, s.opzioni[9] = 6;
  s.opzioni[12] = 7, s.opzioni[11] = 2.5;
  TavolaDis tavola(s);
  struct Caso {
    ClasseTesto classe;
    double larghezza, altezza;
  };
  for (const Caso c : {Caso{ClasseTesto::Quote, 3, 4}, Caso{ClasseTesto::Testi, 5, 6},
                       Caso{ClasseTesto::Distinta, 7, 2.5}}) {
    SCOPED_TRACE(static_cast<int>(c.classe));
    AzzeraDisegno(a);
    EXPECT_EQ(tavola.Larghezza(c.classe), c.larghezza);
    EXPECT_EQ(tavola.Altezza(c.classe), c.altezza);
    tavola.Testo("T", 1, 2, 30, c.classe, 3);
    tavola.TestoCentrato("AB", 0, 100, 0, 0, 1, c.classe, 6);
    EXPECT_EQ(a.NumLinee, 0);
    const auto testi = Testi(a);
    ASSERT_EQ(testi.size(), 2u);
    AttesoPunto(testi[0].punto, 1, 2, "testo");
    EXPECT_EQ(testi[0].angolo, 30);
    EXPECT_EQ(testi[0].colore, 3);
    // 50 less half of 2 characters, 1 above the line.
    AttesoPunto(testi[1].punto, 50 - c.larghezza, 1, "centrato");
    for (const auto& t : testi) {
      EXPECT_EQ(t.larghezza, c.larghezza * 10);
      EXPECT_EQ(t.altezza, c.altezza * 10);
    }
    EXPECT_EQ(testi[1].colore, 6);
  }
}

}  // namespace
}  // namespace qf17
