#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "disegno/file_opzioni.h"
#include "disegno/opzioni.h"
#include "piattaforma/errori.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

class OpzioniTest : public ::testing::Test {
 protected:
  fs::path Scrivi(const std::string& byte) { return spazio_.Scrivi("OpzioniQf7.txt", byte); }

  prova::CartellaProva spazio_;
  const fs::path cartella_ = spazio_.percorso();
};

// Thirty numbers given as text, one a line, then the note.
std::string FileOpzioni(const std::string (&numeri)[30], const std::string& nota) {
  std::string t;
  for (const auto& n : numeri) t += n + "\r\n";
  return t + nota + "\r\n";
}

// Written in list-print form, the defaults are the installation's file, the one the samples'
// sheets are drawn with.
TEST_F(OpzioniTest, PredefiniteEFileDellInstallazione) {
  const Opzioni o = OpzioniPredefinite();
  const fs::path scritto = cartella_ / "scritto.txt";
  ASSERT_TRUE(ScriviOpzioni(o, scritto));
  const std::string campione =
      prova::LeggiTutto(fs::path(QF17_SORGENTI) / "installazione" / "custom" / "OpzioniQf7.txt");
  EXPECT_EQ(prova::LeggiTutto(scritto), campione);
  EXPECT_EQ(campione.substr(0, 10), " 1 \r\n 2 \r\n");
  EXPECT_NE(campione.find(" 0.5 \r\n 0 \r\n"), std::string::npos);
  EXPECT_NE(campione.find("non \xE8 conteggiata alcuna tolleranza\r\n"), std::string::npos);
}

TEST_F(OpzioniTest, ScritturaELetturaDanLaStessaTabella) {
  Opzioni o;
  const double valori[30] = {0, 7, 5, 3, 2, 7, 4, 2.5, 2.25, 12.75, -1,   11, 9, 6, 3.5,
                             0, 4, 6, 0, 2, 3, 2, 20,  55,   0,     -0.5, 1,  0, 1, 3};
  for (int i = 0; i < 30; ++i) o[i] = valori[i];
  o.NotaDisegno = "Fori maggiorati di 1 mm - più 0.5 già conteggiato";
  const fs::path file = cartella_ / "OpzioniQf7.txt";
  ASSERT_TRUE(ScriviOpzioni(o, file));
  Opzioni letto;  // starts from the defaults, which differ in every row but 22
  ASSERT_TRUE(LeggiOpzioni(letto, file));
  for (int i = 0; i < 30; ++i) EXPECT_EQ(letto[i], o[i]) << i;
  EXPECT_EQ(letto.NotaDisegno, o.NotaDisegno);
  EXPECT_NE(prova::LeggiTutto(file).find("-0.5 \r\n"), std::string::npos);
  EXPECT_NE(prova::LeggiTutto(file).find(" 12.75 \r\n"), std::string::npos);
}

TEST_F(OpzioniTest, VentidueFissaEDiciassetteCopiaTredici) {
  std::string numeri[30];
  for (int i = 0; i < 30; ++i) numeri[i] = std::to_string(i + 100);
  numeri[13] = "12";
  numeri[17] = "3";
  numeri[22] = "35";
  numeri[7] = "7.5mm";  // the leading-number rule
  numeri[8] = "9";      // the plain form reads as well as the list-print one
  numeri[9] = "  -4 ";
  Opzioni o;
  ASSERT_TRUE(LeggiOpzioni(o, Scrivi(FileOpzioni(numeri, "  nota con blanchi "))));
  EXPECT_EQ(o[22], 20.0);
  EXPECT_EQ(o[13], 12.0);
  EXPECT_EQ(o[17], 12.0);
  EXPECT_EQ(o[7], 7.5);
  EXPECT_EQ(o[8], 9.0);
  EXPECT_EQ(o[9], -4.0);
  EXPECT_EQ(o[29], 129.0);
  EXPECT_EQ(o.NotaDisegno, "  nota con blanchi ");  // only the form trims the note
}

