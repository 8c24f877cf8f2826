#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <numbers>
#include <string>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/archivio_disegno_primitive.h"
#include "disegno/formati/salva_dxf.h"
#include "disegno_a_mano.h"
#include "librerie/numeri.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

// Head and layer table of every file whose drawing spans nothing but the origin.
const std::string kTestaOrigine =
    " 0\r\nSECTION\r\n 2\r\nHEADER\r\n 9\r\n$EXTMIN\r\n 10\r\n 0\r\n 20\r\n 0\r\n 30\r\n0.0\r\n"
    " 9\r\n$EXTMAX\r\n 10\r\n 0\r\n 20\r\n 0\r\n 30\r\n0.0\r\n 0\r\nENDSEC\r\n"
    " 0\r\nSECTION\r\n 2\r\nTABLES\r\n 0\r\nTABLE\r\n 2\r\nLAYER\r\n 70\r\n1\r\n"
    " 0\r\nLAYER\r\n 2\r\n0\r\n 70\r\n0\r\n 62\r\n7\r\n 6\r\nCONTINUOUS\r\n"
    " 0\r\nENDTAB\r\n 0\r\nENDSEC\r\n 0\r\nSECTION\r\n 2\r\nENTITIES\r\n";
const std::string kCoda = " 0\r\nENDSEC\r\n 0\r\nEOF\r\n";

class SalvaDxfTest : public prova::DisegnoAMano {
 protected:
  // Lines of each kind, texts with the diameter sign, an accent, a negative angle and no height,
  // a circle, two arcs and one of no radius.
  void Schizzo() {
    const std::int32_t origine = Punto(0, 0);
    Linea(origine, Punto(100, 0), 1, 0);
    const std::int32_t sinistra = Punto(0, 50);
    Linea(sinistra, Punto(100, 50), 2, 4);
    const std::int32_t fuori = Punto(-20.5, 100);
    Linea(fuori, Punto(100, 100), 3, 1);
    Linea(origine, sinistra, 7, 2);
    Testo(Punto(10, 120), 0, 25, 35, 1, "]20, ]16");
    Testo(Punto(200, 0), 90, 20, 20, 6, "Nodo è");
    Testo(Punto(0, 300), 0, 20, 0, 1, "zero");
    Testo(fuori, -30, 10, 10, 0, "A]");
    const std::int32_t sul = Punto(60, 50);
    Arco(Punto(50, 50), sul, sul, 4);
    const std::int32_t centro = Punto(150, 0);
    Arco(centro, Punto(170, 0), Punto(150, 20), 5);
    Arco(centro, Punto(130, 0), Punto(150, -20), 1, 4);
    Arco(centro, Punto(150, 0.00005), Punto(150, 0.00005), 2);
  }

  // The entities written between the head and the close.
  std::string Entita(const ModoDxf& modo = {}) const {
    const std::string dxf = TestoDxf(a, s.font, modo);
    const std::size_t inizio = dxf.find("ENTITIES\r\n");
    EXPECT_NE(inizio, std::string::npos);
    EXPECT_TRUE(dxf.ends_with(kCoda));
    if (inizio == std::string::npos || dxf.size() < kCoda.size()) return {};
    const std::size_t da = inizio + 10;
    return dxf.substr(da, dxf.size() - kCoda.size() - da);
  }
};

