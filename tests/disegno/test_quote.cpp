// One dimension and one chain at their edges and off the installation's options; inclined
// dimensions, centred texts and chains at those options are pinned by the samples' sheets.

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

// The open arrow's half angle: tan 15 degrees = 2 - sqrt 3.
const double kTan15 = 2 - std::sqrt(3.0);

// Arrows of 5 point inward while two fit (L >= 10): first tip of each end at (0, 0) + v (5, 5 tan
// 15) and (L, 0) - v (5, 5 tan 15). Circles instead (option 27 at 0): one of diameter 5 an end.
TEST_F(QuotaTest, IndicatoriDentroFinoADueDiametri) {
  const double rt = 5 * kTan15;
  for (const auto& [lunghezza, verso] : {std::pair{10.0, 1.0}, std::pair{9.99, -1.0}}) {
    SCOPED_TRACE(lunghezza);
    AzzeraDisegno(a);
    Quota(s, "", 0, lunghezza, 0, 0, 4, 1, 8, 8, 10, 1);
    const auto linee = Linee(a);
    ASSERT_EQ(linee.size(), 7u);
    AttesoPunto(linee[0].b, 5 * verso, rt * verso, "punta 1");
    AttesoPunto(linee[3].b, lunghezza - 5 * verso, -rt * verso, "punta 2");
  }
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

// |fattore| x L to one decimal, halves up, in its shortest form.
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
}

// Given downward, a vertical dimension is turned upward: text at +90, left of the line:
// "100" 24 long, x = -10, y = 50 - 24 / 2 = 38; the first arrow at the lower end.
TEST_F(QuotaTest, QuotaVerticaleDataDallAltoSale) {
  Quota(s, "", 0, 0, 100, 0, 4, 1, 8, 8, 10, 1);
  const auto testi = Testi(a);
  ASSERT_EQ(testi.size(), 1u);
  EXPECT_EQ(testi[0].angolo, 90);
  AttesoPunto(testi[0].punto, -10, 38, "testo");
  AttesoPunto(Linee(a)[0].a, 0, 0, "prima freccia");
  AttesoPunto(Linee(a)[0].b, -5 * kTan15, 5, "prima freccia");
}

// Under 0.0001 both ways nothing is drawn, text or line, but the ends reach the extents.
TEST_F(QuotaTest, QuotaNullaNonDisegna) {
  for (const std::int16_t colore : {std::int16_t{4}, std::int16_t{-1}}) {
    AzzeraDisegno(a);
    Quota(s, "X", 5, 5.00009, 7, 6.99991, colore, 1, 8, 8, 10, 1);
    EXPECT_EQ(a.NumLinee + a.NumArchi + a.NumTesti, 0);
  }
  EXPECT_EQ(a.EstMinX, 5);
  EXPECT_EQ(a.EstMaxY, 7);
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

// Each kind of text with its own width and height (options 8 and 7, 10 and 9, 12 and 11); a centred
// text stands 50 less one character from the middle, 1 above its line, and draws no line.
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
    AttesoPunto(testi[1].punto, 50 - c.larghezza, 1, "centrato");
    for (const auto& t : testi) {
      EXPECT_EQ(t.larghezza, c.larghezza * 10);
      EXPECT_EQ(t.altezza, c.altezza * 10);
    }
  }
}

}  // namespace
}  // namespace qf17
