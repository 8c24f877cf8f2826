#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "disegno/leggi_stili_grb.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

const std::string kCoda = "- verranno usati i parametri disegno della versione autonoma.";

class StiliGRBTest : public ::testing::Test {
 protected:
  fs::path Scrivi(const std::string& testo) { return spazio_.Scrivi("cad2dmodello.grb", testo); }

  prova::CartellaProva spazio_;
  const fs::path cartella_ = spazio_.percorso();
  PiattaformaRegistrata piattaforma_;
  StiliGRB stili_;
};

// A template head and one style with the given head list and sizes.
std::string Modello(const std::string& testa, const std::string& dimensioni) {
  return "                   4\r\n" + testa + "\r\n                   1\r\nStile\r\n" + dimensioni +
         "   3   0\r\n   1   0   0\r\n";
}

TEST_F(StiliGRBTest, CodiciDiUnitaEFattoreDiScala) {
  struct Caso {
    const char* testa;
    const char* dimensioni;
    double altezza, larghezza;
  };
  // Heights 3.5 and widths 2.8 in the unit of the code, times the scale 2.5.
  const Caso casi[] = {
      {"2.5   0   0", "3500   2800", 8.75, 7.0},  // thousandths
      {"2.5   1   0", "35   28", 8.75, 7.0},      // tenths
      {"2.5   2   0", "3.5   2.8", 8.75, 7.0},    // any other code: as they stand
      {"2.5  -1   9", "3.5   2.8", 8.75, 7.0},   {"1   1   0", "25   25", 2.5, 2.5},
  };
  for (const auto& c : casi) {
    SCOPED_TRACE(c.testa);
    LeggiStiliGRB(stili_, Scrivi(Modello(c.testa, c.dimensioni)), piattaforma_);
    ASSERT_TRUE(stili_.Letti);
    EXPECT_EQ(stili_.NumStili, 1);
    EXPECT_DOUBLE_EQ(stili_.GRBAltezza[1], c.altezza);
    EXPECT_DOUBLE_EQ(stili_.GRBLarghezza[1], c.larghezza);
    EXPECT_EQ(stili_.GRBCarattere[1], 3);
  }
  EXPECT_TRUE(piattaforma_.messaggi.empty());
}

TEST_F(StiliGRBTest, ListeSuPiuRigheEConVirgole) {
  LeggiStiliGRB(stili_, fs::path(QF17_DATI_TEST) / "disegno" / "dati" / "stili_liste.grb",
                piattaforma_);
  ASSERT_TRUE(stili_.Letti) << (piattaforma_.messaggi.empty() ? ""
                                                              : piattaforma_.messaggi[0].testo);
  EXPECT_DOUBLE_EQ(stili_.Scala, 2);
  EXPECT_EQ(stili_.CodiceUnita, 1);
  ASSERT_EQ(stili_.NumStili, 2);
  EXPECT_DOUBLE_EQ(stili_.GRBAltezza[1], 5.0);  // 25 tenths x 2
  EXPECT_DOUBLE_EQ(stili_.GRBLarghezza[1], 4.0);
  EXPECT_EQ(stili_.GRBCarattere[1], 1);
  EXPECT_DOUBLE_EQ(stili_.GRBAltezza[2], 7.0);  // 35 tenths x 2, its list over two lines
  EXPECT_DOUBLE_EQ(stili_.GRBLarghezza[2], 6.0);
  EXPECT_EQ(stili_.GRBCarattere[2], 2);
}

TEST_F(StiliGRBTest, MessaggiDiAperturaEDiLettura) {
  stili_.NumStili = 5;
  stili_.Letti = true;
  const fs::path assente = cartella_ / "assente.grb";
  LeggiStiliGRB(stili_, assente, piattaforma_);
  EXPECT_FALSE(stili_.Letti);
  EXPECT_EQ(stili_.NumStili, 0);

  // Three styles announced, two present.
  std::string troncato = "x\r\n1 1 0\r\n3\r\n";
  for (int i = 0; i < 2; ++i) troncato += "s\r\n25 25 1 0\r\n0\r\n";
  const fs::path dannoso = Scrivi(troncato);
  LeggiStiliGRB(stili_, dannoso, piattaforma_);
  EXPECT_FALSE(stili_.Letti);
  EXPECT_EQ(stili_.NumStili, 0);
  EXPECT_DOUBLE_EQ(stili_.GRBAltezza[1], 0.0);

  ASSERT_EQ(piattaforma_.messaggi.size(), 2u);
  EXPECT_EQ(piattaforma_.messaggi[0].testo, "Errore in apertura del file " + assente.string() +
                                                "- verranno usati i parametri disegno della "
                                                "versione autonoma.");
  EXPECT_EQ(piattaforma_.messaggi[1].testo,
            "Errore in lettura del file " + dannoso.string() + kCoda);
  for (const auto& m : piattaforma_.messaggi) {
    EXPECT_EQ(m.titolo, "QF17");
    EXPECT_EQ(m.icona, Icona::Critica);
    EXPECT_EQ(m.pulsanti, Pulsanti::Ok);
  }
}

TEST_F(StiliGRBTest, AltriModelliDannosi) {
  const char* dannosi[] = {
      "",                                                  // empty
      "x\r\n",                                             // no head list
      "x\r\n1 1\r\n",                                      // a head list cut short
      "x\r\n1 1 0\r\n",                                    // no count
      "x\r\n1 1 0\r\n40000\r\n",                           // a count beyond 16 bits
      "x\r\n1 1 0\r\n1\r\ns\r\n1e999 1 1 0\r\n0\r\n",      // a height beyond any number
      "x\r\n1e300 1 0\r\n1\r\ns\r\n1e300 1 1 0\r\n0\r\n",  // a size beyond any number
  };
  for (const char* d : dannosi) {
    SCOPED_TRACE(d);
    piattaforma_.messaggi.clear();
    LeggiStiliGRB(stili_, Scrivi(d), piattaforma_);
    EXPECT_FALSE(stili_.Letti);
    ASSERT_EQ(piattaforma_.messaggi.size(), 1u);
    EXPECT_EQ(piattaforma_.messaggi[0].testo.rfind("Errore in lettura del file ", 0), 0u);
  }
}

TEST_F(StiliGRBTest, OltreCentoStiliSiTengonoIPrimiCento) {
  std::string testo = "x\r\n1 2 0\r\n150\r\n";
  for (int i = 1; i <= 150; ++i) {
    testo += "s\r\n" + std::to_string(i) + " " + std::to_string(2 * i) + " 1 0\r\n0\r\n";
  }
  LeggiStiliGRB(stili_, Scrivi(testo), piattaforma_);
  ASSERT_TRUE(stili_.Letti);
  EXPECT_TRUE(piattaforma_.messaggi.empty());
  EXPECT_EQ(stili_.NumStili, 100);
  EXPECT_DOUBLE_EQ(stili_.GRBAltezza[100], 100.0);
  EXPECT_DOUBLE_EQ(stili_.GRBLarghezza[100], 200.0);

  // A negative count reads no style at all.
  LeggiStiliGRB(stili_, Scrivi("x\r\n1 2 0\r\n-3\r\n"), piattaforma_);
  EXPECT_TRUE(stili_.Letti);
  EXPECT_EQ(stili_.NumStili, 0);
}

}  // namespace
}  // namespace qf17
