#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/archivio_disegno_primitive.h"
#include "disegno/grb/archivio_grb.h"
#include "disegno/grb/crea_grb.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

class GrbArchivioTest : public ::testing::Test {
 protected:
  void SetUp() override {
    AzzeraDisegno(s.disegno);
    s.disegno.DestinazioneDisegno = "gendis";
  }

  const TabelleDisegno& T() const { return s.disegno.Tabelle(); }
  double X(std::int32_t i) const { return T().CoordX[i]; }
  double Y(std::int32_t i) const { return T().CoordY[i]; }

  PiattaformaRegistrata p;
  Sessione s{p};
};

TEST_F(GrbArchivioTest, TestoAncoratoSecondoIlModo) {
  struct Caso {
    std::int16_t modo;
    double x, y;  // expected anchor on the sheet
  };
  // Segment (10, 20)-(30, 60), origin (100, 200): 1 the middle, 2 the end (both in the small
  // file), any other mode the start.
  const Caso casi[] = {{0, 110, 220}, {3, 110, 220}, {-1, 110, 220}};
  s.disegno.OrigineX = 100;
  s.disegno.OrigineY = 200;
  for (const auto& c : casi) {
    SCOPED_TRACE(c.modo);
    AzzeraDisegno(s.disegno);
    ScriviTestoGRB(s, "T1", 10, 20, 30, 60, 45, c.modo, 7);
    ASSERT_EQ(s.disegno.NumTesti, 1);
    const std::int32_t punto = T().TestoPunto[0];
    EXPECT_DOUBLE_EQ(X(punto), c.x);
    EXPECT_DOUBLE_EQ(Y(punto), c.y);
    EXPECT_EQ(T().TestoColore[0], 7);  // the style
    EXPECT_EQ(T().TestoAllineamento[0], c.modo);
    EXPECT_EQ(T().TestoAngolo[0], 45);
    EXPECT_EQ(T().TestoStringa[0], "T1");
  }
  s.disegno.DestinazioneDisegno.clear();
  ScriviTestoGRB(s, "T1", 10, 20, 30, 60, 0, 1, 7);
  EXPECT_EQ(s.disegno.NumTesti, 1);  // not the target: nothing
  EXPECT_TRUE(p.messaggi.empty());
}

TEST_F(GrbArchivioTest, TipoETestoDellaQuota) {
  struct Caso {
    double x1, y1, x2, y2;
    std::string testo;
    const char* tipo;  // nullptr: nothing stored
    const char* scritto;
  };
  const Caso casi[] = {
      {0, 0, 100, 0.00009, "12", "H", "12"},  // same Y within 0.0001
      {0, 0, -0.00009, -50, "a b", "V", "a b"},
      {0, 0, 100, 0.0001, "", "P", "Stringa_di_default"},  // 0.0001 is no longer the same Y
      {5, 5, 5.00009, 4.99991, "x", nullptr, nullptr},     // a point, not a dimension
  };
  s.disegno.OrigineX = 1000;
  for (const auto& c : casi) {
    SCOPED_TRACE(c.testo + " " + std::to_string(c.x2) + " " + std::to_string(c.y2));
    AzzeraDisegno(s.disegno);
    QuotaGRB(s, c.testo, c.x1, c.y1, c.x2, c.y2, -2.5, 6);
    if (c.tipo == nullptr) {
      EXPECT_EQ(s.disegno.NumQuote, 0);
      EXPECT_EQ(s.disegno.NumCoord, 0);
      continue;
    }
    ASSERT_EQ(s.disegno.NumQuote, 1);
    EXPECT_EQ(T().QuotaTipo[0], c.tipo);
    EXPECT_EQ(T().QuotaTesto[0], c.scritto);
    EXPECT_EQ(T().QuotaStile[0], 6);
    EXPECT_DOUBLE_EQ(T().QuotaScost[0], -2.5);
    EXPECT_DOUBLE_EQ(X(T().QuotaP1[0]), c.x1 + 1000);
    EXPECT_DOUBLE_EQ(Y(T().QuotaP2[0]), c.y2);
  }
  EXPECT_TRUE(p.messaggi.empty());
}

