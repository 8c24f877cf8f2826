#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "nodo/chiavi.h"
#include "piattaforma/errori.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

std::string Blanchi(int n) {
  return std::string(static_cast<std::size_t>(n), ' ');
}

TEST(Chiavi, RigaConChiaveEIndici) {
  struct Caso {
    std::string valore, chiave;
    std::initializer_list<int> indici;
    std::string commento, atteso;
  };
  const std::string lungo45(45, 'x');
  const std::string lungo40(40, 'y');
  const Caso casi[] = {
      {"IPE140", "Cor_Nome", {}, "", "IPE140" + Blanchi(34) + "[Cor_Nome]"},
      {"45", "Ast_teta", {1}, "", "45" + Blanchi(38) + "[Ast_teta 1]"},
      {"0", "Sld_L", {1, 2}, "", "0" + Blanchi(39) + "[Sld_L 1 2]"},
      {"-2.5", "xBull", {4, 2000}, "", "-2.5" + Blanchi(36) + "[xBull 4 2000]"},
      // A value of 40 characters or more keeps exactly one blank before the bracket.
      {lungo40, "NomeSa", {7}, "", lungo40 + " [NomeSa 7]"},
      {lungo45, "NomeSa", {7}, "", lungo45 + " [NomeSa 7]"},
      // An empty value leaves only the padding, which the final trim removes.
      {"", "NomeSa", {3}, "", "[NomeSa 3]"},
      {"150", "  Fz_a ", {}, "", "150" + Blanchi(37) + "[Fz_a]"},
      {"1", "k", {}, "nota", "1" + Blanchi(39) + "[k] nota"},
      // Columns count characters, not bytes.
      {"Perché", "NomeSa", {1}, "", "Perché" + Blanchi(34) + "[NomeSa 1]"},
  };
  for (const Caso& c : casi) {
    EXPECT_EQ(ScriviChiave(c.valore, c.chiave, c.indici, c.commento), c.atteso) << c.chiave;
  }
}

TEST(Chiavi, LetturaDellaChiave) {
  struct Caso {
    std::string riga, chiave;
    bool trovata;
    std::string valore;
    std::vector<int> indici;  // the leading slots expected
  };
  const Caso casi[] = {
      {"IPE140" + Blanchi(34) + "[Cor_Nome]", "Cor_Nome", true, "IPE140", {}},
      {"45" + Blanchi(38) + "[Ast_teta 2]", "Ast_teta", true, "45", {2}},
      // A key never matches a longer key that begins with it.
      {"IPE140   [Cor_Nome]", "Cor", false, "", {}},
      {"12   [Fz_a_bis]", "Fz_a", false, "", {}},
      // Keys compare without case; the value keeps its own.
      {"LU60x6   [AST_NOME 1]", "ast_nome", true, "LU60x6", {1}},
      {"7   [xBull 2 15]", "xbull", true, "7", {2, 15}},
      {"[NomeSa 3]", "NomeSa", true, "", {3}},
      {"   Soll 1    [NomeSa 1]   ", "NomeSa", true, "Soll 1", {1}},
      {"1  [k 1 2 3 4 5 6 7 8 9 10 11 12]", "k", true, "1", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}},
      // Indices are numbers rounded half to even.
      {"1  [k 2.5 3.5 -1 x7]", "k", true, "1", {2, 4, -1, 0}},
      // Only the first occurrence of the key text counts.
      {"[NomeSaX] uno   [NomeSa 1]", "NomeSa", false, "", {}},
      // A value holding a key is taken for that key, with what stands left of it.
      {"[Cor_Nome]" + Blanchi(30) + "[NomeSa 4]", "Cor_Nome", true, "", {}},
  };
  for (const Caso& c : casi) {
    std::string valore = "<non toccato>";
    IndiciChiave indici{};
    EXPECT_EQ(LeggiChiave(c.riga, c.chiave, valore, indici), c.trovata) << c.riga;
    if (!c.trovata) continue;
    EXPECT_EQ(valore, c.valore) << c.riga;
    for (std::size_t k = 0; k < c.indici.size(); ++k) EXPECT_EQ(indici[k], c.indici[k]) << c.riga;
  }
}

TEST(Chiavi, GliIndiciNonRaggiuntiRestano) {
  IndiciChiave indici;
  indici.fill(99);
  std::string valore;
  ASSERT_TRUE(LeggiChiave("3  [SforzoNormale 2]", "SforzoNormale", valore, indici));
  EXPECT_EQ(indici[0], 2);
  EXPECT_EQ(indici[1], 99);
  ASSERT_TRUE(LeggiChiave("3  [Fz_a]", "Fz_a", valore, indici));
  EXPECT_EQ(indici[0], 2);
}

