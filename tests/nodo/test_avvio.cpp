#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

#include "nodo/avvio.h"
#include "nodo/sessione.h"
#include "piattaforma/errori.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

// A private copy of the sample installation that each test may damage. It is copied from the
// sources: the staged one has job folders where the command-line tests write and remove reports
// while this copy is being made.
class Avvio_ : public ::testing::Test {
 public:
  void SetUp() override {
    fs::remove_all(radice_);
    fs::copy(fs::path(QF17_SORGENTI) / "installazione", radice_, fs::copy_options::recursive);
    Scrivi("impostazioni/dirlav", (radice_ / "lavori").string() + "\r\n");
  }
  void TearDown() override { fs::remove_all(radice_); }

  void Scrivi(const std::string& relativo, const std::string& testo) {
    spazio_.Scrivi(relativo, testo);
  }
  std::string Cartella(const std::string& relativo) const { return (radice_ / relativo).string(); }

  // Runs the start-up from the program folder; returns true when it ended the program.
  bool Avvia(const std::string& riga = "") {
    try {
      Avvio(sessione_, riga, radice_ / "progra");
      return false;
    } catch (const FineProgramma&) {
      return true;
    }
  }
  const PiattaformaRegistrata::MessaggioVisto& Ultimo() const {
    return piattaforma_.messaggi.back();
  }

  prova::CartellaProva spazio_;
  const fs::path radice_ = spazio_.percorso();
  PiattaformaRegistrata piattaforma_;
  Sessione sessione_{piattaforma_};
};

TEST_F(Avvio_, InstallazioneCompletaSenzaMessaggi) {
  ASSERT_FALSE(Avvia());
  EXPECT_TRUE(piattaforma_.messaggi.empty()) << piattaforma_.messaggi.front().testo;
  EXPECT_EQ(sessione_.nodo.DirLavoro, Cartella("lavori/esempi"));
  EXPECT_EQ(sessione_.nodo.NomeFileNodo, "Nuovo");
  EXPECT_EQ(sessione_.opzioni[22], 20.0);
  EXPECT_EQ(sessione_.opzioni[17], sessione_.opzioni[13]);
  EXPECT_EQ(sessione_.nodo.Corrente.Nome, "IPE140");
  EXPECT_GT(sessione_.nodo.Corrente.Area, 0);
  EXPECT_EQ(sessione_.nodo.nSollAg, 0);
}

TEST_F(Avvio_, FallimentiCheFermanoIlProgramma) {
  struct Caso {
    const char* nome;
    std::function<void(Avvio_&)> guasta;
    std::function<std::string(Avvio_&)> testo;
    const char* titolo;
  };
  const Caso casi[] = {
      {"lavoro di 5 caratteri", [](Avvio_& t) { t.Scrivi("impostazioni/lavoro", "esemp\r\n"); },
       [](Avvio_& t) { return t.Cartella("impostazioni") + "\\lavoro errato o mancante."; },
       "QF17"},
      {"lavoro di 7 caratteri", [](Avvio_& t) { t.Scrivi("impostazioni/lavoro", "esempio\r\n"); },
       [](Avvio_& t) { return t.Cartella("impostazioni") + "\\lavoro errato o mancante."; },
       "QF17"},
      {"dirlav mancante", [](Avvio_& t) { fs::remove(t.radice_ / "impostazioni/dirlav"); },
       [](Avvio_& t) { return t.Cartella("impostazioni") + "\\dirlav errato o mancante."; },
       "QF17"},
      {"dirlav non lavori",
       [](Avvio_& t) { t.Scrivi("impostazioni/dirlav", (t.radice_ / "lavoro").string()); },
       [](Avvio_&) {
         return std::string("Il direttorio dei lavori deve terminare con < ...\\lavori >.");
       },
       "QF17"},
      {"font mancante", [](Avvio_& t) { fs::remove(t.radice_ / "progra/font.001"); },
       [](Avvio_&) { return std::string("Errore: file font.001 errato o mancante."); }, "ERRORE"},
      {"profilario mancante", [](Avvio_& t) { fs::remove(t.radice_ / "custom/Prof_pro"); },
       [](Avvio_&) { return std::string("Profilario errato o mancante"); }, "ERRORE"},
      {"materiali mancanti", [](Avvio_& t) { fs::remove(t.radice_ / "custom/MaterialiNTC08.tx1"); },
       [](Avvio_& t) {
         return "File materiali (" + t.Cartella("custom/MaterialiNTC08.tx1") +
                ") non trovato o non valido";
       },
       "ERRORE"},
  };
  for (const auto& c : casi) {
    SetUp();
    c.guasta(*this);
    PiattaformaRegistrata piattaforma;
    Sessione sessione(piattaforma);
    bool finito = false;
    try {
      Avvio(sessione, "", radice_ / "progra");
    } catch (const FineProgramma&) {
      finito = true;
    }
    EXPECT_TRUE(finito) << c.nome;
    ASSERT_FALSE(piattaforma.messaggi.empty()) << c.nome;
    EXPECT_EQ(piattaforma.messaggi.back().testo, c.testo(*this)) << c.nome;
    EXPECT_EQ(piattaforma.messaggi.back().titolo, c.titolo) << c.nome;
    EXPECT_EQ(piattaforma.messaggi.back().icona, Icona::Critica) << c.nome;
    TearDown();
  }
}

