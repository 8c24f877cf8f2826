// The DXF files of the sample sheets read by two real CAD readers: ezdxf's audit and LibreCAD's
// PDF printer. Both must be installed (the Makefile installs them): a missing one fails here.

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <map>
#include <numbers>
#include <sstream>
#include <string>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/esecutivo/composizione.h"
#include "disegno/esecutivo/tavola_dis.h"
#include "disegno/formati/salva_dxf.h"
#include "disegno/leggi_font.h"
#include "disegno/tratti_testo.h"
#include "nodo/esempi_nodo.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"
#include "supporto/esegui_programma.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

// The system's interpreter, where the distribution's ezdxf lives (a python3 earlier on the
// PATH may be another one).
constexpr const char* kPython = "/usr/bin/python3";

// Reads each file with ezdxf, counts its entities before the audit, audits it, and prints one
// line a file: name, then key=value. `tipi` counts entities naming a line type, `colorati`
// those with a colour other than 7, `altre` the audit's fixes other than the removal of an
// undefined line type name (the file names line types it does not define, and ezdxf removes
// them as a fix, not an error).
constexpr const char* kScriptAudit = R"(import sys
import ezdxf
from ezdxf.audit import AuditError
for nome in sys.argv[1:]:
    doc = ezdxf.readfile(nome)
    conta = {"LINE": 0, "TEXT": 0, "ARC": 0, "CIRCLE": 0, "altro": 0}
    tipi = colorati = 0
    for e in doc.modelspace():
        t = e.dxftype()
        conta[t if t in conta else "altro"] += 1
        if e.dxf.hasattr("linetype"):
            tipi += 1
        if e.dxf.hasattr("color") and e.dxf.color != 7:
            colorati += 1
    esito = doc.audit()
    altre = [f for f in esito.fixes if f.code != AuditError.UNDEFINED_LINETYPE]
    print(nome, " ".join(f"{k}={v}" for k, v in conta.items()), f"tipi={tipi}",
          f"colorati={colorati}", f"errori={len(esito.errors)}", f"altre={len(altre)}")
    for f in list(esito.errors) + altre:
        print("  ", f.code, f.message)
)";

struct ModoProva {
  std::string nome;
  std::int16_t esplodi, monocromo;
  double scala;
  std::int16_t disgrega;
};
const std::vector<ModoProva> kModi = {
    {"semplice", 0, 0, 0, 0},    {"esploso", 1, 0, 0, 0}, {"monocromo", 0, 1, 0, 0},
    {"disgregato", 0, 0, 10, 1}, {"tutto", 1, 1, 5, 1},
};

// What the store holds that the file must show, counted from the tables.
struct Conteggi {
  int linee = 0, testi = 0, tratti = 0, archi = 0, cerchi = 0, tipi = 0;
};
Conteggi Conta(const Sessione& s) {
  const ArchivioDisegno& a = s.disegno;
  const TabelleDisegno& t = a.Tabelle();
  auto valido = [&](std::int32_t i) { return i >= 0 && i < a.NumCoord; };
  Conteggi c;
  for (int i = 0; i < a.NumLinee; ++i) {
    if (!valido(t.LinP1[i]) || !valido(t.LinP2[i])) continue;
    ++c.linee;
    if (t.LinTipo[i] != 0) ++c.tipi;
  }
  for (int i = 0; i < a.NumTesti; ++i) {
    const std::int32_t p = t.TestoPunto[i];
    if (!valido(p) || t.TestoLarghezza[i] <= 0 || t.TestoAltezza[i] <= 0) continue;
    ++c.testi;
    c.tratti += static_cast<int>(TrattiTesto(s.font, t.TestoStringa[i], t.CoordX[p], t.CoordY[p],
                                             t.TestoAngolo[i] * std::numbers::pi / 180,
                                             t.TestoLarghezza[i] / 10.0, t.TestoAltezza[i] / 10.0)
                                     .size());
  }
  for (int i = 0; i < a.NumArchi; ++i) {
    const std::int32_t k = t.ArcCentro[i], p = t.ArcInizio[i], f = t.ArcFine[i];
    if (!valido(k) || !valido(p) || !valido(f)) continue;
    if (std::hypot(t.CoordX[p] - t.CoordX[k], t.CoordY[p] - t.CoordY[k]) < 0.0001) continue;
    const bool cerchio = std::hypot(t.CoordX[f] - t.CoordX[p], t.CoordY[f] - t.CoordY[p]) < 0.0001;
    ++(cerchio ? c.cerchi : c.archi);
    if (t.ArcTipo[i] != 0) ++c.tipi;
  }
  return c;
}

