// The program as a careless user runs it: damaged node and library files, outputs on top of the
// node, read-only files, odd roots. Each case must end in a clear message and an exit status that
// does not say "verified", with the user's files as they were. Every test works on a private copy
// of the sample installation, so that nothing of the staged one is touched.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "supporto/cartella_prova.h"
#include "supporto/esegui_programma.h"

namespace {

namespace fs = std::filesystem;
using qf17::prova::Esito;
using qf17::prova::LeggiTutto;

class Robustezza : public ::testing::Test {
 protected:
  void SetUp() override {
    fs::copy(fs::path(QF17_SORGENTI) / "installazione", radice_, fs::copy_options::recursive);
    spazio_.Scrivi("inst/impostazioni/dirlav", (radice_ / "lavori").string() + "\r\n");
  }

  Esito Esegui(const std::string& argomenti, const fs::path& cartella = {}) {
    // Run from a folder of its own, so that bare node names are taken from the job folder.
    return qf17::prova::EseguiProgramma(cartella.empty() ? spazio_.percorso() : cartella,
                                        QF17_PROGRAMMA_STAGED,
                                        "--root '" + radice_.string() + "' " + argomenti);
  }
  static std::string Esempio(const std::string& nome) {
    return LeggiTutto(fs::path(QF17_SORGENTI) / "installazione/lavori/esempi" / (nome + ".qf7"));
  }
  fs::path Scrivi(const std::string& nome, const std::string& testo) const {
    return spazio_.Scrivi(fs::path("inst/lavori/esempi") / nome, testo);
  }
  fs::path Relazione(const std::string& nodo, const std::string& metodo = "TA") const {
    return lavoro_ / ("Rel" + metodo + "_QF17_" + nodo + ".txt");
  }
  // Files of the job folder, to see that a failed command left nothing behind.
  std::vector<std::string> FileDelLavoro() const {
    std::vector<std::string> nomi;
    for (const auto& voce : fs::directory_iterator(lavoro_)) {
      nomi.push_back(voce.path().filename().string());
    }
    std::sort(nomi.begin(), nomi.end());
    return nomi;
  }

  qf17::prova::CartellaProva spazio_;
  const fs::path radice_ = spazio_.percorso() / "inst";
  const fs::path lavoro_ = radice_ / "lavori" / "esempi";
};

// The line of `testo` that holds `chiave` gets `valore` in the file's own layout; returns the
// text and the line's 1-based number.
std::pair<std::string, int> ConValore(std::string testo, const std::string& chiave,
                                      const std::string& valore) {
  const std::size_t k = testo.find(chiave);
  EXPECT_NE(k, std::string::npos) << chiave;
  const std::size_t inizio = testo.rfind('\n', k) + 1;
  std::string nuovo = valore;
  nuovo.resize(40, ' ');
  testo.replace(inizio, k - inizio, nuovo);
  const int riga = 1 + static_cast<int>(std::count(testo.begin(), testo.begin() + inizio, '\n'));
  return {testo, riga};
}

std::string SenzaRigheDa(const std::string& testo, const std::string& chiave) {
  return testo.substr(0, testo.rfind('\n', testo.find(chiave)) + 1);
}

std::size_t Conta(const std::string& testo, const std::string& parte) {
  std::size_t n = 0;
  for (std::size_t p = testo.find(parte); p != std::string::npos; p = testo.find(parte, p + 1)) {
    ++n;
  }
  return n;
}

// A value outside its field's choices was read as one of them (a mode 7 halves the bolts' force
// while the report says "SINGOLA"): now the node is not loaded, and the message names file, line
// and key.
TEST_F(Robustezza, CampoASceltaFuoriDaiValoriNonCaricaIlNodo) {
  struct Caso {
    const char* chiave;
    const char* valore;
    const char* messaggio;
  };
  const Caso casi[] = {
      {"[Ast_modo 1]", "7", "chiave [Ast_modo]: valore 7 non ammesso (0..2)"},
      {"[Ast_lato 2]", "2", "chiave [Ast_lato]: valore 2 non ammesso (0..1)"},
      {"[Ast_flag 3]", "-1", "chiave [Ast_flag]: valore -1 non ammesso (0..1)"},
      {"[CasoCarico 2]", "2", "chiave [CasoCarico]: valore 2 non ammesso (0..1)"},
      {"[TipoVer]", "2", "chiave [TipoVer]: valore 2 fuori dai limiti 0..1"},
      {"[Esposizione]", "3", "chiave [Esposizione]: valore 3 fuori dai limiti 0..2"},
  };
  const auto prima = FileDelLavoro();
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.chiave);
    auto [testo, riga] = ConValore(Esempio("ANGUPN"), c.chiave, c.valore);
    const fs::path nodo = Scrivi("SCELTA.qf7", testo);
    const Esito e = Esegui("verifica SCELTA.qf7");
    EXPECT_EQ(e.stato, 2);
    EXPECT_EQ(e.errori, "ERRORE: File " + nodo.string() + ", riga " + std::to_string(riga) + ", " +
                            c.messaggio + "\n");
    EXPECT_FALSE(fs::exists(Relazione("SCELTA")));
  }
  fs::remove(lavoro_ / "SCELTA.qf7");
  EXPECT_EQ(FileDelLavoro(), prima);
}