TEST_F(OpzioniTest, FileMancanteOCortoLasciaLaTabella) {
  std::string numeri[30];
  for (auto& n : numeri) n = " 99 ";
  const std::string senzaNota = FileOpzioni(numeri, "x").substr(0, 30 * 6);  // 30 lines only
  std::string troppoGrande[30];
  for (auto& n : troppoGrande) n = "1";
  troppoGrande[4] = "1e999";
  for (const fs::path& p : {cartella_ / "assente.txt", Scrivi(senzaNota)}) {
    Opzioni o;
    EXPECT_FALSE(LeggiOpzioni(o, p)) << p;
    EXPECT_EQ(o[0], 1.0);
    EXPECT_EQ(o[13], 10.0);
    EXPECT_EQ(o.NotaDisegno, OpzioniPredefinite().NotaDisegno);
  }
  Opzioni o;
  EXPECT_FALSE(LeggiOpzioni(o, Scrivi(FileOpzioni(troppoGrande, "n"))));
  EXPECT_EQ(o[0], 1.0);
  // An empty note line is still a line: the file is whole.
  ASSERT_TRUE(LeggiOpzioni(o, Scrivi(FileOpzioni(numeri, ""))));
  EXPECT_EQ(o[0], 99.0);
  EXPECT_EQ(o.NotaDisegno, "");

  EXPECT_FALSE(ScriviOpzioni(o, cartella_ / "manca" / "OpzioniQf7.txt"));
}

TEST_F(OpzioniTest, LeggiOpzioniFormRegole) {
  Opzioni attuali;
  attuali[16] = 4;
  attuali[20] = 5;
  FormOpzioni form;
  for (int i = 0; i < 30; ++i) form.Par_Nodo[static_cast<std::size_t>(i)] = std::to_string(50 + i);
  form.Par_Nodo[7] = "";        // empty box: 0
  form.Par_Nodo[8] = "abc";     // invalid box: 0
  form.Par_Nodo[9] = "7.5 mm";  // numeric prefix
  form.Par_Nodo[13] = "12.5";   // also row 17
  form.Par_Nodo[15] = "2";      // row 19, not 15
  form.CheckQuote = false;
  form.CheckDistinta = true, form.CheckAresBull = true, form.QuoteBull1 = false, form.IndQuote = 0;
  form.NotaFori = "  Fori   maggiorati \t";

  const Opzioni o = LeggiOpzioniForm(form, attuali);
  struct Caso {
    int riga;
    double atteso;
  };
  const Caso casi[] = {
      {0, 50},  {6, 56}, {7, 0},     {8, 0},  {9, 7.5}, {12, 62}, {13, 12.5}, {14, 64},
      {15, 0},  {16, 4}, {17, 12.5}, {18, 1}, {19, 2},  {20, 5},  {21, 71},   {22, 20},
      {23, 73}, {24, 0}, {25, 75},   {26, 1}, {27, 0},  {28, 78}, {29, 79},
  };
  for (const auto& c : casi) EXPECT_EQ(o[c.riga], c.atteso) << "riga " << c.riga;
  EXPECT_EQ(o.NotaDisegno, "Fori   maggiorati");

  form.CheckQuote = true, form.QuoteBull1 = true, form.CheckAresBull = false, form.IndQuote = 1;
  const Opzioni o2 = LeggiOpzioniForm(form, attuali);
  EXPECT_EQ(o2[15], 1);
  EXPECT_EQ(o2[24], 1);
  EXPECT_EQ(o2[26], 0);
  EXPECT_EQ(o2[27], 1);

  form.Par_Nodo[3] = "1e999";
  EXPECT_THROW(LeggiOpzioniForm(form, attuali), ErroreFatale);
}

TEST_F(OpzioniTest, IlFormDelleOpzioniLeRestituisceUguali) {
  const Opzioni o = OpzioniPredefinite();
  const FormOpzioni form = FormDaOpzioni(o);
  EXPECT_EQ(form.Par_Nodo[25], "0.5");
  EXPECT_EQ(form.Par_Nodo[15], "1");  // the palette choice, row 19
  EXPECT_TRUE(form.CheckQuote && form.CheckDistinta && form.QuoteBull1);
  EXPECT_FALSE(form.CheckAresBull);
  EXPECT_EQ(form.IndQuote, 1);
  const Opzioni indietro = LeggiOpzioniForm(form, o);
  for (int i = 0; i < 30; ++i) EXPECT_EQ(indietro[i], o[i]) << i;
  EXPECT_EQ(indietro.NotaDisegno, o.NotaDisegno);
}

}  // namespace
}  // namespace qf17
