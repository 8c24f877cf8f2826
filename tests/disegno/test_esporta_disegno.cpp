#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/esporta_disegno.h"
#include "nodo/esempi_nodo.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

// The DIS head line of version 4: 19 blanks and the digit, then CR LF.
const std::string kTestaDis = "                   4\r\n";

class EsportaDisegnoTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(prova::CaricaLibrerieInstallazione(s));
    fs::create_directories(progra);
    fs::create_directories(lavoro);
    s.cartelle.progra = progra.string();
    s.nodo.DirLavoro = lavoro.string();
    ASSERT_TRUE(ApriNodoDaFile(s, prova::CartellaEsempi() / "ANGUPN.qf7"));
    s.nodo.DirLavoro = lavoro.string();
    p.messaggi.clear();
  }

  // A drawing left by an earlier command, with counts that a new composition would change.
  void DisegnoPrecedente() {
    AzzeraDisegno(s.disegno);
    s.disegno.NumLinee = 7;
    s.disegno.NumCoord = 3;
  }
  bool DisegnoIntatto() const { return s.disegno.NumLinee == 7 && s.disegno.NumCoord == 3; }

  static FileScelto Scelta(const fs::path& file, int filtro) { return {file.string(), filtro}; }

  PiattaformaRegistrata p;
  Sessione s{p};
  prova::CartellaProva cartella;
  const fs::path progra = cartella.percorso() / "progra";
  const fs::path lavoro = cartella.percorso() / "lavoro";
  const fs::path nodoDis = progra / "nodo.dis";
  const fs::path inp = progra / "grafview.inp";
};

TEST_F(EsportaDisegnoTest, DialogoAnnullatoNonComponeENonDiceNulla) {
  DisegnoPrecedente();
  EXPECT_FALSE(GeneraDisegno(s));
  EXPECT_TRUE(DisegnoIntatto());
  EXPECT_TRUE(p.messaggi.empty());
  EXPECT_EQ(p.cambiOccupato, 0);

  ASSERT_EQ(p.richiesteFile.size(), 1u);
  const RichiestaFile& r = p.richiesteFile[0];
  EXPECT_EQ(r.titolo, "FILE DISEGNO DA GENERARE");
  EXPECT_EQ(r.filtro,
            "File disegno (*.grb)|*.grb|File disegno (*.dis)|*.dis|AutoCAD (*.dxf)|*.dxf");
  EXPECT_EQ(r.cartella, lavoro.string());
  EXPECT_EQ(r.nome, "ANGUPN");
  EXPECT_EQ(r.indiceFiltro, 1);
  EXPECT_EQ(r.flag, 3074);
}

TEST_F(EsportaDisegnoTest, NomeVuotoNonAnnullatoEUnErrore) {
  DisegnoPrecedente();
  p.fileScelti.push_back(FileScelto{"", 2});
  EXPECT_FALSE(GeneraDisegno(s));
  EXPECT_TRUE(DisegnoIntatto());
  ASSERT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(p.messaggi[0].testo, "Errore: creazione disegno fallita");
  EXPECT_EQ(p.messaggi[0].titolo, "QF17");
  EXPECT_EQ(p.cambiOccupato, 0);
}

// Filter 2 is the DIS sheet (under the busy pointer, on and off), 1 the GRB sheet, any other the
// DXF file, each confirmed by its own writer; the store is no longer the target.
TEST_F(EsportaDisegnoTest, FiltriDisGrbEDxf) {
  struct Caso {
    int filtro;
    std::string file, inizio, titolo;
  };
  const std::vector<Caso> casi = {
      {2, "a.dis", kTestaDis, "SALVA FILE DISEGNO"},
      {1, "a.grb", "                   4\r\n                   5", "SALVA FILE DISEGNO"},
      {3, "a.dxf", " 0\r\nSECTION\r\n 2\r\nHEADER", "SALVA FILE DXF"}};
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.filtro);
    p.messaggi.clear();
    const fs::path file = lavoro / c.file;
    p.fileScelti.push_back(Scelta(file, c.filtro));
    EXPECT_TRUE(GeneraDisegno(s));
    EXPECT_EQ(prova::LeggiTutto(file).substr(0, c.inizio.size()), c.inizio);
    EXPECT_EQ(s.disegno.DestinazioneDisegno, "");
    if (c.filtro == 2) {
      EXPECT_EQ(p.cambiOccupato, 2);
    }
    EXPECT_FALSE(p.occupato);
    ASSERT_EQ(p.messaggi.size(), 1u);
    EXPECT_EQ(p.messaggi[0].testo, "File " + file.string() + " salvato.");
    EXPECT_EQ(p.messaggi[0].titolo, c.titolo);
  }
}

