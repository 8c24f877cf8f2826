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
#include "piattaforma/file_testo.h"
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

  std::vector<std::string> Righe(const fs::path& file) const {
    auto righe = LeggiRighe(file);
    return righe ? *righe : std::vector<std::string>{};
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

TEST_F(SalvaGrbTest, IlFileDelNodo) {
  // A drawing left by an earlier command, entities included, is emptied first.
  s.disegno.NumQuote = 900;
  s.disegno.NumLinee = 40000;
  const fs::path file = lavoro / "ANGUPN.grb";
  std::int16_t scritto = 0;
  SalvaGRBSuFile(s, file.string(), scritto, 1);
  ASSERT_EQ(scritto, 1);
  EXPECT_TRUE(p.messaggi.empty());
  const std::string primo = prova::LeggiTutto(file);

  const ArchivioDisegno& a = s.disegno;
  ASSERT_GT(a.NumQuote, 10);
  ASSERT_LT(a.NumQuote, 900);
  const auto righe = Righe(file);
  ASSERT_GT(righe.size(), 20u);
  EXPECT_EQ(righe[0], "                   4");
  EXPECT_EQ(righe[1], "                   5                   2                   0");
  for (int i = 2; i < 8; ++i) EXPECT_EQ(righe[static_cast<std::size_t>(i)], "                   0");
  // Counts where the layout puts them: coordinates, the marker line, then lines.
  EXPECT_EQ(righe[10], " " + std::to_string(a.NumCoord) + " ");
  const auto dopoCoordinate = static_cast<std::size_t>(11 + a.NumCoord);
  EXPECT_EQ(righe[dopoCoordinate], "0");
  EXPECT_EQ(righe[dopoCoordinate + 1], " " + std::to_string(a.NumLinee) + " ");
  const auto quote = dopoCoordinate + 2 + 2 * static_cast<std::size_t>(a.NumLinee) + 1 +
                     2 * static_cast<std::size_t>(a.NumArchi) + 1 +
                     2 * static_cast<std::size_t>(a.NumTesti) + 2;
  EXPECT_EQ(righe[quote - 2], "                   0");
  EXPECT_EQ(righe[quote - 1], "                   0");
  EXPECT_EQ(righe[quote], " " + std::to_string(a.NumQuote) + " ");
  ASSERT_EQ(righe.size(), quote + 1 + 3 * static_cast<std::size_t>(a.NumQuote) + 1);
  EXPECT_EQ(righe.back(), " 0 ");
  // Every dimension goes out in the dimension style 6, counted from 0, with its line on its
  // points.
  for (std::size_t k = 0; k < static_cast<std::size_t>(a.NumQuote); ++k) {
    EXPECT_EQ(righe[quote + 2 + 3 * k], " 5  0  0 ") << k;
  }

  // Composed afresh, the same file.
  SalvaGRBSuFile(s, file.string(), scritto, 1);
  EXPECT_EQ(prova::LeggiTutto(file), primo);
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
