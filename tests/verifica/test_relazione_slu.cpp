#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "test_relazione_slu_prova.h"

namespace qf17::prova {
namespace {

TEST_F(RelazioneSLUPiccola, PiccolaBytePerByte) {
  ASSERT_TRUE(Esegui());
  EXPECT_EQ(Relazione(), Attesa());

  ControllaChiusuraNonVerificato(p, file);

  EXPECT_EQ(verdetti.SetOk, (std::vector<bool>{true, true, false}));
  EXPECT_TRUE(verdetti.NodoKo);
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

TEST_F(RelazioneSLUPiccola, MessaggioFinaleSoloSeUnSetFallisce) {
  struct Caso {
    bool sottoFallita;
    std::vector<bool> setOk;
  };
  for (const Caso& c : {Caso{false, {true, true, true}}, Caso{true, {true, false, true}}}) {
    SCOPED_TRACE(c.sottoFallita);
    p.messaggi.clear();
    RiempiRisultati();
    Set2Verificato();
    s.Risultati().OkSotto[1] = c.sottoFallita ? 0 : 1;
    ASSERT_TRUE(Esegui());
    EXPECT_EQ(p.messaggi.size(), c.sottoFallita ? 1u : 0u);
    EXPECT_EQ(verdetti.SetOk, c.setOk);
    EXPECT_EQ(verdetti.NodoKo, c.sottoFallita);
    const std::string t = Relazione();
    EXPECT_NE(t.find("\r\nNODO VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI AGENTI Neve "
                     "piena\r\n\r\n"),
              std::string::npos);
    EXPECT_EQ(t.find("\r\nATTENZIONE: NODO NON VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI "
                     "AGENTI Vento sx\r\n") != std::string::npos,
              c.sottoFallita);
    EXPECT_EQ(t.find("     500.4|   18812.5| NO|\r\n") != std::string::npos, c.sottoFallita);
  }
}

// No load set: the heading alone, no closing message, the viewer all the same. Without
// imported nodes the title names none.
TEST_F(RelazioneSLUPiccola, SenzaSetSoloLaTestata) {
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

TEST_F(RelazioneSLUPiccola, ScritturaNonRiuscita) {
  s.nodo.DirLavoro = (lavoro.percorso() / "manca").string();
  EXPECT_FALSE(Esegui());
  const fs::path atteso = lavoro.percorso() / "manca" / "RelSLU_QF17_prova.txt";
  ASSERT_EQ(p.messaggi.size(), 2u);  // the closing message first: set 2 fails
  EXPECT_EQ(p.messaggi[1].testo,
            "Errore: scrittura della relazione non riuscita:\n" + atteso.string());
  EXPECT_EQ(p.messaggi[1].titolo, "ERRORE");
  EXPECT_TRUE(p.avvii.empty());
  EXPECT_FALSE(fs::exists(atteso));
}

}  // namespace
}  // namespace qf17::prova
