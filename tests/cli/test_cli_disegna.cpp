// `qf17 disegna` run as a user runs it: the staged program on a copy of a sample node, named
// with the process id so that the drawing it leaves in the installation's job folder is its own
// and can be removed.

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "supporto/cartella_prova.h"
#include "supporto/esegui_programma.h"

namespace {

namespace fs = std::filesystem;
using qf17::prova::Esito;
using qf17::prova::LeggiTutto;

// Where line `n` (from 0) of a text starts.
std::size_t InizioRiga(const std::string& testo, int n) {
  std::size_t inizio = 0;
  for (int i = 0; i < n; ++i) inizio = testo.find('\n', inizio) + 1;
  return inizio;
}

class RigaDiComandoDisegna : public qf17::prova::RigaDiComandoProva {
 protected:
  RigaDiComandoDisegna() { fs::copy_file(Esempio("ANGUPN.qf7"), copia_); }
  ~RigaDiComandoDisegna() override {
    std::error_code ec;
    fs::remove(disegnoNelLavoro_, ec);
    fs::remove(grbNelLavoro_, ec);
  }

  Esito Esegui(const std::string& argomenti) {
    return RigaDiComandoProva::Esegui("disegna '" + copia_.string() + "' " + argomenti);
  }

  const std::string nome_ = "ANGUPN_dis_" + std::to_string(::getpid());
  const fs::path copia_ = cartella_ / (nome_ + ".qf7");
  const fs::path disegnoNelLavoro_ = Esempio(nome_ + ".dis");
  const fs::path grbNelLavoro_ = Esempio(nome_ + ".grb");
};

// Without -o the drawing goes to the job folder under the node's name; its path is printed.
// Without --formato it is the GRB sheet, as the drawing button offers it first.
TEST_F(RigaDiComandoDisegna, NellaCartellaDelLavoro) {
  Esito e = Esegui("");
  EXPECT_EQ(e.stato, 0) << e.errori;
  EXPECT_EQ(e.uscita, grbNelLavoro_.string() + "\n");
  EXPECT_EQ(e.errori, "");
  // The GRB head: the version line, then "5 2 0" in fields of 20 and 19 columns.
  EXPECT_EQ(LeggiTutto(grbNelLavoro_).substr(0, 84),
            "                   4\r\n                   5                   2                   "
            "0\r\n");

  e = Esegui("--formato dis");
  EXPECT_EQ(e.stato, 0) << e.errori;
  EXPECT_EQ(e.uscita, disegnoNelLavoro_.string() + "\n");
  EXPECT_EQ(LeggiTutto(disegnoNelLavoro_).substr(0, 22), "                   4\r\n");
}

// The DXF modes the drawing button never uses: monochrome leaves out every colour group, and
// the modes are refused with another format.
TEST_F(RigaDiComandoDisegna, DxfNeiSuoiModi) {
  const fs::path dxf = cartella_ / "nodo.dxf";
  Esito e = Esegui("--formato DXF --monocromo --esplodi-testi -o '" + dxf.string() + "'");
  EXPECT_EQ(e.stato, 0) << e.errori;
  const std::string testo = LeggiTutto(dxf);
  const std::string testa = " 0\r\nSECTION\r\n 2\r\nHEADER\r\n";
  EXPECT_EQ(testo.substr(0, testa.size()), testa);
  EXPECT_EQ(testo.find("\r\nTEXT\r\n"), std::string::npos);  // texts went into strokes
  // Monochrome: every colour group that is written says 7, and the sheet has some. The file is
  // read pair by pair, since a coordinate can read " 62" too.
  std::vector<std::string> righe;
  for (std::size_t p = 0, q; (q = testo.find("\r\n", p)) != std::string::npos; p = q + 2) {
    righe.push_back(testo.substr(p, q - p));
  }
  int gruppi = 0;
  for (std::size_t k = 0; k + 1 < righe.size(); k += 2) {
    if (righe[k] != " 62") continue;
    ++gruppi;
    EXPECT_TRUE(righe[k + 1] == "7" || righe[k + 1] == " 7") << k << " " << righe[k + 1];
  }
  EXPECT_GT(gruppi, 1);

  e = Esegui("--formato dis --disgrega 50");
  EXPECT_EQ(e.stato, 2);
  EXPECT_EQ(e.errori,
            "ERRORE: --esplodi-testi, --monocromo e --disgrega valgono solo per il DXF.\n");
  EXPECT_FALSE(fs::exists(disegnoNelLavoro_));
}

TEST_F(RigaDiComandoDisegna, SvgSulFileIndicato) {
  const fs::path svg = cartella_ / "anteprima.svg";
  Esito e = Esegui("--formato SVG -o '" + svg.string() + "' --quote-saldature");
  EXPECT_EQ(e.stato, 0) << e.errori;
  EXPECT_EQ(e.uscita, svg.string() + "\n");
  EXPECT_EQ(LeggiTutto(svg).substr(0, 5), "<?xml");
  EXPECT_FALSE(fs::exists(disegnoNelLavoro_));
}

TEST_F(RigaDiComandoDisegna, FormatoSconosciutoRifiutato) {
  Esito e = Esegui("--formato pdf");
  EXPECT_EQ(e.stato, 2);
  EXPECT_NE(e.errori.find("--formato: pdf not in {grb,dis,dxf,svg}"), std::string::npos)
      << e.errori;
  EXPECT_EQ(e.uscita, "");
  EXPECT_FALSE(fs::exists(disegnoNelLavoro_));
}

// An options file given on the command line replaces the installation's; a missing one stops
// the command before anything is drawn.
TEST_F(RigaDiComandoDisegna, FileOpzioni) {
  const fs::path manca = cartella_ / "manca.txt";
  Esito e = Esegui("--opzioni '" + manca.string() + "'");
  EXPECT_EQ(e.stato, 2);
  EXPECT_EQ(e.errori, "ERRORE: Errore: file " + manca.string() + " errato o mancante.\n");
  EXPECT_FALSE(fs::exists(disegnoNelLavoro_));

  // The installation's options with other texts 44 wide and 33 high (rows 10 and 9): the
  // sheet's title is such a text, so its size line reads " 44  33 ".
  std::string righe = LeggiTutto(fs::path(QF17_INSTALLAZIONE) / "custom" / "OpzioniQf7.txt");
  const std::size_t riga9 = InizioRiga(righe, 9);
  righe.replace(riga9, InizioRiga(righe, 11) - riga9, " 33 \r\n 44 \r\n");
  const fs::path opzioni = spazio_.Scrivi("OpzioniQf7.txt", righe);
  e = Esegui("--formato dis --opzioni '" + opzioni.string() + "'");
  EXPECT_EQ(e.stato, 0) << e.errori;
  EXPECT_NE(LeggiTutto(disegnoNelLavoro_).find("\r\n 44  33 "), std::string::npos);
}

}  // namespace