// The expected file was written by hand. Extents over all 18 coordinates: X -20.5 to 200,
// Y -20 to 300; 5% of 220.5 is 11.025, of 320 is 16, so 16 is taken off and added: -36.5 -36
// 216 316. Lines: colour 1 has no 62; 2, 3, 7 map to 5, 1, 6; types 4, 1, 2 are DASHED2,
// CENTER, DASHED. Texts: height 35 tenths is 3.5, width factor 2.5 / 3.5 = 0.714285714285714
// (15 digits), the first "]" only becomes "%%c"; "è" is byte E8; the text of no height is left
// out; colour 0 maps to 18, the angle -30 keeps its sign and has no blank. Arcs: the circle has
// radius 10; the quarter from (170, 0) to (150, 20) round (150, 0) runs 0 to 90; the one from
// (130, 0) (dx -20, dy 0: 180 - 0) to (150, -20) (dx 0, below: 270) keeps its type 4 and
// colour 1 has no 62; the arc of radius 0.00005 is left out.
TEST_F(SalvaDxfTest, PiccoloDisegnoComeIlFileScrittoAMano) {
  Schizzo();
  const std::string atteso =
      prova::LeggiTutto(fs::path(QF17_DATI_TEST) / "disegno/dati/dxf_piccolo.dxf");
  ASSERT_FALSE(atteso.empty());
  EXPECT_EQ(TestoDxf(a, s.font), atteso);

  const std::string nome = (cartella.percorso() / "piccolo.dxf").string();
  EXPECT_TRUE(SalvaDxf(s, nome, 0, 0, 0, 0, 0));
  EXPECT_EQ(prova::LeggiTutto(nome), atteso);
  ASSERT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(p.messaggi[0].testo, "File " + nome + " salvato.");
  EXPECT_EQ(p.messaggi[0].titolo, "SALVA FILE DXF");
  EXPECT_EQ(p.messaggi[0].icona, Icona::Informazione);
  EXPECT_EQ(p.messaggi[0].pulsanti, Pulsanti::Ok);
}

// The writer leaves the drawing as it was: no clean-up, so a dashed line lying on a continuous
// one stays, and a coordinate nothing uses still counts in the extents: X and Y 0 to 500,
// widened by 25 on each side.
TEST_F(SalvaDxfTest, DisegnoNonPulito) {
  Linea(Punto(0, 0), Punto(100, 0), 1, 0);
  Linea(Punto(10, 0), Punto(30, 0), 2, 4);
  Punto(500, 500);
  const std::string nome = (cartella.percorso() / "non_pulito.dxf").string();
  ASSERT_TRUE(SalvaDxf(s, nome, 0, 0, 0, 0, 1));
  const std::string dxf = prova::LeggiTutto(nome);
  EXPECT_EQ(a.NumLinee, 2);
  EXPECT_EQ(a.NumCoord, 5);
  EXPECT_NE(dxf.find(" 11\r\n 30\r\n 21\r\n 0\r\n 31\r\n0.0\r\n 62\r\n 5\r\n 6\r\nDASHED2\r\n"),
            std::string::npos);
  EXPECT_NE(dxf.find("$EXTMIN\r\n 10\r\n-25\r\n 20\r\n-25\r\n"), std::string::npos);
  EXPECT_NE(dxf.find("$EXTMAX\r\n 10\r\n 525\r\n 20\r\n 525\r\n"), std::string::npos);
}

// Colours and types the hand-written file does not hold: out of the table, colour 7 and type
// CONTINUOUS; in a monochrome file every colour is 7.
TEST_F(SalvaDxfTest, ColoriENomiDeiTipiFuoriTabella) {
  for (const auto& [colore, atteso] :
       std::vector<std::pair<int, int>>{{6, 8}, {8, 7}, {-1, 7}, {0, 18}}) {
    EXPECT_EQ(ColoreDxf(static_cast<std::int16_t>(colore), false), atteso) << colore;
    EXPECT_EQ(ColoreDxf(static_cast<std::int16_t>(colore), true), 7) << colore;
  }
  EXPECT_EQ(NomeTipoLineaDxf(3), "DIVIDE");
  EXPECT_EQ(NomeTipoLineaDxf(5), "CONTINUOUS");
  EXPECT_EQ(NomeTipoLineaDxf(-1), "CONTINUOUS");
}