// Texts that are not nodes were verified as the node in memory with no load set, exit 0.
TEST_F(Robustezza, FileSenzaDatiDiNodoOSenzaSollecitazioni) {
  const std::string testata = Esempio("ANGUPN").substr(0, Esempio("ANGUPN").find('\n') + 1);
  const std::string parametri = LeggiTutto(lavoro_ / "parametrilavoro");
  struct Caso {
    const char* nome;
    std::string testo;
    std::string errori;
  };
  const std::string nonNodo = ": non contiene i dati di un nodo (nessuna chiave del file nodo)\n";
  const Caso casi[] = {
      {"CASUALE", testata + "lorem ipsum 12\r\n[non una chiave]\r\n",
       "ERRORE: File " + (lavoro_ / "CASUALE.qf7").string() + nonNodo},
      {"PARAMETRI", parametri, "ERRORE: File " + (lavoro_ / "PARAMETRI.qf7").string() + nonNodo},
      {"TAGLIATO", SenzaRigheDa(Esempio("ANGUPN"), "[nSollAg]"),
       "ERRORE: Il nodo non ha sollecitazioni: verifica non eseguita.\n"},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.nome);
    Scrivi(std::string(c.nome) + ".qf7", c.testo);
    const Esito e = Esegui("verifica " + std::string(c.nome) + ".qf7");
    EXPECT_EQ(e.stato, 2);
    EXPECT_EQ(e.errori, c.errori);
    EXPECT_FALSE(fs::exists(Relazione(c.nome)));
  }
}

// An old Macintosh file ends its lines with CR alone: it is the same node.
TEST_F(Robustezza, RigheChiuseDaSoloCr) {
  std::string testo = Esempio("ANGUPN");
  testo.erase(std::remove(testo.begin(), testo.end(), '\n'), testo.end());
  Scrivi("SOLOCR.qf7", testo);
  const Esito e = Esegui("verifica SOLOCR.qf7 --metodo TA");
  EXPECT_EQ(e.stato, 0) << e.errori;
  EXPECT_EQ(LeggiTutto(Relazione("SOLOCR")),
            LeggiTutto(fs::path(QF17_DATI_TEST) / "verifica/dati/relazione_ta_ANGUPN.txt"));
}

// A bolt class row without its partial factor gave endless resistances and "NODO VERIFICATO".
TEST_F(Robustezza, RigaDeiMaterialiIncompleta) {
  const fs::path materiali = radice_ / "custom" / "MaterialiNTC08.tx1";
  std::string testo = LeggiTutto(materiali);
  const std::string riga = "3730 2640 6490 8000 5600 1.25";
  testo.replace(testo.find(riga), riga.size(), "3730 2640 6490 8000 5600");
  spazio_.Scrivi("inst/custom/MaterialiNTC08.tx1", testo);
  const Esito e = Esegui("verifica ANGUPN.qf7 --metodo SLU");
  EXPECT_EQ(e.stato, 2);
  EXPECT_EQ(e.errori, "ERRORE: File materiali (" + materiali.string() +
                          ") non trovato o non valido:\nriga 43 (8.8): 5 valori invece di 6\n");
  EXPECT_FALSE(fs::exists(Relazione("ANGUPN", "SLU")));
}

// A gusset of 1e200 mm wrote "1.#INF" into DIS and DXF files.
TEST_F(Robustezza, DisegnoFuoriScalaNonScriveFile) {
  Scrivi("ENORME.qf7", ConValore(Esempio("ANGUPN"), "[Fz_a]", "1e200").first);
  for (const char* formato : {"dis", "dxf", "grb", "svg"}) {
    SCOPED_TRACE(formato);
    const Esito e = Esegui("disegna ENORME.qf7 --formato " + std::string(formato));
    EXPECT_EQ(e.stato, 2);
    EXPECT_EQ(e.uscita, "");
    EXPECT_EQ(e.errori.rfind("ERRORE: Disegno non eseguito: ", 0), 0u) << e.errori;
    EXPECT_FALSE(fs::exists(lavoro_ / ("ENORME." + std::string(formato))));
  }
}

