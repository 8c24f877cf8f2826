#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "test_relazione_ta_prova.h"

namespace qf17::prova {
namespace {

TEST_F(RelazioneTAPiccola, PiccolaBytePerByte) {
  ASSERT_TRUE(Esegui());
  EXPECT_EQ(Relazione(), Attesa());

  ControllaChiusuraNonVerificato(p, file);

  EXPECT_EQ(verdetti.SetOk, (std::vector<bool>{true, true, false}));
  EXPECT_TRUE(verdetti.NodoKo);
}

// The shown stresses stay in the tables as the report rounded them (one decimal, halves up);
// what it does not show is left alone.
TEST_F(RelazioneTAPiccola, ValoriArrotondatiRestanoNelleTabelle) {
  ASSERT_TRUE(Esegui());
  const RisultatiVerifica& r = s.Risultati();
  EXPECT_DOUBLE_EQ(r.SigDiff(1, 1), 100.3);   // Int(1002.5 + 0.5) / 10
  EXPECT_DOUBLE_EQ(r.SigDiff(2, 1), -100.2);  // Int(-1002.5 + 0.5) / 10
  EXPECT_DOUBLE_EQ(r.SigSotto[1], 50.0);      // Int(500.4 + 0.5) / 10
  EXPECT_DOUBLE_EQ(r.TauBull(1, 1, 1), 700.3);
  EXPECT_DOUBLE_EQ(r.TauBull(1, 2, 1), 650.8);
  EXPECT_DOUBLE_EQ(r.TauBull(0, 2, 1), -10.2);
  EXPECT_DOUBLE_EQ(r.SigProf(1, 1), 1200.0);
  EXPECT_DOUBLE_EQ(r.SigProf(2, 1), -1300.2);
  EXPECT_DOUBLE_EQ(r.SigProf(0, 1), 346.4);  // sqrt(300^2 + 3 x 100^2) = 346.41
  EXPECT_DOUBLE_EQ(r.SigProf(0, 2), 7.5);    // sqrt(9 + 48) = 7.5498
  // Bearing stresses are shown but never stored back; member C is not shown at all.
  EXPECT_EQ(r.RifBull(1, 1, 1), 1234.25);
  EXPECT_EQ(r.SigDiff(3, 1), 77.77);
  EXPECT_EQ(r.TauBull(3, 1, 1), 33.33);
  EXPECT_EQ(r.SigProf(3, 1), 44.44);
}

// Each run writes the whole file anew over the last one, longer or not, and leaves no temporary
// file behind. The checks fill the tables again before each report: the chord's stored ideal
// stress would otherwise be combined with its shear a second time.
TEST_F(RelazioneTAPiccola, DueEsecuzioniSovrascrivonoLoStessoFile) {
  lavoro.Scrivi(file.filename(), std::string(Attesa().size() + 500, 'x'));
  ASSERT_TRUE(Esegui());
  EXPECT_EQ(Relazione(), Attesa());

  RiempiRisultati();
  s.nodo.NomeSa[1] = "Vento dx";
  ASSERT_TRUE(Esegui());
  std::string attesa = Attesa();
  for (std::size_t i = attesa.find("Vento sx"); i != std::string::npos;
       i = attesa.find("Vento sx", i)) {
    attesa.replace(i, 8, "Vento dx");
  }
  EXPECT_EQ(Relazione(), attesa);
  int file_nella_cartella = 0;
  for ([[maybe_unused]] const auto& voce : fs::directory_iterator(lavoro.percorso())) {
    ++file_nella_cartella;
  }
  EXPECT_EQ(file_nella_cartella, 1);
  EXPECT_EQ(p.avvii.size(), 2u);
}

TEST_F(RelazioneTAPiccola, MessaggioFinaleSoloSeUnSetFallisce) {
  struct Caso {
    bool fallito;
    std::vector<bool> setOk;
  };
  for (const Caso& c : {Caso{false, {true, true, true}}, Caso{true, {true, false, true}}}) {
    SCOPED_TRACE(c.fallito);
    p.messaggi.clear();
    RiempiRisultati();
    FallisceSoloSottoDelSet1(c.fallito);
    ASSERT_TRUE(Esegui());
    EXPECT_EQ(p.messaggi.size(), c.fallito ? 1u : 0u);
    EXPECT_EQ(verdetti.SetOk, c.setOk);
    EXPECT_EQ(verdetti.NodoKo, c.fallito);
    std::string t = Relazione();
    EXPECT_NE(t.find("\r\nNODO VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI AGENTI Neve "
                     "piena\r\n\r\n"),
              std::string::npos);
    EXPECT_EQ(t.find("\r\nATTENZIONE: NODO NON VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI "
                     "AGENTI Vento sx\r\n") != std::string::npos,
              c.fallito);
    EXPECT_EQ(t.find("fazzoletto:  500\r\n\tTensione NON VERIFICATA\r\n") != std::string::npos,
              c.fallito);
  }
}

// No load set: the heading alone, no closing message, the viewer all the same. Without
// imported nodes the title names none.
TEST_F(RelazioneTAPiccola, SenzaSetSoloLaTestata) {
  s.nodo.nSollAg = 0;
  s.nodo.NumNodi = 0;
  ASSERT_TRUE(Esegui());
  std::string attesa = Testata();
  attesa.replace(0, attesa.find(" - METODO"), "VERIFICA TENSIONALE");
  EXPECT_EQ(Relazione(), attesa);
  EXPECT_TRUE(p.messaggi.empty());
  EXPECT_EQ(p.avvii.size(), 1u);
  EXPECT_FALSE(verdetti.NodoKo);
  EXPECT_EQ(verdetti.SetOk.size(), 1u);
}

TEST_F(RelazioneTAPiccola, ScritturaNonRiuscita) {
  s.nodo.DirLavoro = (lavoro.percorso() / "manca").string();
  EXPECT_FALSE(Esegui());
  const fs::path atteso = lavoro.percorso() / "manca" / "RelTA_QF17_prova.txt";
  ASSERT_EQ(p.messaggi.size(), 2u);  // the closing message first: set 2 fails
  EXPECT_EQ(p.messaggi[1].testo,
            "Errore: scrittura della relazione non riuscita:\n" + atteso.string());
  EXPECT_EQ(p.messaggi[1].titolo, "ERRORE");
  EXPECT_TRUE(p.avvii.empty());
  EXPECT_FALSE(fs::exists(atteso));
}

TEST_F(RelazioneTAPiccola, VisualizzatoreNonAvviato) {
  p.esitiAvvio.push_back(false);
  EXPECT_TRUE(Esegui());
  ASSERT_EQ(p.messaggi.size(), 2u);
  EXPECT_EQ(p.messaggi[1].testo, "Errore: impossibile mostrare la relazione:\n" + file.string());
  EXPECT_EQ(p.messaggi[1].titolo, "ERRORE");
  EXPECT_EQ(Relazione(), Attesa());
}

}  // namespace
}  // namespace qf17::prova
