// `qf17 verifica` run as a user runs it: the staged program on copies of the sample nodes.
// A node given by path is read from there, but its report goes to the installation's job folder
// under the node's name: the copies get names of their own (with the process id) so that the
// samples' reports are never touched, and every report written is removed at the end.

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "supporto/cartella_prova.h"
#include "supporto/esegui_programma.h"

namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using qf17::prova::LeggiTutto;

using qf17::prova::Esito;

class RigaDiComandoVerifica : public qf17::prova::RigaDiComandoProva {
 protected:
  ~RigaDiComandoVerifica() override {
    std::error_code ec;
    for (const fs::path& r : relazioni_) {
      fs::remove(r, ec);
      fs::remove(r.string() + ".tmp~", ec);
    }
  }

  // A copy of a sample under a name of this process; returns the node's name.
  std::string Copia(const std::string& esempio, const std::string& testo = {}) {
    const std::string nome = esempio + "_cli_" + std::to_string(::getpid());
    const fs::path copia = cartella_ / (nome + ".qf7");
    fs::remove(copia);
    if (testo.empty()) {
      fs::copy_file(Esempio(esempio + ".qf7"), copia);
    } else {
      spazio_.Scrivi(copia.filename(), testo);
    }
    relazioni_.push_back(Relazione(nome));
    return nome;
  }
  static fs::path Relazione(const std::string& nome) {
    return Esempio("RelTA_QF17_" + nome + ".txt");
  }
  std::string Percorso(const std::string& nome) const {
    return "'" + (cartella_ / (nome + ".qf7")).string() + "'";
  }
  static std::string Riferimento(const std::string& esempio) {
    return LeggiTutto(fs::path(QF17_DATI_TEST) / "verifica" / "dati" /
                      ("relazione_ta_" + esempio + ".txt"));
  }

  std::vector<fs::path> relazioni_;
};

TEST_F(RigaDiComandoVerifica, NodoVerificatoEsito0EPercorsoDellaRelazione) {
  const std::string nodo = Copia("ANGUPN");
  Esito e = Esegui("verifica " + Percorso(nodo) + " --metodo TA");
  EXPECT_EQ(e.stato, 0) << e.errori;
  EXPECT_EQ(e.uscita, Relazione(nodo).string() + "\n");
  EXPECT_EQ(e.errori, "");
  // The heading names no node, so the report is the sample's own.
  EXPECT_EQ(LeggiTutto(Relazione(nodo)), Riferimento("ANGUPN"));
  EXPECT_FALSE(fs::exists(Relazione(nodo).string() + ".tmp~"));
}

TEST_F(RigaDiComandoVerifica, NodoNonVerificatoEsito1ConIlMessaggioDiChiusura) {
  for (const char* esempio : {"DOPPIO", "HEASALD"}) {
    SCOPED_TRACE(esempio);
    const std::string nodo = Copia(esempio);
    // The node's own method (allowable stresses) when --metodo is not given.
    Esito e = Esegui("verifica " + Percorso(nodo));
    EXPECT_EQ(e.stato, 1) << e.errori;
    EXPECT_EQ(e.uscita, Relazione(nodo).string() + "\n");
    EXPECT_EQ(e.errori, "QF17 - NODO DI TRAVATURA RETICOLARE: ATTENZIONE: nodo non verificato!\n");
    EXPECT_EQ(LeggiTutto(Relazione(nodo)), Riferimento(esempio));
  }
}

// Without --metodo the node's own method decides (MOLTESOLL is a limit-state node); the option
// overrides it in either case.
TEST_F(RigaDiComandoVerifica, MetodoDelNodoOppureDellaRiga) {
  const std::string nodo = Copia("MOLTESOLL");
  const fs::path slu = Esempio("RelSLU_QF17_" + nodo + ".txt");
  relazioni_.push_back(slu);
  for (const char* opzione : {"", " --metodo SLU", " --metodo slu"}) {
    SCOPED_TRACE(opzione);
    fs::remove(slu);
    Esito e = Esegui("verifica " + Percorso(nodo) + opzione);
    EXPECT_EQ(e.stato, 1) << e.errori;  // several sets fail, e.g. on member A
    EXPECT_EQ(e.uscita, slu.string() + "\n");
    EXPECT_NE(LeggiTutto(slu).find(" - METODO DEGLI STATI LIMITE (NTC 2008)\r\n"),
              std::string::npos);
    EXPECT_FALSE(fs::exists(Relazione(nodo)));
  }
  // An unknown method is refused by the command line itself.
  EXPECT_EQ(Esegui("verifica " + Percorso(nodo) + " --metodo XYZ").stato, 2);
  EXPECT_FALSE(fs::exists(Relazione(nodo)));

  // --metodo TA overrides the node's method: the allowable-stress report.
  Esito e = Esegui("verifica " + Percorso(nodo) + " --metodo ta");
  EXPECT_TRUE(e.stato == 0 || e.stato == 1) << e.stato << e.errori;
  EXPECT_EQ(e.uscita, Relazione(nodo).string() + "\n");
  EXPECT_NE(LeggiTutto(Relazione(nodo)).find(" - METODO DELLE TENSIONI AMMISSIBILI"),
            std::string::npos);
}