// The key=value pairs of the audit's line for `file`; empty when it has none.
std::map<std::string, int> RigaAudit(const std::string& uscita, const std::string& file) {
  std::istringstream righe(uscita);
  std::map<std::string, int> valori;
  for (std::string riga; std::getline(righe, riga);) {
    if (!riga.starts_with(file + " ")) continue;
    std::istringstream campi(riga.substr(file.size()));
    for (std::string campo; campi >> campo;) {
      const std::size_t uguale = campo.find('=');
      if (uguale != std::string::npos) {
        valori[campo.substr(0, uguale)] = std::stoi(campo.substr(uguale + 1));
      }
    }
  }
  return valori;
}

// The share of dark pixels of the first page of a PDF, from a small grey rendering.
double Inchiostro(const fs::path& cartella, const std::string& pdf) {
  const std::string radice = pdf.substr(0, pdf.size() - 4) + "_pagina";
  const prova::Esito esito =
      prova::EseguiProgramma(cartella, "pdftoppm", "-gray -r 20 -f 1 -l 1 '" + pdf + "' " + radice);
  EXPECT_EQ(esito.stato, 0) << esito.errori;
  std::string pgm;
  for (const auto& voce : fs::directory_iterator(cartella)) {
    const std::string nome = voce.path().filename().string();
    if (nome.starts_with(radice) && nome.ends_with(".pgm")) pgm = prova::LeggiTutto(voce.path());
  }
  // Binary PGM: "P5", width, height, maximum, one blank, then the bytes.
  std::istringstream testa(pgm);
  std::string magia;
  int larghezza = 0, altezza = 0, massimo = 0;
  testa >> magia >> larghezza >> altezza >> massimo;
  const std::size_t inizio = static_cast<std::size_t>(testa.tellg()) + 1;
  if (magia != "P5" || larghezza <= 0 || altezza <= 0 ||
      pgm.size() < inizio + static_cast<std::size_t>(larghezza) * altezza) {
    ADD_FAILURE() << "no page rendered from " << pdf;
    return 0;
  }
  int scuri = 0;
  for (std::size_t i = inizio; i < pgm.size(); ++i) {
    if (static_cast<unsigned char>(pgm[i]) < massimo * 3 / 4) ++scuri;
  }
  return static_cast<double>(scuri) / (static_cast<double>(larghezza) * altezza);
}

// LibreCAD's printer writes NAME.pdf beside each NAME.dxf (its -o option is not honoured by the
// distribution's version) and exits 0 even when it cannot read a file, so the PDF itself is
// checked. On a file it cannot parse it may wait on a box no one sees: hence the timeout.
void StampaConLibreCad(const fs::path& cartella, const std::vector<std::string>& file) {
  std::string argomenti = "QT_QPA_PLATFORM=offscreen timeout 120 librecad dxf2pdf -a";
  for (const auto& f : file) argomenti += " '" + f + "'";
  const prova::Esito esito = prova::EseguiProgramma(cartella, "env", argomenti);
  ASSERT_EQ(esito.stato, 0) << esito.uscita << esito.errori;
  for (const auto& f : file) {
    const std::string pdf = f.substr(0, f.size() - 4) + ".pdf";
    const std::string testo = prova::LeggiTutto(cartella / pdf);
    EXPECT_TRUE(testo.starts_with("%PDF-")) << pdf << "\n" << esito.uscita << esito.errori;
    if (testo.starts_with("%PDF-")) {
      EXPECT_GT(Inchiostro(cartella, pdf), 0.0) << pdf;
    }
  }
}

prova::Esito Audit(const prova::CartellaProva& cartella, const std::vector<std::string>& file) {
  cartella.Scrivi("audit_dxf.py", kScriptAudit);
  std::string argomenti = "audit_dxf.py";
  for (const auto& f : file) argomenti += " '" + f + "'";
  return prova::EseguiProgramma(cartella.percorso(), kPython, argomenti);
}

