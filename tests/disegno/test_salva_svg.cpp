#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/formati/salva_svg.h"
#include "disegno_a_mano.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

class SalvaSvgTest : public prova::DisegnoAMano {
 protected:
  // One line of each style, a circle, a quarter arc and the three-quarter arc that completes it,
  // a flat text, an upright one and a text of no height.
  void Schizzo() {
    Linea(Punto(0, 0), Punto(100, 0), 1, 0);
    Linea(Punto(0, 50), Punto(100, 50), 2, 4);
    Linea(Punto(0, 100), Punto(100, 100), 3, 1);
    const std::int32_t sul = Punto(60, 50);
    Arco(Punto(50, 50), sul, sul, 4);
    const std::int32_t centro = Punto(150, 0), est = Punto(170, 0), nord = Punto(150, 20);
    Arco(centro, est, nord, 5);
    Arco(centro, nord, est, 7);
    Testo(Punto(0, 120), 0, 100, 69, 6, "A&");
    Testo(Punto(200, 0), 90, 100, 69, 1, "AA");
    Testo(Punto(0, 300), 0, 100, 0, 1, "A");
  }
};

// The expected file was written by hand. Y is turned downwards. The quarter arc runs
// counter-clockwise from (170, 0) to (150, 20): 90 degrees, small arc, negative sweep on the
// screen; the other runs from 90 to 360 degrees: large arc. Texts: cell width 10, height 6.9, so
// the glyph's stroke (0,30)-(99,99) goes from the anchor to anchor + (10, 6.9); turned by 90
// degrees it goes to anchor + (-6.9, 10), and the second "A" starts one cell (10) higher. The
// text of no height is left out. Box: X 0 (lines) to 200 (upright text), Y -20 (arc's circle)
// to 126.9 (flat text), widened by 10 on each side: -10 -136.9 220 166.9.
TEST_F(SalvaSvgTest, PiccoloDisegnoComeIlFileScrittoAMano) {
  Schizzo();
  const std::string atteso =
      prova::LeggiTutto(std::filesystem::path(QF17_DATI_TEST) / "disegno/dati/svg_piccolo.svg");
  ASSERT_FALSE(atteso.empty());
  EXPECT_EQ(TestoSvg(s), atteso);

  const std::filesystem::path file = cartella.percorso() / "piccolo.svg";
  ASSERT_TRUE(ScriviSvg(s, file));
  EXPECT_EQ(prova::LeggiTutto(file), atteso);
}

TEST_F(SalvaSvgTest, ColoriFuoriTabellaNeri) {
  EXPECT_EQ(ColoreSvg(-1), "#000000");
  EXPECT_EQ(ColoreSvg(8), "#000000");
  EXPECT_EQ(ColoreSvg(0), "#000000");
  EXPECT_EQ(ColoreSvg(7), "#800080");
}

// A row whose coordinate never made it into the table is skipped, not read past the end.
TEST_F(SalvaSvgTest, IndiciNonValidiSaltati) {
  Linea(Punto(0, 0), -1, 1, 0);
  Linea(0, 5, 1, 0);
  Arco(0, 7, 7, 1);
  Testo(-1, 0, 10, 10, 1, "A");
  const std::string svg = TestoSvg(s);
  EXPECT_EQ(svg.find("<line"), std::string::npos);
  EXPECT_EQ(svg.find("<circle"), std::string::npos);
  EXPECT_EQ(svg.find("<path"), std::string::npos);
  EXPECT_NE(svg.find("viewBox=\"-10 -10 20 20\""), std::string::npos) << svg;
}

}  // namespace
}  // namespace qf17