// "Area netta nulla" went to a box and was gone while the report printed a stress of 0 and
// "verified". Every box of the run now closes the report and the JSON, and the exit status is 3.
TEST_F(Robustezza, MessaggiDelRunNellaRelazioneENelJson) {
  std::string testo = Esempio("ANGUPN");
  for (const char* k : {"[FiBull 2 1]", "[FiBull 2 2]", "[FiBull 2 3]"}) {
    testo = ConValore(testo, k, "200").first;
  }
  Scrivi("M200.qf7", testo);
  const Esito e = Esegui("verifica M200.qf7 --metodo TA --json m200.json");
  ASSERT_EQ(e.stato, 3) << e.errori;
  // Standard error shows each box as it came: the report and the JSON count them. Three bolts
  // in a row make three net sections of the angle per load set, all empty (15 in 5 sets).
  const std::pair<std::string, std::string> box[] = {
      {"ATTENZIONE", "Area netta della sezione del profilo LU70x7 nulla"},
      {"QF17", "Area netta nulla nella verifica del fazzoletto"}};
  std::string coda = "\r\nAVVERTENZE\r\n";
  std::vector<std::size_t> volte;
  for (const auto& [titolo, testo] : box) {
    volte.push_back(Conta(e.errori, titolo + ": " + testo + "\n"));
    coda += "\t" + testo + " (" + std::to_string(volte.back()) + " volte)\r\n";
  }
  coda += "\r\n";
  EXPECT_EQ(volte[0], 15u);
  EXPECT_GT(volte[1], 0u);
  const std::string relazione = LeggiTutto(Relazione("M200"));
  EXPECT_EQ(Conta(relazione, "AVVERTENZE"), 1u);
  EXPECT_EQ(relazione.substr(relazione.size() - coda.size()), coda);
  const auto json = nlohmann::json::parse(LeggiTutto(spazio_.percorso() / "m200.json"));
  ASSERT_EQ(json["avvertenze"].size(), 2u);
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_EQ(json["avvertenze"][i]["testo"], box[i].second);
    EXPECT_EQ(json["avvertenze"][i]["volte"], volte[i]);
  }
  EXPECT_EQ(json["nodoVerificato"], true);
}

// A read-only report was replaced through the rename and its mode lost.
TEST_F(Robustezza, RelazioneInSolaLetturaEPermessiConservati) {
  ASSERT_EQ(Esegui("verifica ANGUPN.qf7 --metodo TA").stato, 0);
  const fs::path relazione = Relazione("ANGUPN");
  const std::string giusta = LeggiTutto(relazione);
  spazio_.Scrivi(relazione.lexically_relative(spazio_.percorso()), "relazione firmata");
  fs::permissions(relazione, fs::perms::owner_read | fs::perms::group_read);
  Esito e = Esegui("verifica ANGUPN.qf7 --metodo TA");
  EXPECT_EQ(e.stato, 2);
  EXPECT_EQ(e.errori, "ERRORE: Errore: scrittura della relazione non riuscita:\n" +
                          relazione.string() + "\n");
  EXPECT_EQ(LeggiTutto(relazione), "relazione firmata");
  EXPECT_EQ(fs::status(relazione).permissions(), fs::perms::owner_read | fs::perms::group_read);

  const auto permessi = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
  fs::permissions(relazione, permessi);
  EXPECT_EQ(Esegui("verifica ANGUPN.qf7 --metodo TA").stato, 0);
  EXPECT_EQ(LeggiTutto(relazione), giusta);
  EXPECT_EQ(fs::status(relazione).permissions(), permessi);

  // A read-only node is not replaced by a save either.
  const fs::path nodo = lavoro_ / "MOLTESOLL.qf7";
  const std::string prima = LeggiTutto(nodo);
  fs::permissions(nodo, fs::perms::owner_read);
  e = Esegui("sollecitazioni MOLTESOLL.qf7 --max-min");
  EXPECT_EQ(e.stato, 2);
  EXPECT_EQ(e.errori, "QF17 - SALVATAGGIO NON RIUSCITO: File:\n" + nodo.string() + "\n");
  EXPECT_EQ(LeggiTutto(nodo), prima);
}