class SalvaDxfClientiTest : public ::testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    ASSERT_TRUE(prova::CaricaLibrerieInstallazione(s));
    const fs::path installazione = fs::path(QF17_SORGENTI) / "installazione";
    ASSERT_TRUE(LeggiFont(s.font, installazione / "progra" / "font.001"));
    s.cartelle.custom = (installazione / "custom").string();
    s.nodo.DirLavoro = cartella.percorso().string();
    ASSERT_TRUE(ApriNodoDaFile(s, prova::CartellaEsempi() / (GetParam() + ".qf7")));
    p.messaggi.clear();
  }

  // As the export composes the sheet: store emptied, made the target, composed, released.
  void Componi() {
    AzzeraDisegno(s.disegno);
    s.disegno.DestinazioneDisegno = "gendis";
    TavolaDis tavola(s);
    ComponiEsecutivo(tavola);
    s.disegno.DestinazioneDisegno.clear();
  }

  PiattaformaRegistrata p;
  Sessione s{p};
  prova::CartellaProva cartella;
};

TEST_P(SalvaDxfClientiTest, LettoDaEzdxfEStampatoDaLibreCad) {
  Componi();
  ASSERT_GT(s.disegno.NumLinee, 0);
  const Conteggi attesi = Conta(s);
  std::vector<std::string> file;
  for (const ModoProva& m : kModi) {
    file.push_back(GetParam() + "_" + m.nome + ".dxf");
    ASSERT_TRUE(SalvaDxf(s, (cartella.percorso() / file.back()).string(), m.esplodi, m.monocromo,
                         m.scala, m.disgrega, 1))
        << m.nome;
  }
  EXPECT_TRUE(p.messaggi.empty());
  // The writer leaves the drawing as it found it.
  EXPECT_EQ(Conta(s).linee, attesi.linee);

  const prova::Esito audit = Audit(cartella, file);
  ASSERT_EQ(audit.stato, 0) << audit.uscita << audit.errori;
  for (std::size_t i = 0; i < kModi.size(); ++i) {
    const ModoProva& m = kModi[i];
    SCOPED_TRACE(m.nome);
    auto v = RigaAudit(audit.uscita, file[i]);
    ASSERT_FALSE(v.empty()) << audit.uscita;
    EXPECT_EQ(v["errori"], 0) << audit.uscita;
    EXPECT_EQ(v["altre"], 0) << audit.uscita;
    EXPECT_EQ(v["altro"], 0);
    EXPECT_EQ(v["ARC"], attesi.archi);
    EXPECT_EQ(v["CIRCLE"], attesi.cerchi);
    if (m.esplodi == 1) {
      EXPECT_EQ(v["TEXT"], 0);
    } else {
      EXPECT_EQ(v["TEXT"], attesi.testi);
    }
    if (m.disgrega == 0) {
      EXPECT_EQ(v["LINE"], attesi.linee + (m.esplodi == 1 ? attesi.tratti : 0));
      EXPECT_EQ(v["tipi"], attesi.tipi);
    } else {
      // Every dashed line of the sheet is far shorter than 2000 patterns: none keeps its name.
      EXPECT_EQ(v["tipi"], 0);
    }
    if (m.monocromo == 1) {
      EXPECT_EQ(v["colorati"], 0);
    }
  }
  StampaConLibreCad(cartella.percorso(), file);
}

INSTANTIATE_TEST_SUITE_P(Esempi, SalvaDxfClientiTest,
                         ::testing::Values("ANGUPN", "DOPPIO", "HEASALD", "MOLTESOLL"));

// The hand-written file of the writer's own test, read by both.
TEST(SalvaDxfClientiPiccolo, FileScrittoAMano) {
  prova::CartellaProva cartella;
  cartella.Scrivi("piccolo.dxf",
                  prova::LeggiTutto(fs::path(QF17_DATI_TEST) / "disegno/dati/dxf_piccolo.dxf"));
  const prova::Esito audit = Audit(cartella, {"piccolo.dxf"});
  ASSERT_EQ(audit.stato, 0) << audit.uscita << audit.errori;
  auto v = RigaAudit(audit.uscita, "piccolo.dxf");
  EXPECT_EQ(v["errori"], 0) << audit.uscita;
  EXPECT_EQ(v["altre"], 0) << audit.uscita;
  EXPECT_EQ(v["LINE"], 4);
  EXPECT_EQ(v["TEXT"], 3);
  EXPECT_EQ(v["ARC"], 2);
  EXPECT_EQ(v["CIRCLE"], 1);
  EXPECT_EQ(v["tipi"], 4);
  StampaConLibreCad(cartella.percorso(), {"piccolo.dxf"});
}

}  // namespace
}  // namespace qf17