// Group 62 is left out by the store's colour 1 for lines, texts and arcs, but by the output
// colour 7 for the strokes of an exploded text: so colour 8 (output 7) has a 62 on a line and
// none on a stroke, and in a monochrome file a line of colour 3 says 62 7. Group 6 goes with
// every code but 0, even an unknown one.
TEST_F(SalvaDxfTest, Gruppi62E6LasciatiFuoriQuandoDovuto) {
  struct Caso {
    std::int16_t colore, tipo;
    bool monocromo;
    std::string linea, arco, testo, tratto;  // what follows the last coordinate
  };
  const std::string z = " 31\r\n0.0\r\n";
  const std::vector<Caso> casi = {
      {1, 0, false, "", "", "", ""},
      {1, 4, false, " 6\r\nDASHED2\r\n", " 6\r\nDASHED2\r\n", "", ""},
      {3, 1, false, " 62\r\n 1\r\n 6\r\nCENTER\r\n", " 62\r\n 1\r\n 6\r\nCENTER\r\n",
       " 62\r\n 1\r\n", " 62\r\n 1\r\n"},
      {8, 9, false, " 62\r\n 7\r\n 6\r\nCONTINUOUS\r\n", " 62\r\n 7\r\n 6\r\nCONTINUOUS\r\n",
       " 62\r\n 7\r\n", ""},
      {3, -2, true, " 62\r\n 7\r\n 6\r\nCONTINUOUS\r\n", " 62\r\n 7\r\n 6\r\nCONTINUOUS\r\n",
       " 62\r\n 7\r\n", ""},
      {0, 0, false, " 62\r\n 18\r\n", " 62\r\n 18\r\n", " 62\r\n 18\r\n", " 62\r\n 18\r\n"},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(testing::Message() << "colore " << c.colore << " tipo " << c.tipo);
    AzzeraDisegno(a);
    Linea(Punto(0, 0), Punto(10, 0), c.colore, c.tipo);
    ModoDxf modo;
    modo.monocromo = c.monocromo;
    EXPECT_TRUE(Entita(modo).ends_with(z + c.linea)) << Entita(modo);

    AzzeraDisegno(a);
    const std::int32_t centro = Punto(0, 0);
    Arco(centro, Punto(10, 0), Punto(0, 10), c.colore, c.tipo);
    EXPECT_TRUE(Entita(modo).ends_with(" 51\r\n 90\r\n" + c.arco)) << Entita(modo);

    AzzeraDisegno(a);
    Testo(Punto(0, 0), 0, 10, 10, c.colore, "A");
    EXPECT_TRUE(Entita(modo).ends_with(" 41\r\n 1\r\n" + c.testo)) << Entita(modo);
    modo.esplodiTesti = true;
    EXPECT_TRUE(Entita(modo).ends_with(z + c.tratto)) << Entita(modo);
  }
}

// The plain form is the list-print form without its trailing blank.
TEST_F(SalvaDxfTest, NumeriConBlancoInizialeESenzaFinale) {
  struct Caso {
    double valore;
    std::string atteso;
  };
  for (const Caso& c : std::vector<Caso>{{0, " 0"},
                                         {-0.0, " 0"},
                                         {12.5, " 12.5"},
                                         {0.5, " 0.5"},
                                         {-3, "-3"},
                                         {-0.25, "-0.25"},
                                         {1.0 / 3, " 0.333333333333333"},
                                         {1e-7, " 1E-07"},
                                         {1e20, " 1E+20"}}) {
    EXPECT_EQ(NumeroDxf(c.valore), c.atteso) << c.valore;
    EXPECT_EQ(NumeroDxf(c.valore) + " ", TestoLista(c.valore)) << c.valore;
  }
  EXPECT_EQ(NumeroDxf(7LL), " 7");
  EXPECT_EQ(NumeroDxf(-30LL), "-30");
  EXPECT_EQ(NumeroDxf(0LL), " 0");
}

// Angles by the quadrant rule on a 3-4-5 triangle: atan(3/4) = 36.869897645844 degrees (the
// family's pi, 3.14159265358979, moves it by 1E-13 at most).
TEST_F(SalvaDxfTest, AngoliNeiQuattroQuadranti) {
  const double b = 36.869897645844;
  struct Caso {
    double x, y, atteso;
  };
  for (const Caso& c :
       std::vector<Caso>{{4, 3, b},
                         {-4, 3, 180 - b},
                         {-4, -3, 180 + b},
                         {4, -3, 360 - b},
                         {5, 0, 0},
                         {-5, 0, 180},
                         {0, 5, 90},
                         {0, -5, 270},
                         {0.00009, 5, 90},  // |dx| under 0.0001: upright
                         {0.00009, -5, 270},
                         {-0.00009, 0, 270},  // not above: 270
                         {0.00011, 5, 90 - std::atan(0.00011 / 5) * 180 / 3.14159265358979}}) {
    EXPECT_NEAR(AngoloDxf(10, 20, 10 + c.x, 20 + c.y), c.atteso, 1e-9) << c.x << " " << c.y;
  }
  // Just below the X axis: 360 - 1.1E-19 is 360 in a double, and 360 wraps to 0.
  EXPECT_EQ(AngoloDxf(0, 0, 5, -1e-20), 0.0);
  EXPECT_EQ(AngoloDxf(0, 0, 5, -1e-5), 360 - std::atan(1e-5 / 5) * 180 / 3.14159265358979);
}