TEST_F(GrbArchivioTest, LimitiDeiTestiEDelleQuote) {
  struct Caso {
    const char* cosa;
    std::int32_t primaDelLimite;  // count before the call that is told
    std::int32_t ultimo;          // the count at which calls stop
    const char* messaggio;
  };
  const Caso casi[] = {{"testi", 14999, 15000, "Superato il numero massimo di testi"},
                       {"quote", 999, 1000, "Superato il numero massimo di quote"}};
  for (const auto& c : casi) {
    SCOPED_TRACE(c.cosa);
    const bool testi = std::string(c.cosa) == "testi";
    auto chiama = [&](double k) {
      if (testi) {
        ScriviTestoGRB(s, "t", k, 0, k, 0, 0, 0, 2);
      } else {
        QuotaGRB(s, "", k, 0, k, 10, 0, 6);
      }
    };
    auto conta = [&]() -> std::int32_t { return testi ? s.disegno.NumTesti : s.disegno.NumQuote; };
    auto imposta = [&](std::int32_t n) {
      if (testi) {
        s.disegno.NumTesti = n;
      } else {
        s.disegno.NumQuote = static_cast<std::int16_t>(n);
      }
    };
    p.messaggi.clear();
    AzzeraDisegno(s.disegno);
    imposta(c.primaDelLimite - 1);
    chiama(1);
    EXPECT_EQ(conta(), c.primaDelLimite);
    EXPECT_TRUE(p.messaggi.empty());
    chiama(2);  // told, and stored
    EXPECT_EQ(conta(), c.ultimo);
    ASSERT_EQ(p.messaggi.size(), 1u);
    EXPECT_EQ(p.messaggi[0].testo, c.messaggio);
    EXPECT_EQ(p.messaggi[0].titolo, "QF17");
    EXPECT_EQ(p.messaggi[0].pulsanti, Pulsanti::Ok);
    chiama(3);  // full: nothing, and no word
    EXPECT_EQ(conta(), c.ultimo);
    EXPECT_EQ(p.messaggi.size(), 1u);
  }
}

TEST_F(GrbArchivioTest, AzzeraDisegnoSvuotaLeQuote) {
  QuotaGRB(s, "", 0, 0, 10, 0, 0, 6);
  s.disegno.NumPoligoni = 3;
  ASSERT_EQ(s.disegno.NumQuote, 1);
  AzzeraDisegno(s.disegno);
  EXPECT_EQ(s.disegno.NumQuote, 0);
  EXPECT_EQ(s.disegno.NumPoligoni, 0);
}

TEST(GrbCampi, RegolaDeiCampi) {
  const std::string b19(19, ' ');
  const std::string b18(18, ' ');
  struct Caso {
    std::vector<std::string> campi;
    std::string riga;
  };
  const Caso casi[] = {
      {{"1", "2", "3", "4"}, b19 + "1" + " " + b18 + "2" + " " + b18 + "3" + " " + b18 + "4"},
      {{" 7 ", "  -1"}, b19 + "7" + " " + std::string(17, ' ') + "-1"},  // trimmed first
      {{"7", ""}, b19 + "7"},              // an empty last field is trimmed away
      {{"", ""}, ""},                      // nothing at all
      {{"\xC3\xA8"}, b19 + "\xC3\xA8"},    // one character, one column
      {{"123456789012345678901234", "x"},  // 24 characters cut to the first 20
       "12345678901234567890" + std::string(" ") + b18 + "x"},
      {{"a", "abcdefghijklmnopqrstuvwxyz"},  // 26 characters cut to the first 19
       std::string(19, ' ') + "a " + "abcdefghijklmnopqrs"},
      {{"12345678901234567890", "1234567890123456789"},  // exactly the widths: kept whole
       "12345678901234567890 1234567890123456789"},
  };
  for (const auto& c : casi) {
    SCOPED_TRACE(c.riga);
    EXPECT_EQ(CampiGrb(c.campi), c.riga);
  }
}

TEST(GrbCampi, ColoreDUscita) {
  const std::pair<std::int16_t, std::int16_t> casi[] = {{0, 0}, {7, 7}, {8, 1}, {-1, 1}, {255, 1}};
  for (const auto& [colore, uscita] : casi) EXPECT_EQ(ColoreGrb(colore), uscita) << colore;
}

// A store built by hand, every table used once or twice, against a file written by hand.
TEST_F(GrbArchivioTest, FilePiccoloByteAByte) {
  s.disegno.OrigineX = 10;
  s.disegno.OrigineY = 5;
  DisegnaLinea(s, 0, 0, 100, 0, 9);  // coordinates 0 (10, 5) and 1 (110, 5); colour 9 goes out as 1
  s.disegno.StileLinea = 1;
  DisegnaLinea(s, 100, 0, 100, 40, 3);  // shares 1; 2 is (110, 45); dashed, type 4
  s.disegno.StileLinea = 0;
  DisegnaCerchio(s, 50, 20, 10, 2);                           // centre 3 (60, 25), ends 4 (65, 25)
  ScriviTestoGRB(s, "Nodo \xC3\xA8", 0, 0, 100, 0, 0, 1, 3);  // middle: 5 (60, 5), style 3
  ScriviTestoGRB(s, "B", 0, 0, 100, 40, 90, 2, 1);            // end: shares 2
  QuotaGRB(s, "", 0, 0, 100, 0, 0, 6);                        // H from 0 to 1
  QuotaGRB(s, "40", 100, 0, 100, 40, -12.5, 3);               // V from 1 to 2
  QuotaGRB(s, "", 0, 0, 100, 40, 7.25, 1);                    // P from 0 to 2
  QuotaGRB(s, "x", 5, 5, 5.00005, 5, 0, 1);                   // no length: nothing
  ASSERT_EQ(s.disegno.NumCoord, 6);

  const std::string atteso = prova::LeggiTutto(std::filesystem::path(QF17_DATI_TEST) / "disegno" /
                                               "dati" / "grb_piccolo.grb");
  ASSERT_FALSE(atteso.empty());
  EXPECT_EQ(CreaGRB(s.disegno), atteso);
}

}  // namespace
}  // namespace qf17