TEST_F(EsportaDisegnoTest, TipoInMaiuscoloQualunque) {
  const fs::path dis = lavoro / "a.dis", svg = lavoro / "a.svg";
  EXPECT_TRUE(EsportaDisegno(s, dis.string(), 1, "dis"));
  EXPECT_EQ(prova::LeggiTutto(dis).substr(0, kTestaDis.size()), kTestaDis);
  EXPECT_TRUE(EsportaDisegno(s, svg.string(), 1, "Svg"));
  EXPECT_EQ(prova::LeggiTutto(svg).substr(0, 5), "<?xml");
  EXPECT_TRUE(p.messaggi.empty());
  EXPECT_TRUE(EsportaDisegno(s, (lavoro / "a.dxf").string(), 1, "dxf"));
  EXPECT_FALSE(EsportaDisegno(s, (lavoro / "a.pdf").string(), 1, "PDF"));
  EXPECT_FALSE(fs::exists(lavoro / "a.pdf"));
}

TEST_F(EsportaDisegnoTest, IngressoDelVisualizzatoreByteAByte) {
  EXPECT_EQ(TestoIngressoVisualizzatore("/inst/progra/nodo.dis"),
            " 2 \r\n/inst/progra/nodo.dis\r\n 0 \r\n 0 \r\n 8000 \r\n 8000 \r\n");
  EXPECT_EQ(PercorsoNodoDis(s), nodoDis.string());
}

TEST_F(EsportaDisegnoTest, VisualizzatoreAvviatoPoiRiusato) {
  p.finestreAperte = {false, true};
  ApriVisualizzatore(s);
  EXPECT_EQ(prova::LeggiTutto(nodoDis).substr(0, kTestaDis.size()), kTestaDis);
  EXPECT_EQ(prova::LeggiTutto(inp), TestoIngressoVisualizzatore(nodoDis.string()));
  ASSERT_EQ(p.avvii.size(), 1u);
  EXPECT_EQ(p.avvii[0].programma, (progra / "grafview.exe").string());
  EXPECT_FALSE(p.avvii[0].attendi);

  // The second press finds the viewer's window: it is told to reload, nothing is started and the
  // hand-over file is not written again.
  fs::remove(inp);
  fs::remove(nodoDis);
  ApriVisualizzatore(s);
  EXPECT_TRUE(fs::exists(nodoDis));
  EXPECT_FALSE(fs::exists(inp));
  EXPECT_EQ(p.avvii.size(), 1u);
  ASSERT_EQ(p.finestreCercate.size(), 2u);
  for (const auto& f : p.finestreCercate) {
    EXPECT_EQ(f.titolo, "VISUALIZZAZIONE FILE DISEGNO - " + nodoDis.string());
    EXPECT_EQ(f.tasti, "^v");
  }
  EXPECT_TRUE(p.messaggi.empty());
  EXPECT_EQ(p.cambiOccupato, 4);
  EXPECT_FALSE(p.occupato);
}

TEST_F(EsportaDisegnoTest, VisualizzatoreMancanteLasciaNodoDis) {
  p.esitiAvvio = {false};
  ApriVisualizzatore(s);
  EXPECT_TRUE(fs::exists(nodoDis));
  ASSERT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(p.messaggi[0].testo, "Visualizzatore incompleto o mancante");
  EXPECT_EQ(p.messaggi[0].titolo, "ERRORE");
  EXPECT_EQ(p.messaggi[0].icona, Icona::Attenzione);
  EXPECT_FALSE(p.occupato);
}

// The viewer button also leaves the GRB sheet in the job folder for the editor, without a word.
TEST_F(EsportaDisegnoTest, BottoneVisualizzatoreLasciaIlGrbNelLavoro) {
  p.finestreAperte = {true};
  ApriVis(s);
  EXPECT_TRUE(fs::exists(nodoDis));
  EXPECT_EQ(prova::LeggiTutto(lavoro / "qf7tmp.grb").substr(0, kTestaDis.size()), kTestaDis);
  EXPECT_TRUE(p.messaggi.empty());
}

}  // namespace
}  // namespace qf17