// A circle and a 360-degree arc are one thing: the two ends meet. An arc from 0 to pi/2 is an
// ARC from 0 to 90 degrees. All three have diameter 20 round (50, 50).
TEST_F(SalvaDxfTest, CerchioControArco) {
  a.DestinazioneDisegno = "gendis";
  DisegnaCerchio(s, 50, 50, 20, std::int16_t{1});
  DisegnaCerchio(s, 50, 50, 20, std::int16_t{1}, 0, 2 * std::numbers::pi);
  DisegnaCerchio(s, 50, 50, 20, std::int16_t{1}, 0, std::numbers::pi / 2);
  const std::string cerchio =
      " 0\r\nCIRCLE\r\n 8\r\n0\r\n 10\r\n 50\r\n 20\r\n 50\r\n 30\r\n0.0\r\n 40\r\n 10\r\n";
  EXPECT_EQ(Entita(), cerchio + cerchio +
                          " 0\r\nARC\r\n 8\r\n0\r\n 10\r\n 50\r\n 20\r\n 50\r\n 30\r\n0.0\r\n"
                          " 40\r\n 10\r\n 50\r\n 0\r\n 51\r\n 90\r\n");
}

// With no arcs, and even with nothing at all, the ENTITIES section is closed and the file ends.
// The extents of an empty table read row 0.
TEST_F(SalvaDxfTest, SenzaArchiSezioneChiusa) {
  EXPECT_EQ(TestoDxf(a, s.font), kTestaOrigine + kCoda);

  Linea(Punto(0, 0), Punto(0, 0), 1, 0);
  EXPECT_EQ(TestoDxf(a, s.font),
            kTestaOrigine +
                " 0\r\nLINE\r\n 8\r\n0\r\n 10\r\n 0\r\n 20\r\n 0\r\n 30\r\n0.0\r\n"
                " 11\r\n 0\r\n 21\r\n 0\r\n 31\r\n0.0\r\n" +
                kCoda);
}

// Rows pointing outside the live coordinates cannot be written and are left out.
TEST_F(SalvaDxfTest, IndiciNonValidiSaltati) {
  Punto(0, 0);
  Linea(0, -1, 1, 0);
  Linea(0, 5, 1, 0);
  Arco(0, 7, 7, 1);
  Testo(-1, 0, 10, 10, 1, "A");
  EXPECT_EQ(TestoDxf(a, s.font), kTestaOrigine + kCoda);
}

// Exploded texts: the glyph's stroke (0,30)-(99,99) in a cell 10 wide and 6.9 high runs from
// the anchor to anchor + (10, 6.9); upright, to anchor + (-6.9, 10), and the second "A" starts
// one cell (10) higher. "&" draws nothing. Colour 6 is 8; colour 1 (7) has no 62. No TEXT.
TEST_F(SalvaDxfTest, TestiEsplosiInTratti) {
  Testo(Punto(0, 120), 0, 100, 69, 6, "A&");
  Testo(Punto(200, 0), 90, 100, 69, 1, "AA");
  Testo(Punto(0, 300), 0, 0, 69, 1, "A");  // no width: left out
  ModoDxf modo;
  modo.esplodiTesti = true;
  auto linea = [](std::string x1, std::string y1, std::string x2, std::string y2) {
    return " 0\r\nLINE\r\n 8\r\n0\r\n 10\r\n" + x1 + "\r\n 20\r\n" + y1 + "\r\n 30\r\n0.0\r\n" +
           " 11\r\n" + x2 + "\r\n 21\r\n" + y2 + "\r\n 31\r\n0.0\r\n";
  };
  EXPECT_EQ(Entita(modo), linea(" 0", " 120", " 10", " 126.9") + " 62\r\n 8\r\n" +
                              linea(" 200", " 0", " 193.1", " 10") +
                              linea(" 200", " 10", " 193.1", " 20"));
  modo.monocromo = true;
  EXPECT_EQ(Entita(modo).find(" 62"), std::string::npos);
}

}  // namespace
}  // namespace qf17
