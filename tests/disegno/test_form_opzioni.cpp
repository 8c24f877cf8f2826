#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "disegno/file_opzioni.h"
#include "disegno/form_opzioni.h"
#include "nodo/esempi_nodo.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

class FormOpzioniTest : public ::testing::Test {
 protected:
  void SetUp() override {
    fs::create_directories(custom);
    s.cartelle.custom = custom.string();
  }

  PiattaformaRegistrata p;
  Sessione s{p};
  prova::CartellaProva cartella;
  const fs::path custom = cartella.percorso() / "custom";
};

// "Quote" and "Quote Saldature": each row starts from a state of the two boxes (the session's
// flag as the form left it), changes one box, and ends with both boxes, the flag and whether
// "Quote Saldature" may be ticked.
TEST_F(FormOpzioniTest, QuoteEQuoteSaldatureLegate) {
  struct Caso {
    const char* nome;
    bool quote, saldature;  // before
    bool cambiaQuote;       // which box changes: "Quote" or "Quote Saldature"
    bool valore;
    bool quoteDopo, saldatureDopo, abilitato;
  };
  const Caso casi[] = {
      {"togliere Quote toglie Saldature", true, true, true, false, false, false, false},
      {"mettere Quote lascia Saldature", false, false, true, true, true, false, true},
      {"mettere Saldature mette Quote", false, false, false, true, true, true, true},
      {"togliere Saldature lascia Quote", true, true, false, false, true, false, true},
  };
  for (const Caso& c : casi) {
    FormOpzioni f;
    f.CheckQuote = c.quote;
    f.QuoteCh = c.saldature;
    s.opzioni.QuoteSaldature = c.saldature;
    if (c.cambiaQuote) {
      ImpostaCheckQuote(f, s, c.valore);
    } else {
      ImpostaQuoteCh(f, s, c.valore);
    }
    EXPECT_EQ(f.CheckQuote, c.quoteDopo) << c.nome;
    EXPECT_EQ(f.QuoteCh, c.saldatureDopo) << c.nome;
    EXPECT_EQ(s.opzioni.QuoteSaldature, c.saldatureDopo) << c.nome;
    EXPECT_EQ(QuoteChAbilitato(f), c.abilitato) << c.nome;
  }
}

// The flag follows its box at once: cancelling the form keeps it, while the table stays.
TEST_F(FormOpzioniTest, AnnullaLasciaLaTabellaMaNonIlFlagDelleSaldature) {
  FormOpzioni f = ApriFormOpzioni(s);
  EXPECT_FALSE(f.QuoteCh);
  f.Par_Nodo[7] = "3";
  ImpostaQuoteCh(f, s, true);
  Annulla(f, s);
  EXPECT_EQ(s.opzioni[7], 8);
  EXPECT_TRUE(s.opzioni.QuoteSaldature);
  EXPECT_TRUE(ApriFormOpzioni(s).QuoteCh);
}

// The form's rules are LeggiOpzioniForm's (test_opzioni).
TEST_F(FormOpzioniTest, ChiudiCopiaIlForm) {
  FormOpzioni f = ApriFormOpzioni(s);
  f.Par_Nodo[7] = "7.5";
  f.NotaFori = "  Fori alesati  ";
  Chiudi(f, s);
  EXPECT_EQ(s.opzioni[7], 7.5);
  EXPECT_EQ(s.opzioni.NotaDisegno, "Fori alesati");
  EXPECT_TRUE(p.messaggi.empty());
}

// Saving writes what the form holds and what the table keeps outside it (rows 16 and 22), in
// list-print form with CR LF; how 22 and 17 read back is the reader's (test_opzioni).
TEST_F(FormOpzioniTest, SalvaScriveFormETabella) {
  s.opzioni[16] = 7;
  s.opzioni[22] = 35;
  FormOpzioni f = ApriFormOpzioni(s);
  f.Par_Nodo[13] = "12.5";
  f.Par_Nodo[25] = "-1";
  ASSERT_TRUE(Def(f, s));
  EXPECT_TRUE(p.messaggi.empty());
  const std::string testo = prova::LeggiTutto(custom / "OpzioniQf7.txt");
  // Rows 13 to 17, then 22 to 25.
  EXPECT_NE(testo.find("\r\n 12.5 \r\n 5 \r\n 1 \r\n 7 \r\n 12.5 \r\n 1 \r\n"), std::string::npos);
  EXPECT_NE(testo.find("\r\n 35 \r\n 70 \r\n 1 \r\n-1 \r\n"), std::string::npos);
  EXPECT_NE(testo.find("\r\nNella dimensione dei fori non \xe8 conteggiata alcuna tolleranza\r\n"),
            std::string::npos);
}

TEST_F(FormOpzioniTest, SalvaFallitoDiceIlFile) {
  s.cartelle.custom = (cartella.percorso() / "manca").string();
  FormOpzioni f = ApriFormOpzioni(s);
  f.Par_Nodo[7] = "9";
  EXPECT_FALSE(Def(f, s));
  EXPECT_EQ(s.opzioni[7], 9);  // the table took the form all the same
  ASSERT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(p.messaggi[0].testo,
            "Errore: file " + s.cartelle.custom + "\\OpzioniQf7.txt errato o mancante.");
  EXPECT_EQ(p.messaggi[0].titolo, "ERRORE");
}

// "Applica" takes the form and shows the sheet at once: nodo.dis is written and the viewer
// started, the form still open.
TEST_F(FormOpzioniTest, ApplicaMostraIlDisegno) {
  ASSERT_TRUE(prova::CaricaLibrerieInstallazione(s));
  ASSERT_TRUE(ApriNodoDaFile(s, prova::CartellaEsempi() / "ANGUPN.qf7"));
  const fs::path progra = cartella.percorso() / "progra";
  fs::create_directories(progra);
  s.cartelle.progra = progra.string();
  p.messaggi.clear();

  FormOpzioni f = ApriFormOpzioni(s);
  f.Par_Nodo[23] = "90";
  Applica(f, s);
  EXPECT_EQ(s.opzioni[23], 90);
  EXPECT_TRUE(fs::exists(progra / "nodo.dis"));
  ASSERT_EQ(p.avvii.size(), 1u);
  EXPECT_EQ(p.avvii[0].programma, (progra / "grafview.exe").string());
  EXPECT_TRUE(p.messaggi.empty());
}

}  // namespace
}  // namespace qf17
