#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "supporto/cartella_prova.h"
#include "supporto/esegui_programma.h"

namespace {

namespace fs = std::filesystem;
using qf17::prova::LeggiTutto;

using qf17::prova::Esito;

using RigaDiComando = qf17::prova::RigaDiComandoProva;

TEST_F(RigaDiComando, NodoStampaIlNodoCercandoloNellaCartellaDelLavoro) {
  Esito e = Esegui("nodo ANGUPN.qf7");
  EXPECT_EQ(e.stato, 0) << e.errori;
  EXPECT_NE(e.uscita.find("Nodo: ANGUPN\n"), std::string::npos) << e.uscita;
  EXPECT_NE(e.uscita.find("Corrente D: UPN"), std::string::npos) << e.uscita;
  EXPECT_NE(e.uscita.find("Bulloni asta A: "), std::string::npos) << e.uscita;
  EXPECT_EQ(e.errori, "");
}

TEST_F(RigaDiComando, ConvertiUnFileVecchioNelFormatoAChiavi) {
  const fs::path nuovo = cartella_ / "nuovo.qf7";
  Esito e =
      Esegui("converti '" + Esempio("VECCHIO2.qf7").string() + "' -o '" + nuovo.string() + "'");
  ASSERT_EQ(e.stato, 0) << e.errori;
  const std::string testo = LeggiTutto(nuovo);
  EXPECT_EQ(testo.rfind("KORVINWIN [QuestoProgramma=QF17 - NODO DI TRAVATURA RETICOLARE] "
                        "[Descrizione=file_QF17] [ReleaseKorvin=18] [ReleaseQuestoFile=1]\r\n",
                        0),
            0u);
  EXPECT_NE(testo.find("[Cor_Nome]\r\n"), std::string::npos);
  // The converted file opens again and gives the same file.
  const fs::path ancora = cartella_ / "ancora.qf7";
  ASSERT_EQ(Esegui("converti '" + nuovo.string() + "' -o '" + ancora.string() + "'").stato, 0);
  std::string a = LeggiTutto(ancora), b = testo;
  // Only the save time may differ.
  auto senzaData = [](std::string t) {
    auto p = t.find("[dataSalvataggio]");
    auto inizio = t.rfind("\r\n", p);
    return t.erase(inizio, p - inizio);
  };
  EXPECT_EQ(senzaData(a), senzaData(b));
}

TEST_F(RigaDiComando, ErroriConStato2ENienteScritto) {
  // A file that does not exist.
  Esito e = Esegui("nodo NONCE.qf7");
  EXPECT_EQ(e.stato, 2);
  EXPECT_NE(e.errori.find("LETTURA"), std::string::npos) << e.errori;

  // A bolt index beyond the table is an error, and the output file is not created.
  const fs::path rotto =
      spazio_.Scrivi("rotto.qf7",
                     "KORVINWIN [QuestoProgramma=QF17 - NODO DI TRAVATURA RETICOLARE] "
                     "[Descrizione=file_QF17] [ReleaseKorvin=18] [ReleaseQuestoFile=1]\r\n"
                     "UPN200                                  [Cor_Nome]\r\n"
                     "12                                      [xBull 2 2001]\r\n");
  e = Esegui("converti '" + rotto.string() + "' -o '" + (cartella_ / "x.qf7").string() + "'");
  EXPECT_EQ(e.stato, 2);
  EXPECT_NE(e.errori.find("2001"), std::string::npos) << e.errori;
  EXPECT_FALSE(fs::exists(cartella_ / "x.qf7"));

  // An unknown command.
  EXPECT_EQ(Esegui("sconosciuto").stato, 2);
}

TEST_F(RigaDiComando, RadiceDallaRigaOppureDaProgra) {
  // Copied outside a progra folder and without a root, the program refuses to start.
  fs::copy_file(QF17_PROGRAMMA_STAGED, cartella_ / "qf17");
  Esito e = Esegui("nodo ANGUPN.qf7", (cartella_ / "qf17").string());
  EXPECT_EQ(e.stato, 2);
  EXPECT_EQ(e.errori, "QF17: Il direttorio della applicazione deve terminare con \\progra\n");
  // With the family's field or --root it finds the installation.
  e = Esegui("'|diroot=" + std::string(QF17_INSTALLAZIONE) + "|' nodo ANGUPN.qf7",
             (cartella_ / "qf17").string());
  EXPECT_EQ(e.stato, 0) << e.errori;
  e = Esegui("--root '" + std::string(QF17_INSTALLAZIONE) + "' nodo ANGUPN.qf7",
             (cartella_ / "qf17").string());
  EXPECT_EQ(e.stato, 0) << e.errori;
}

}  // namespace