// DOPPIO's members break the limit-state pitch rules: answered OK the run goes on to a report;
// with --annulla the last group's Cancel ends it silently, with no report.
TEST_F(RigaDiComandoVerifica, AnnullaSugliAvvisiDiDisposizioneFineSilenziosa) {
  const std::string nodo = Copia("DOPPIO");
  const fs::path slu = Esempio("RelSLU_QF17_" + nodo + ".txt");
  relazioni_.push_back(slu);
  const std::string avviso =
      "ATTENZIONE!: L'interasse dei bulloni risulta difforme dalle prescrizioni delle NTC 2008 "
      "(minore del limite) sull'asta C\n";

  Esito e = Esegui("verifica " + Percorso(nodo) + " --metodo SLU --annulla");
  EXPECT_EQ(e.stato, 2);
  EXPECT_EQ(e.uscita, "");
  EXPECT_NE(e.errori.find(avviso), std::string::npos) << e.errori;
  EXPECT_EQ(e.errori.find("nodo non verificato"), std::string::npos) << e.errori;
  EXPECT_FALSE(fs::exists(slu));

  e = Esegui("verifica " + Percorso(nodo) + " --metodo SLU");
  EXPECT_EQ(e.stato, 1);
  EXPECT_NE(e.errori.find(avviso), std::string::npos) << e.errori;
  EXPECT_EQ(e.uscita, slu.string() + "\n");
}

TEST_F(RigaDiComandoVerifica, AstaParallelaAlCorrenteEsito2ERelazioneIntatta) {
  // Member B turned to the chord's angle (0 degrees): the key keeps its 40-column layout.
  std::string testo = LeggiTutto(Esempio("ANGUPN.qf7"));
  const std::string b90 = "\r\n90                                      [Ast_teta 2]\r\n";
  const std::string b0 = "\r\n0                                       [Ast_teta 2]\r\n";
  const std::string corrente0 = "\r\n0                                       [Cor_teta]\r\n";
  ASSERT_NE(testo.find(corrente0), std::string::npos);
  const auto dove = testo.find(b90);
  ASSERT_NE(dove, std::string::npos);
  const std::string parallela = std::string(testo).replace(dove, b90.size(), b0);

  const std::string nodo = Copia("ANGUPN", parallela);
  const fs::path fileJson = cartella_ / "tabelle.json";
  const std::string messaggio =
      "ATTENZIONE: Asta B paralella al corrente: impossibile procedere alla verifica\n";
  Esito e =
      Esegui("verifica " + Percorso(nodo) + " --metodo TA --json '" + fileJson.string() + "'");
  EXPECT_EQ(e.stato, 2);
  EXPECT_EQ(e.uscita, "");
  EXPECT_EQ(e.errori, messaggio);
  EXPECT_FALSE(fs::exists(Relazione(nodo)));
  EXPECT_FALSE(fs::exists(fileJson));

  // A report of an earlier run under the same name is neither cut nor replaced by a run that
  // stops with a message, and no temporary file is left beside it.
  spazio_.Scrivi(nodo + ".qf7", testo);
  ASSERT_EQ(Esegui("verifica " + Percorso(nodo)).stato, 0);
  const std::string prima = LeggiTutto(Relazione(nodo));
  ASSERT_EQ(prima, Riferimento("ANGUPN"));
  spazio_.Scrivi(nodo + ".qf7", parallela);
  e = Esegui("verifica " + Percorso(nodo) + " --json '" + fileJson.string() + "'");
  EXPECT_EQ(e.stato, 2);
  EXPECT_EQ(e.errori, messaggio);
  EXPECT_EQ(LeggiTutto(Relazione(nodo)), prima);
  EXPECT_FALSE(fs::exists(Relazione(nodo).string() + ".tmp~"));
  EXPECT_FALSE(fs::exists(fileJson));
}

