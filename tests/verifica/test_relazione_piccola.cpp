// The reports of both methods on the small node written by hand: the shared behaviour by typed
// tests, then what belongs to one method.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "test_relazione_slu_prova.h"
#include "test_relazione_ta_prova.h"

namespace qf17::prova {
namespace {

template <class Piccola>
class RelazionePiccola : public Piccola {};
using Metodi = ::testing::Types<RelazioneTAPiccola, RelazioneSLUPiccola>;
TYPED_TEST_SUITE(RelazionePiccola, Metodi);

TYPED_TEST(RelazionePiccola, PiccolaBytePerByte) {
  ASSERT_TRUE(this->Esegui());
  EXPECT_EQ(this->Relazione(), this->Attesa());
  ControllaChiusuraNonVerificato(this->p, this->file);
  EXPECT_EQ(this->verdetti.SetOk, (std::vector<bool>{true, true, false}));
  EXPECT_TRUE(this->verdetti.NodoKo);
}

// Only the section under the chord of set 1 may fail: the closing message and the failure line
// come with it alone.
TYPED_TEST(RelazionePiccola, MessaggioFinaleSoloSeUnSetFallisce) {
  struct Caso {
    bool fallito;
    std::vector<bool> setOk;
  };
  for (const Caso& c : {Caso{false, {true, true, true}}, Caso{true, {true, false, true}}}) {
    SCOPED_TRACE(c.fallito);
    this->p.messaggi.clear();
    this->RiempiRisultati();
    this->FallisceSoloSottoDelSet1(c.fallito);
    ASSERT_TRUE(this->Esegui());
    EXPECT_EQ(this->p.messaggi.size(), c.fallito ? 1u : 0u);
    EXPECT_EQ(this->verdetti.SetOk, c.setOk);
    EXPECT_EQ(this->verdetti.NodoKo, c.fallito);
    const std::string t = this->Relazione();
    EXPECT_NE(t.find("\r\nNODO VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI AGENTI Neve "
                     "piena\r\n\r\n"),
              std::string::npos);
    EXPECT_EQ(t.find("\r\nATTENZIONE: NODO NON VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI "
                     "AGENTI Vento sx\r\n") != std::string::npos,
              c.fallito);
    EXPECT_EQ(t.find(this->kSottoFallita) != std::string::npos, c.fallito);
  }
}

// No load set: the heading alone, no closing message, the viewer all the same. Without
// imported nodes the title names none.
TYPED_TEST(RelazionePiccola, SenzaSetSoloLaTestata) {
  this->s.nodo.nSollAg = 0;
  this->s.nodo.NumNodi = 0;
  ASSERT_TRUE(this->Esegui());
  std::string attesa = this->Testata();
  attesa.replace(0, attesa.find(" - METODO"), "VERIFICA TENSIONALE");
  EXPECT_EQ(this->Relazione(), attesa);
  EXPECT_TRUE(this->p.messaggi.empty());
  EXPECT_EQ(this->p.viste.size(), 1u);
  EXPECT_FALSE(this->verdetti.NodoKo);
  EXPECT_EQ(this->verdetti.SetOk.size(), 1u);
}

TYPED_TEST(RelazionePiccola, ScritturaNonRiuscita) {
  this->s.nodo.DirLavoro = (this->lavoro.percorso() / "manca").string();
  EXPECT_FALSE(this->Esegui());
  const fs::path atteso = this->lavoro.percorso() / "manca" / this->file.filename();
  ASSERT_EQ(this->p.messaggi.size(), 2u);  // the closing message first: set 2 fails
  EXPECT_EQ(this->p.messaggi[1].testo,
            "Errore: scrittura della relazione non riuscita:\n" + atteso.string());
  EXPECT_EQ(this->p.messaggi[1].titolo, "ERRORE");
  EXPECT_TRUE(this->p.viste.empty());
  EXPECT_FALSE(fs::exists(atteso));
}

TYPED_TEST(RelazionePiccola, VisualizzatoreNonAvviato) {
  this->p.esitiAvvio.push_back(false);
  EXPECT_TRUE(this->Esegui());
  ASSERT_EQ(this->p.messaggi.size(), 2u);
  EXPECT_EQ(this->p.messaggi[1].testo,
            "Errore: impossibile mostrare la relazione:\n" + this->file.string());
  EXPECT_EQ(this->p.messaggi[1].titolo, "ERRORE");
  EXPECT_EQ(this->Relazione(), this->Attesa());
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
  EXPECT_EQ(p.viste.size(), 2u);
}

// The ratios stay in the table as shown: two decimals, halves to the even neighbour. Nothing
// else is stored back: forces, stresses and the chord's stress keep their figures.
TEST_F(RelazioneSLUPiccola, RapportiArrotondatiRestanoNelleTabelle) {
  ASSERT_TRUE(Esegui());
  const RisultatiVerifica& r = s.Risultati();
  EXPECT_EQ(r.RapportoBull(1, 1, 1), 0.12);  // 12.5 to the even 12, not 13
  EXPECT_EQ(r.RapportoBull(1, 3, 1), 1.0);   // 100.4
  EXPECT_EQ(r.RapportoBull(2, 1, 1), 0.38);  // 37.5 to the even 38
  EXPECT_EQ(r.RapportoBull(0, 1, 1), 0.06);  // 6.25
  EXPECT_EQ(r.RapportoBull(0, 2, 1), 1.0);   // 99.9
  EXPECT_EQ(r.RapportoBull(1, 1, 2), 1.12);  // 112.5 to the even 112
  EXPECT_EQ(r.RapportoBull(2, 1, 2), 5.33);  // 533.33
  EXPECT_EQ(r.RapportoBull(3, 1, 1), 5.555) << "member C is not shown";
  EXPECT_EQ(r.FedBull(1, 1, 1), 1234.125);
  EXPECT_EQ(r.FvRd(1, 1), 4521.375);
  EXPECT_EQ(r.SigDiff(2, 1), -100.125);
  EXPECT_EQ(r.SigProf(0, 1), 300);
  EXPECT_EQ(r.SigProf(2, 1), -1300.25);
}

// One bolt's line by its force and ratio. The verdict follows the shown ratio: 1.004 passes
// although the bolt checks have cleared the group's flag; a ratio too wide for its four
// characters loses a decimal in the cell but not in the table.
TEST_F(RelazioneSLUPiccola, RigaDiUnBullone) {
  struct Caso {
    double forza, rapporto;
    const char* riga;
    double tenuto;
    bool setOk;
  };
  const Caso casi[] = {
      {0, 0, "  1|     0.|45213.8| 30005.|  0.|   -|SI'|", 0, true},
      // 7.125 x 10 = 71.25, one decimal: 712.5 to the even 712.
      {7.125, 1.004, "  1|   71.2|45213.8| 30005.|  1.|   -|SI'|", 1.0, true},
      // 1.006: 100.6 rounds to 101.
      {7.375, 1.006, "  1|   73.8|45213.8| 30005.|1.01|   -| NO|", 1.01, false},
      // No resistance: the checks give 100.
      {2.5, 100, "  1|    25.|45213.8| 30005.|100.|   -| NO|", 100, false},
      // 12.375: 1237.5 to the even 1238, shown in four characters as 12.4. The force,
      // 999993.75 to one decimal 999993.8, keeps in seven characters no decimal.
      {99999.375, 12.375, "  1|999994.|45213.8| 30005.|12.4|   -| NO|", 12.38, false},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.riga);
    RiempiRisultati();
    Bullone(1, 1, 1, c.forza, c.rapporto);
    ASSERT_TRUE(Esegui());
    const std::string riga = "Bulloni asta A\r\nNum|  Fv,Ed|  Fv,Rd|  Fb,Rd|Co-1|Co-2|Ver|\r\n" +
                             std::string(c.riga) + "\r\n";
    EXPECT_NE(Relazione().find(riga), std::string::npos) << Relazione();
    EXPECT_EQ(s.Risultati().RapportoBull(1, 1, 1), c.tenuto);
    EXPECT_EQ(verdetti.SetOk[1], c.setOk);
    EXPECT_EQ(s.Risultati().OkTau(1, 1), 0) << "the report does not touch the flags";
  }
}

// The gusset's design strength goes by its thickness: up to 40 mm the plate's, over it the
// thicker plate's (1721.75 x 10).
TEST_F(RelazioneSLUPiccola, ResistenzaDelFazzolettoPerSpessore) {
  for (auto [spessore, cella] : {std::pair{40.0, "   18812.5|"}, std::pair{40.5, "   17217.5|"}}) {
    SCOPED_TRACE(spessore);
    RiempiRisultati();
    s.nodo.Fz_s = spessore;
    ASSERT_TRUE(Esegui());
    EXPECT_EQ(Tratto(Relazione(), "Sezione sotto corrente:", "\r\n\r\n"),
              "Sezione sotto corrente:\r\n       Sig|        fd|Ver|\r\n     500.4|" +
                  std::string(cella) + "SI'|");
  }
}

}  // namespace
}  // namespace qf17::prova