// "--root ." was ignored and the installation beside the program used.
TEST_F(Robustezza, OgniRadiceEOnorata) {
  Esito e = qf17::prova::EseguiProgramma(radice_, QF17_PROGRAMMA_STAGED,
                                         "--root . verifica ANGUPN.qf7 --metodo TA");
  EXPECT_EQ(e.stato, 0) << e.errori;
  EXPECT_EQ(e.uscita, Relazione("ANGUPN").string() + "\n");

  const fs::path vuota = spazio_.percorso() / "vuota";
  fs::create_directories(vuota);
  e = qf17::prova::EseguiProgramma(vuota, QF17_PROGRAMMA_STAGED, "--root . nodo ANGUPN.qf7");
  EXPECT_EQ(e.stato, 2);
  EXPECT_EQ(e.errori, "QF17: " + vuota.string() + "/impostazioni\\dirlav errato o mancante.\n");
}

// "disegna N.qf7 -o N.qf7" replaced the node with a drawing, "--json N.qf7" with JSON.
TEST_F(Robustezza, UscitaSulFileDelNodoRifiutata) {
  const fs::path nodo = lavoro_ / "DOPPIO.qf7";
  const std::string prima = LeggiTutto(nodo);
  fs::create_directories(lavoro_ / "sotto");
  const std::string comandi[] = {"disegna DOPPIO.qf7 --formato dxf -o sotto/../DOPPIO.qf7",
                                 "disegna DOPPIO.qf7 -o " + nodo.string(),
                                 "verifica DOPPIO.qf7 --json ./DOPPIO.qf7"};
  for (const std::string& comando : comandi) {
    SCOPED_TRACE(comando);
    const Esito e = Esegui(comando, lavoro_);
    EXPECT_EQ(e.stato, 2);
    EXPECT_NE(e.errori.find(" è il file del nodo: scegliere un altro nome.\n"), std::string::npos)
        << e.errori;
    EXPECT_EQ(LeggiTutto(nodo), prima);
  }
  EXPECT_FALSE(fs::exists(Relazione("DOPPIO")));
}

// A node whose section or steel the libraries lack was saved with empty names and another steel.
TEST_F(Robustezza, NomiMancantiFermanoIComandiCheScrivono) {
  for (const auto& [chiave, valore] :
       {std::pair{"[Cor_Nome]", "UPN999"}, std::pair{"[acciaio_Nome]", "S 999"}}) {
    const std::string testo = ConValore(Esempio("ANGUPN"), chiave, valore).first;
    const fs::path nodo = Scrivi("IGNOTO.qf7", testo);
    for (const std::string comando :
         {"sollecitazioni IGNOTO.qf7 --max-min", "converti IGNOTO.qf7 -o IGNOTO.qf7",
          "disegna IGNOTO.qf7 --formato dis", "verifica IGNOTO.qf7"}) {
      SCOPED_TRACE(comando + " " + chiave);
      const Esito e = Esegui(comando);
      EXPECT_EQ(e.stato, 2);
      EXPECT_NE(e.errori.find("ERRORE: Il nodo " + nodo.string() +
                              " usa sezioni o materiali che le librerie non contengono: "
                              "nessun file scritto.\n"),
                std::string::npos)
          << e.errori;
      EXPECT_EQ(LeggiTutto(nodo), testo);
    }
    EXPECT_FALSE(fs::exists(lavoro_ / "IGNOTO.dis"));
    EXPECT_FALSE(fs::exists(Relazione("IGNOTO")));
  }
}

// "KN" fits the rule for N: figures showed in N under a kN label, without a word.
TEST_F(Robustezza, UnitaSconosciuteDetteUnaVolta) {
  const fs::path file = lavoro_ / "parametrilavoro";
  std::string testo = LeggiTutto(file);
  testo.replace(testo.find("daN  "), 5, "KN   ");
  testo.replace(testo.find("daN8cm2"), 7, "daN8cmq");
  spazio_.Scrivi(file.lexically_relative(spazio_.percorso()), testo);
  const Esito e = Esegui("nodo ANGUPN.qf7");
  EXPECT_EQ(e.stato, 0);
  EXPECT_EQ(e.errori,
            "ATTENZIONE: File " + file.string() +
                ": unità non riconosciute: forze \"KN\", tensioni \"daN/cmq\". Le grandezze "
                "in queste "
                "unità possono essere mostrate con valori errati.\n");
}

// /dev/zero given as a node was read until memory ran out.
TEST_F(Robustezza, SoloFileRegolari) {
  const Esito e = Esegui("nodo /dev/zero");
  EXPECT_EQ(e.stato, 2);
  EXPECT_EQ(e.errori, "LETTURA RELEASE: Errore in lettura del file:\n/dev/zero\n");
}

}  // namespace
