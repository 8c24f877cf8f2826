// The executive sheets of three sample nodes, kept as DIS, SVG, DXF and GRB files after their
// pictures were looked at: angles on a channel chord (ANGUPN), opposed and double angles on a
// sloped chord (DOPPIO), an I chord with its weld (HEASALD). A change to any view, chain or table
// shows here. Run DISABLED_Rigenera to write them again, then look at the pictures before
// committing.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "disegno/esporta_disegno.h"
#include "disegno/file_opzioni.h"
#include "disegno/grb/salva_grb.h"
#include "disegno/leggi_font.h"
#include "nodo/esempi_nodo.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

const char* const kNodi[] = {"ANGUPN", "DOPPIO", "HEASALD"};
const char* const kFormati[] = {"dis", "svg", "dxf", "grb"};

fs::path Golden(const std::string& nodo, const std::string& formato) {
  return fs::path(QF17_DATI_TEST) / "disegno" / "dati" / ("esecutivo_" + nodo + "." + formato);
}

// The sheet of a sample node as the drawing command writes it, with the installation's options.
std::string Foglio(const std::string& nodo, const std::string& formato) {
  PiattaformaRegistrata p;
  Sessione s{p};
  EXPECT_TRUE(prova::CaricaLibrerieInstallazione(s));
  // The texts are drawn in the installation's stroke font and sizes, as the command draws them.
  const fs::path installazione(QF17_INSTALLAZIONE);
  EXPECT_TRUE(LeggiFont(s.font, installazione / "progra" / "font.001"));
  EXPECT_TRUE(LeggiOpzioni(s.opzioni, installazione / "custom" / "OpzioniQf7.txt"));
  prova::CartellaProva cartella;
  EXPECT_TRUE(ApriNodoDaFile(s, prova::CartellaEsempi() / (nodo + ".qf7")));
  const fs::path file = cartella.percorso() / ("foglio." + formato);
  if (formato == "grb") {
    std::int16_t scritto = 0;
    SalvaGRBSuFile(s, file.string(), scritto, 1);
    EXPECT_EQ(scritto, 1);
  } else {
    EXPECT_TRUE(EsportaDisegno(s, file.string(), 1, formato));
  }
  EXPECT_TRUE(p.messaggi.empty()) << nodo;
  return prova::LeggiTutto(file);
}

TEST(EsecutivoEsempi, ComeIFileControllati) {
  for (const char* nodo : kNodi) {
    for (const char* formato : kFormati) {
      const std::string atteso = prova::LeggiTutto(Golden(nodo, formato));
      ASSERT_FALSE(atteso.empty()) << Golden(nodo, formato);
      EXPECT_TRUE(Foglio(nodo, formato) == atteso) << nodo << "." << formato;
    }
  }
}

TEST(EsecutivoEsempi, DISABLED_Rigenera) {
  for (const char* nodo : kNodi) {
    for (const char* formato : kFormati) {
      std::ofstream(Golden(nodo, formato), std::ios::binary) << Foglio(nodo, formato);
    }
  }
}

}  // namespace
}  // namespace qf17