TEST_F(Avvio_, ProfilarioConColonneMancantiNominaLaRiga) {
  Scrivi("custom/Prof_pro", "IPE 80 7.64 80.1\r\n*END*\r\n");
  ASSERT_TRUE(Avvia());
  EXPECT_EQ(Ultimo().testo,
            "Profilario errato o mancante\nRiga 1 (IPE80): 2 colonne di dati invece di 20.");
  EXPECT_EQ(Ultimo().titolo, "ERRORE");
}

TEST_F(Avvio_, CartellaMancanteElencaTutteLeCartelle) {
  fs::remove_all(radice_ / "temp");
  ASSERT_TRUE(Avvia());
  const std::string atteso = "Uno dei seguenti direttori non è presente o non è accessibile:\n" +
                             Cartella("impostazioni") + "\n" + Cartella("progra") + "\n" +
                             Cartella("driver") + "\n" + Cartella("custom") + "\n" +
                             Cartella("Help") + "\n" + Cartella("Manuali") + "\n" +
                             Cartella("temp") + "\n" + Cartella("custom/archivi") + "\n" +
                             Cartella("custom/simboli") + "\n" + Cartella("lavori/esempi");
  EXPECT_EQ(Ultimo().testo, atteso);
}

TEST_F(Avvio_, ProgrammaFuoriDaProgra) {
  try {
    Avvio(sessione_, "", radice_ / "bin");
    FAIL() << "start-up went on";
  } catch (const FineProgramma&) {
  }
  EXPECT_EQ(Ultimo().testo, "Il direttorio della applicazione deve terminare con \\progra");
}

TEST_F(Avvio_, RadiceDallaRigaDiComando) {
  // The key is found in any case; other fields are left alone.
  Avvio(sessione_, "|lingua=it| |DIROOT=" + radice_.string() + "| |x=1|",
        "/una/cartella/qualsiasi");
  EXPECT_EQ(sessione_.cartelle.DirRoot, radice_.string());
}

TEST_F(Avvio_, OpzioniMancantiSoloAvviso) {
  fs::remove(radice_ / "custom/OpzioniQf7.txt");
  ASSERT_FALSE(Avvia());
  ASSERT_EQ(piattaforma_.messaggi.size(), 1u);
  EXPECT_EQ(Ultimo().testo,
            "Errore: file " + Cartella("custom") + "\\OpzioniQf7.txt errato o mancante.");
  EXPECT_EQ(Ultimo().titolo, "ERRORE");
  EXPECT_EQ(sessione_.opzioni[22], 20.0);
  EXPECT_EQ(sessione_.opzioni[23], 70.0);  // the defaults stay
}

TEST(Titolo, FormaDellaFinestraPrincipale) {
  EXPECT_EQ(ImpostaTitolo("/lavori/esempi", "Nuovo"),
            "QF17 - KORVIN Software 18 - /lavori/esempi/Nuovo.qf7");
}

}  // namespace
}  // namespace qf17