// The JSON holds the tables unrounded: the report prints 844.8, 247.5, -1188.3 and 0.3 for
// what was worked out by hand as 844.7942 (TauBull of ANGUPN's A1 in set 1), 247.5136
// (SigSotto), -1188.3101 (SigDiff of B), and for HEASALD's weld in set 1 TauPar -373.1540,
// SigPerp -344.0849 and the ratio 0.302131 (see the sample reports' test).
TEST_F(RigaDiComandoVerifica, JsonConLeTabelleNonArrotondate) {
  const std::string nodo = Copia("ANGUPN");
  const fs::path fileJson = cartella_ / "angupn.json";
  Esito e =
      Esegui("verifica " + Percorso(nodo) + " --metodo TA --json '" + fileJson.string() + "'");
  ASSERT_EQ(e.stato, 0) << e.errori;
  json d = json::parse(LeggiTutto(fileJson));
  EXPECT_EQ(d["formato"], "qf17-verifica");
  EXPECT_EQ(d["versione"], 1);
  EXPECT_EQ(d["nodo"], nodo);
  EXPECT_EQ(d["metodo"], "TA");
  EXPECT_EQ(d["unita"]["forze"], "daN");
  EXPECT_EQ(d["unita"]["tensioni"], "daN/cm2");
  EXPECT_EQ(d["unita"]["lunghezze"], "mm");
  EXPECT_EQ(d["PosFazzoletto"], -1);
  EXPECT_EQ(d["Beff"].size(), 3u);
  EXPECT_EQ(d["relazione"].get<std::string>() + "\n", e.uscita);
  EXPECT_EQ(d["nodoVerificato"], true);
  ASSERT_EQ(d["sollecitazioni"].size(), 5u);
  const json& s1 = d["sollecitazioni"][0];
  EXPECT_EQ(s1["set"], 1);
  EXPECT_EQ(s1["nome"], "G + neve");
  EXPECT_EQ(s1["casoCarico"], 1);
  EXPECT_EQ(d["sollecitazioni"][1]["casoCarico"], 2);
  EXPECT_EQ(s1["SetOk"], true);
  EXPECT_FALSE(s1.contains("saldatura"));
  EXPECT_NEAR(s1["SigSotto"].get<double>(), 247.5136, 5e-4);
  EXPECT_NE(s1["SigSotto"].get<double>(), 247.5);
  ASSERT_EQ(s1["gruppi"].size(), 4u);
  const json& a = s1["gruppi"][1];
  EXPECT_EQ(a["gruppo"], 1);
  EXPECT_EQ(a["nome"], "asta A");
  EXPECT_EQ(a["OkTau"], 1);
  ASSERT_EQ(a["bulloni"].size(), 3u);
  EXPECT_EQ(a["bulloni"][0]["k"], 1);
  EXPECT_NEAR(a["bulloni"][0]["TauBull"].get<double>(), 844.7942, 5e-4);
  EXPECT_NE(a["bulloni"][0]["TauBull"].get<double>(), 844.8);
  EXPECT_NEAR(a["bulloni"][1]["TauBull"].get<double>(), 753.3334, 5e-4);
  EXPECT_NEAR(s1["gruppi"][2]["SigDiff"].get<double>(), -1188.3101, 5e-4);
  EXPECT_EQ(s1["gruppi"][0]["nome"], "corrente");
  EXPECT_FALSE(s1["gruppi"][0].contains("SigDiff"));
  EXPECT_EQ(s1["gruppi"][0]["bulloni"].size(), 6u);

  // The chord weld of HEASALD, whose first set fails.
  const std::string hea = Copia("HEASALD");
  const fs::path jsonHea = cartella_ / "heasald.json";
  e = Esegui("verifica " + Percorso(hea) + " --json '" + jsonHea.string() + "'");
  ASSERT_EQ(e.stato, 1) << e.errori;
  json h = json::parse(LeggiTutto(jsonHea));
  EXPECT_EQ(h["nodoVerificato"], false);
  ASSERT_EQ(h["sollecitazioni"].size(), 4u);
  const json& w = h["sollecitazioni"][0];
  EXPECT_EQ(w["SetOk"], false);
  EXPECT_EQ(h["sollecitazioni"][2]["SetOk"], true);
  EXPECT_NEAR(w["saldatura"]["TauPar"].get<double>(), -373.1540, 5e-4);
  EXPECT_NEAR(w["saldatura"]["SigPerp"].get<double>(), -344.0849, 5e-4);
  EXPECT_EQ(w["saldatura"]["TauPerp"], 0);
  EXPECT_NEAR(w["saldatura"]["rapporto"].get<double>(), 0.302131, 1e-6);
  EXPECT_EQ(w["saldatura"]["verificabile"], true);
  EXPECT_EQ(w["gruppi"][0]["bulloni"].size(), 0u);
  EXPECT_EQ(w["gruppi"][1]["OkProf"], 0);
  EXPECT_EQ(w["gruppi"][1]["OkDiff"], 0);
}

}  // namespace
