#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/grb/salva_grb.h"
#include "disegno/leggi_stili_grb.h"
#include "nodo/esempi_nodo.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

class SalvaGrbTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(prova::CaricaLibrerieInstallazione(s));
    LeggiStiliGRB(s.stiliGrb,
                  fs::path(QF17_SORGENTI) / "installazione" / "custom" / "cad2dmodello.grb", p);
    ASSERT_TRUE(ApriNodoDaFile(s, prova::CartellaEsempi() / "ANGUPN.qf7"));
    fs::create_directories(lavoro);
    s.nodo.DirLavoro = lavoro.string();
    p.messaggi.clear();
  }

  PiattaformaRegistrata p;
  Sessione s{p};
  prova::CartellaProva cartella;
  const fs::path lavoro = cartella.percorso() / "lavoro";
};

TEST_F(SalvaGrbTest, MessaggiSecondoIlSilenzio) {
  struct Caso {
    std::int16_t silenzioso;
    bool riesce;
    std::vector<std::string> messaggi;  // title: text
  };
  const std::string buono = (lavoro / "ANGUPN.grb").string();
  const std::string cattivo = (lavoro / "manca" / "ANGUPN.grb").string();
  const Caso casi[] = {
      {0, true, {"SALVA FILE DISEGNO: File " + buono + " salvato."}},
      {1, true, {}},
      {2, true, {}},
      {-1, true, {"SALVA FILE DISEGNO: File " + buono + " salvato."}},
      {0,
       false,
       {"ERRORE: Errore durante la scrittura sul file" + cattivo, "QF17: Scrittura GRB annullata"}},
      {1, false, {"QF17: Scrittura GRB annullata"}},
      {2,
       false,
       {"ERRORE: Errore durante la scrittura sul file" + cattivo, "QF17: Scrittura GRB annullata"}},
      {-1, false, {"QF17: Scrittura GRB annullata"}},
  };
  for (const auto& c : casi) {
    SCOPED_TRACE(std::to_string(c.silenzioso) + (c.riesce ? " riesce" : " fallisce"));
    p.messaggi.clear();
    p.cambiOccupato = 0;
    fs::remove(buono);
    std::int16_t scritto = 7;
    SalvaGRB(s, c.riesce ? buono : cattivo, scritto, c.silenzioso);
    EXPECT_EQ(scritto, c.riesce ? 1 : 0);
    EXPECT_EQ(fs::exists(buono), c.riesce);
    std::vector<std::string> visti;
    for (const auto& m : p.messaggi) visti.push_back(m.titolo + ": " + m.testo);
    EXPECT_EQ(visti, c.messaggi);
    EXPECT_EQ(p.cambiOccupato, 2);  // on and off
    EXPECT_FALSE(p.occupato);
    EXPECT_TRUE(s.disegno.DestinazioneDisegno.empty());
  }
}

// A drawing left by an earlier command, entities included, is emptied first: the file is the
// sample's golden sheet, and composed afresh the same again.
TEST_F(SalvaGrbTest, IlFileDelNodo) {
  s.disegno.NumQuote = 900;
  s.disegno.NumLinee = 40000;
  const fs::path file = lavoro / "ANGUPN.grb";
  const std::string atteso =
      prova::LeggiTutto(fs::path(QF17_DATI_TEST) / "disegno" / "dati" / "esecutivo_ANGUPN.grb");
  ASSERT_FALSE(atteso.empty());
  for (int volta = 0; volta < 2; ++volta) {
    std::int16_t scritto = 0;
    SalvaGRBSuFile(s, file.string(), scritto, 1);
    ASSERT_EQ(scritto, 1);
    EXPECT_TRUE(prova::LeggiTutto(file) == atteso) << volta;
  }
  EXPECT_TRUE(p.messaggi.empty());
}

TEST_F(SalvaGrbTest, FilePerLEditorNellaCartellaDelLavoro) {
  EXPECT_EQ(PercorsoGrbTemporaneo(s), (lavoro / "qf7tmp.grb").string());
  EXPECT_TRUE(SalvaGrbTemporaneo(s));
  EXPECT_TRUE(fs::exists(lavoro / "qf7tmp.grb"));
  EXPECT_TRUE(p.messaggi.empty());

  s.nodo.DirLavoro = (lavoro / "manca").string();
  EXPECT_FALSE(SalvaGrbTemporaneo(s));
  ASSERT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(p.messaggi[0].testo, "Scrittura GRB annullata");
}

}  // namespace
}  // namespace qf17
