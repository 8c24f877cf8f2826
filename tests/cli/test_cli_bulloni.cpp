// `qf17 bulloni` on copies of the samples. The sample ANGUPN has a UPN160 chord (flanges 10.5)
// under a gusset 800 long, a UPN120 member B (flanges 9) inserted 120, 12 mm bolts make 12.5 mm
// holes (tolerance 0.5), and the node is checked by allowable stresses: margins are 2 holes.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "supporto/cartella_prova.h"
#include "supporto/esegui_programma.h"

namespace {

namespace fs = std::filesystem;
using qf17::prova::Esito;
using qf17::prova::LeggiTutto;

class RigaDiComandoBulloni : public ::testing::Test {
 protected:
  Esito Esegui(const std::string& argomenti) {
    return qf17::prova::EseguiProgramma(spazio_.percorso(), QF17_PROGRAMMA_STAGED, argomenti);
  }
  fs::path Copia(const std::string& esempio) {
    return spazio_.Scrivi(esempio + ".qf7", LeggiTutto(fs::path(QF17_INSTALLAZIONE) /
                                                       "lavori/esempi" / (esempio + ".qf7")));
  }
  qf17::prova::CartellaProva spazio_;
};

TEST_F(RigaDiComandoBulloni, LettureEBulloniSenzaCambiareNulla) {
  const fs::path nodo = Copia("ANGUPN");
  const std::string prima = LeggiTutto(nodo);
  const Esito e = Esegui("bulloni ANGUPN.qf7 --gruppo corrente");
  EXPECT_EQ(e.stato, 0) << e.errori;
  // 160 - 2 x 10.5 = 139 high; (800 - 50) / 2 = 375, (139 - 50) / 2 = 44.5; 3 x 12.5.
  EXPECT_EQ(e.uscita,
            "Area bullonabile: 800 x 139\nPasso corrente: 375 44\nPasso min: 37.5 37.5\n"
            "1 100 70 20\n2 220 70 20\n3 340 70 20\n4 460 70 20\n5 580 70 20\n6 700 70 20\n");
  EXPECT_EQ(LeggiTutto(nodo), prima);
}

// A 2 x 2 matrix of 16 mm bolts in B's web 120 x 102, margins 2 x 16.5 = 33: columns at 33 and
// 120 - 33 = 87, rows at 33 and 102 - 33 = 69; it replaces B's four bolts and saves the node.
TEST_F(RigaDiComandoBulloni, MatriceSalvataEAnteprima) {
  const fs::path nodo = Copia("ANGUPN");
  const Esito e = Esegui("bulloni ANGUPN.qf7 --gruppo B --matrice 2 2 16 --anteprima b.svg");
  EXPECT_EQ(e.stato, 0) << e.errori;
  EXPECT_EQ(e.uscita,
            "Area bullonabile: 120 x 102\nPasso corrente: 27 18\nPasso min: 49.5 49.5\n"
            "1 33 33 16\n2 87 33 16\n3 33 69 16\n4 87 69 16\n");
  const std::string salvato = LeggiTutto(nodo);
  EXPECT_NE(salvato.find("87                                      [xBull 3 2]\r\n"),
            std::string::npos);
  const std::string svg = LeggiTutto(spazio_.percorso() / "b.svg");
  std::size_t cerchi = 0;
  for (std::size_t p = svg.find("<circle"); p != std::string::npos;
       p = svg.find("<circle", p + 1)) {
    ++cerchi;
  }
  EXPECT_EQ(cerchi, 4u);
  EXPECT_NE(svg.find("r=\"8\""), std::string::npos);

  // Margins typed after Enter: 10 each way leave 100 across, 2 x 40 = 80 fits; added to the four.
  const Esito altra = Esegui(
      "bulloni ANGUPN.qf7 --gruppo B --matrice 1 2 40 --margini 10 10 10 10 "
      "--aggiungi -o altro.qf7");
  EXPECT_EQ(altra.stato, 0) << altra.errori;
  EXPECT_NE(altra.uscita.find("\n5 10 10 40\n6 110 10 40\n"), std::string::npos) << altra.uscita;
  EXPECT_EQ(LeggiTutto(nodo), salvato);
}

TEST_F(RigaDiComandoBulloni, EditorCheNonSiApreOMatriceRifiutata) {
  const fs::path nodo = Copia("ANGUPN");
  Copia("HEASALD");
  const std::string prima = LeggiTutto(nodo);
  // Three columns of 16 mm bolts across 54 mm: 27 apart, less than 32.
  Esito e = Esegui("bulloni ANGUPN.qf7 --gruppo B --matrice 2 3 16");
  EXPECT_EQ(e.stato, 2);
  EXPECT_EQ(e.errori, "ATTENZIONE: Matrice non valida\n");
  EXPECT_EQ(LeggiTutto(nodo), prima);
  e = Esegui("bulloni HEASALD.qf7 --gruppo corrente");
  EXPECT_EQ(e.stato, 2);
  EXPECT_EQ(e.errori,
            "ERRORE: L'editor dei bulloni non si apre per il gruppo corrente: il fazzoletto è "
            "saldato al corrente.\n");
  EXPECT_EQ(e.uscita, "");
}

}  // namespace
