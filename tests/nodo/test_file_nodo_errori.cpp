#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "nodo/file_nodo.h"
#include "piattaforma/errori.h"
#include "sessione_prova.h"

namespace qf17::prova {
namespace {

// The whole node as the writer sees it: two equal dumps mean nothing the file holds changed.
std::string Istantanea(SessioneProva& s) {
  const auto f = s.cartella / "istantanea.qf7";
  ScriviNodo(s.sessione.nodo, f, s.piattaforma, std::chrono::system_clock::time_point{});
  return LeggiTutto(f);
}

TEST(FileNodoErrori, OgniErroreFataleLasciaIlNodoComEra) {
  struct Caso {
    std::string riga;
    std::string chiave;  // as the message names it
  };
  const Caso casi[] = {
      {"1  [Ast_flag 7]", "[Ast_flag]"},
      {"LU50x5  [Ast_nome 9]", "[Ast_nome]"},
      {"1  [Ast_teta -1]", "[Ast_teta]"},
      {"1  [Ast_coeff 7]", "[Ast_coeff]"},
      {"1  [Ast_modo 7]", "[Ast_modo]"},
      {"1  [Ast_lato 7]", "[Ast_lato]"},
      {"100  [Ast_ins 4]", "[Ast_ins]"},
      {"3  [Sld_L 1 3]", "[Sld_L]"},
      {"3  [Sld_L 7 1]", "[Sld_L]"},
      {"2  [nBull 0]", "[nBull]"},
      {"2  [nBull 5]", "[nBull]"},
      {"2001  [nBull 1]", "[nBull]"},
      {"-1  [nBull 1]", "[nBull]"},
      {"10  [xBull 1 2001]", "[xbull]"},
      {"10  [yBull 5 1]", "[ybull]"},
      {"16  [FiBull 2 -1]", "[Fibull]"},
      {"100  [SforzoNormale 5 1]", "[SforzoNormale]"},
      {"100  [SforzoNormale 1 201]", "[SforzoNormale]"},
      {"1  [CasoCarico 201]", "[CasoCarico]"},
      {"Soll  [NomeSa 201]", "[NomeSa]"},
      {"201  [nSollAg]", "[nSollAg]"},
      {"201  [NumNodi]", "[NumNodi]"},
      {"5  [NomeNodi 201]", "[NomeNodi]"},
      {"40000  [NomeNodi 1]", "[NomeNodi]"},
      {"32768  [Ast_modo 1]", "[Ast_modo]"},
      {"1  [Ast_teta 99999]", "[Ast_teta]"},
      {"1e999  [Fz_a]", "[Fz_a]"},
      {"abc  [TipoVer]", "[TipoVer]"},
      {"1x  [Esposizione]", "[Esposizione]"},
      {"3  [Esposizione]", "[Esposizione]"},
      {"[Esposizione]", "[Esposizione]"},
  };
  for (const Caso& c : casi) {
    SessioneProva s;
    ASSERT_TRUE(ApriNodoDaFile(s.sessione, DatoProva("nodo_piccolo.qf7")));
    s.piattaforma.messaggi.clear();
    const std::string prima = Istantanea(s);
    // The bad line comes after a good one, so a half-read copy would differ.
    const auto f = s.ScriviFile("rotto.qf7", kTestataNodo + "99 [Fz_s]\r\n" + c.riga + "\r\n");
    try {
      ApriNodoDaFile(s.sessione, f);
      ADD_FAILURE() << "nessun errore per " << c.riga;
    } catch (const ErroreFatale& e) {
      const std::string testo = e.what();
      EXPECT_NE(testo.find(f.string()), std::string::npos) << testo;
      EXPECT_NE(testo.find("riga 3"), std::string::npos) << testo;
      EXPECT_NE(testo.find("chiave " + c.chiave), std::string::npos) << testo;
    }
    EXPECT_EQ(Istantanea(s), prima) << c.riga;
    EXPECT_EQ(s.sessione.nodo.NomeFileNodo, "nodo_piccolo");
    EXPECT_TRUE(s.piattaforma.messaggi.empty()) << c.riga;
  }
}

TEST(FileNodoErrori, IlTestoDellErrore) {
  SessioneProva s;
  const auto f = s.ScriviFile("rotto.qf7", kTestataNodo + "\r\n10  [xBull 1 2001]\r\n");
  try {
    ApriNodoDaFile(s.sessione, f);
    FAIL();
  } catch (const ErroreFatale& e) {
    EXPECT_EQ(std::string(e.what()),
              "File " + f.string() +
                  ", riga 3, chiave [xbull]: indice 2 = 2001 fuori dai limiti 0..2000");
  }
}

TEST(FileNodoErrori, IlBullone2000EAmmesso) {
  SessioneProva s;
  const auto f =
      s.ScriviFile("pieno.qf7", kTestataNodo +
                                    "2000 [nBull 4]\r\n7 [xBull 4 2000]\r\n200 [nSollAg]\r\n"
                                    "-5 [SforzoNormale 4 200]\r\n200 [NumNodi]\r\n");
  ASSERT_TRUE(ApriNodoDaFile(s.sessione, f));
  EXPECT_EQ(s.sessione.nodo.nBull[3], 2000);
  EXPECT_EQ(s.sessione.nodo.xBull(3, 2000), 7);
  EXPECT_EQ(s.sessione.nodo.SforzoNormale(4, 200), -5);
}

TEST(FileNodoErrori, SalvataggioInUnaCartellaCheNonEsiste) {
  SessioneProva s;
  s.sessione.nodo.NomeFileNodo = "Nodo1";
  const auto f = s.cartella / "manca" / "nodo.qf7";
  EXPECT_FALSE(SalvaNodoSuFile(s.sessione, f));
  ASSERT_EQ(s.piattaforma.messaggi.size(), 1u);
  EXPECT_EQ(s.piattaforma.messaggi[0].testo, "File:\n" + f.string());
  EXPECT_EQ(s.piattaforma.messaggi[0].titolo, "QF17 - SALVATAGGIO NON RIUSCITO");
  EXPECT_EQ(s.piattaforma.messaggi[0].icona, Icona::Critica);
  EXPECT_FALSE(std::filesystem::exists(s.cartella / "manca"));
  EXPECT_EQ(s.sessione.nodo.NomeFileNodo, "Nodo1");
}

TEST(FileNodoErrori, UnSalvataggioFallitoNonLasciaNullaAMeta) {
  SessioneProva s;
  // The target is a folder with a file inside: the new file cannot take its place.
  const auto f = s.cartella / "occupato.qf7";
  std::filesystem::create_directories(f);
  s.ScriviFile("occupato.qf7/dentro.txt", "vecchio");
  EXPECT_FALSE(ScriviNodo(s.sessione.nodo, f, s.piattaforma));
  EXPECT_EQ(LeggiTutto(f / "dentro.txt"), "vecchio");
  int voci = 0;
  for (const auto& voce : std::filesystem::directory_iterator(s.cartella)) {
    EXPECT_EQ(voce.path().filename(), "occupato.qf7");
    ++voci;
  }
  EXPECT_EQ(voci, 1);
  EXPECT_EQ(s.piattaforma.messaggi.size(), 1u);
}

}  // namespace
}  // namespace qf17::prova