TEST(Chiavi, SenzaParentesiChiusaIlValoreEGiaImpostato) {
  IndiciChiave indici{};
  std::string valore;
  EXPECT_FALSE(LeggiChiave("abc  [Cor_Nome 1", "Cor_Nome", valore, indici));
  EXPECT_EQ(valore, "abc");
  // Nothing behind the key text at all: not the key, value untouched.
  valore = "prima";
  EXPECT_FALSE(LeggiChiave("abc  [Cor_Nome", "Cor_Nome", valore, indici));
  EXPECT_EQ(valore, "prima");
}

TEST(Chiavi, IndiceOltreSediciBitEFatale) {
  IndiciChiave indici{};
  std::string valore;
  EXPECT_THROW(LeggiChiave("1  [Ast_teta 40000]", "Ast_teta", valore, indici), ErroreFatale);
}

TEST(Chiavi, TestataRelease) {
  const std::string testata = TestataRelease("file_QF17", 1);
  EXPECT_EQ(testata,
            "KORVINWIN [QuestoProgramma=QF17 - NODO DI TRAVATURA RETICOLARE] "
            "[Descrizione=file_QF17] [ReleaseKorvin=18] [ReleaseQuestoFile=1]");
  struct Caso {
    std::string chiave, valore;
  };
  const Caso casi[] = {{"QuestoProgramma", "QF17 - NODO DI TRAVATURA RETICOLARE"},
                       {"Descrizione", "file_QF17"},
                       {"releasekorvin", "18"},
                       {"|ReleaseQuestoFile=", "1"}};
  for (const Caso& c : casi) {
    std::string valore;
    EXPECT_TRUE(ValoreDaTestata(testata, c.chiave, valore)) << c.chiave;
    EXPECT_EQ(valore, c.valore) << c.chiave;
  }
  std::string valore = "x";
  // "RELEASE" is the older key: it must not be found inside "ReleaseKorvin".
  EXPECT_FALSE(ValoreDaTestata(testata, "RELEASE", valore));
  EXPECT_FALSE(ValoreDaTestata("[a]", "a", valore));
  EXPECT_TRUE(ValoreDaTestata("<Unita:Mm> <b:2>", "unita", valore, ":", "<>"));
  EXPECT_EQ(valore, "Mm");
}

class ReleaseSuFile : public ::testing::Test {
 protected:
  std::filesystem::path File(const std::string& prima) {
    return cartella_.Scrivi("f.txt", prima + "\r\nresto\r\n");
  }
  prova::CartellaProva cartella_;
  PiattaformaRegistrata piattaforma_;
};

TEST_F(ReleaseSuFile, LaChiaveVecchiaPrevale) {
  Release r = LeggiRelease(File("KORVINWIN [ReleaseKorvin=18] [RELEASE=17] [ReleaseQuestoFile=2]"),
                           piattaforma_, true);
  EXPECT_TRUE(r.ok);
  EXPECT_EQ(r.famiglia, 17);
  EXPECT_EQ(r.file, 2);
  r = LeggiRelease(File(TestataRelease("file_QF17", 1)), piattaforma_, true);
  EXPECT_EQ(r.famiglia, 18);
  EXPECT_EQ(r.file, 1);
  // A positional file has no header: release 0, and still ok.
  r = LeggiRelease(File("IPE140"), piattaforma_, true);
  EXPECT_TRUE(r.ok);
  EXPECT_EQ(r.famiglia, 0);
  EXPECT_EQ(r.file, 0);
  EXPECT_TRUE(piattaforma_.messaggi.empty());
}

TEST_F(ReleaseSuFile, FileIlleggibile) {
  const auto mancante = cartella_.percorso() / "manca.qf7";
  EXPECT_FALSE(LeggiRelease(mancante, piattaforma_, false).ok);
  EXPECT_TRUE(piattaforma_.messaggi.empty());
  EXPECT_FALSE(LeggiRelease(mancante, piattaforma_, true).ok);
  ASSERT_EQ(piattaforma_.messaggi.size(), 1u);
  EXPECT_EQ(piattaforma_.messaggi[0].testo, "Errore in lettura del file:\n" + mancante.string());
  EXPECT_EQ(piattaforma_.messaggi[0].titolo, "LETTURA RELEASE");
}

TEST(Chiavi, NomiDiFileESostituzioni) {
  EXPECT_EQ(SoloNomeFile("C:\\lavori\\esempi\\ANGUPN.qf7"), "ANGUPN.qf7");
  EXPECT_EQ(SoloNomeFile("/lavori/esempi/ANGUPN.qf7"), "ANGUPN.qf7");
  EXPECT_EQ(SoloNomeFile("ANGUPN.qf7"), "ANGUPN.qf7");
  EXPECT_EQ(SenzaEstensione("Nuovo"), "Nuovo");
  EXPECT_EQ(Sostituisci("a-B-b", "b", "x"), "a-B-x");
  EXPECT_EQ(Sostituisci("a-B-b", "b", "x", true), "a-x-x");
}

}  // namespace
}  // namespace qf17
