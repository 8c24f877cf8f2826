#include "json_verifica.h"

#include "nodo/sessione.h"

namespace qf17 {
namespace {

using nlohmann::json;

const char* kNomiGruppi[] = {"corrente", "asta A", "asta B", "asta C"};

json Bulloni(const Sessione& s, int g, int j) {
  const RisultatiVerifica& r = s.Risultati();
  json bulloni = json::array();
  const bool slu = s.nodo.TipoVer == 1;
  for (int k = 1; k <= s.nodo.nBull[g]; ++k) {
    if (slu) {
      bulloni.push_back({{"k", k},
                         {"FedBull", r.FedBull(g, k, j)},
                         {"FvRd", r.FvRd(g, k)},
                         {"FbRd", r.FbRd(g, k)},
                         {"RapportoBull", r.RapportoBull(g, k, j)}});
    } else {
      bulloni.push_back(
          {{"k", k}, {"TauBull", r.TauBull(g, k, j)}, {"RifBull", r.RifBull(g, k, j)}});
    }
  }
  return bulloni;
}

json Gruppo(const Sessione& s, int g, int j) {
  const RisultatiVerifica& r = s.Risultati();
  json gruppo = {{"gruppo", g},
                 {"nome", kNomiGruppi[g]},
                 {"SigProf", r.SigProf(g, j)},
                 {"OkTau", r.OkTau(g, j)},
                 {"OkRif", r.OkRif(g, j)},
                 {"OkProf", r.OkProf(g, j)}};
  if (g > 0) {
    gruppo["SigDiff"] = r.SigDiff(g, j);
    gruppo["OkDiff"] = r.OkDiff(g, j);
  }
  gruppo["bulloni"] = Bulloni(s, g, j);
  return gruppo;
}

json Set(const Sessione& s, int j) {
  const Nodo& n = s.nodo;
  const RisultatiVerifica& r = s.Risultati();
  const Saldatura& sald = n.Saldature(4, 1);
  json set = {{"set", j},
              {"nome", n.NomeSa[j]},
              {"casoCarico", n.CasoCarico[j] != 0 ? 2 : 1},
              {"SigSotto", r.SigSotto[j]},
              {"OkSotto", r.OkSotto[j]},
              {"TauCorr", r.TauCorr[j]},
              {"OkCorr", r.OkCorr[j]}};
  if (n.Corrente.Tipo == 2) {
    set["saldatura"] = {
        {"TauPar", sald.TauPar[j]}, {"TauPerp", sald.TauPerp[j]}, {"SigPerp", sald.SigPerp[j]}};
  }
  json gruppi = json::array();
  for (int g = 0; g <= 3; ++g) gruppi.push_back(Gruppo(s, g, j));
  set["gruppi"] = gruppi;
  return set;
}

}  // namespace

json TabelleVerifica(const Sessione& s) {
  const Nodo& n = s.nodo;
  json beff = json::array();
  for (int i = 1; i <= kMaxAste; ++i) beff.push_back(s.geometria.Beff[i]);
  json documento = {{"formato", "qf17-verifica"},
                    {"versione", 1},
                    {"nodo", n.NomeFileNodo},
                    {"metodo", n.TipoVer == 1 ? "SLU" : "TA"},
                    {"unita", {{"forze", "daN"}, {"tensioni", "daN/cm2"}, {"lunghezze", "mm"}}},
                    {"PosFazzoletto", n.PosFazzoletto},
                    {"Beff", beff}};
  json insiemi = json::array();
  for (int j = 1; j <= n.nSollAg; ++j) insiemi.push_back(Set(s, j));
  documento["sollecitazioni"] = insiemi;
  return documento;
}

void AggiungiVerdetti(json& documento, const Sessione& s, const EsitoVerifica& esito) {
  const VerdettiRelazione& v = esito.verdetti;
  json& insiemi = documento["sollecitazioni"];
  for (std::size_t i = 0; i < insiemi.size(); ++i) {
    std::size_t j = i + 1;
    json& set = insiemi[i];
    if (j < v.SetOk.size()) set["SetOk"] = static_cast<bool>(v.SetOk[j]);
    if (s.nodo.Corrente.Tipo == 2 && s.nodo.TipoVer == 1) {
      // The equivalent stresses of the weld are formed by the report.
      set["saldatura"]["SEq1"] = s.nodo.Saldature(4, 1).SEq1[static_cast<int>(j)];
      set["saldatura"]["SEq2"] = s.nodo.Saldature(4, 1).SEq2[static_cast<int>(j)];
    } else if (s.nodo.Corrente.Tipo == 2 && j < v.RapportoSaldatura.size()) {
      set["saldatura"]["rapporto"] = v.RapportoSaldatura[j];
      set["saldatura"]["verificabile"] =
          j < v.SaldaturaVerificabile.size() ? static_cast<bool>(v.SaldaturaVerificabile[j]) : true;
    }
  }
  documento["relazione"] = esito.relazione.string();
  documento["nodoVerificato"] = esito.nodoVerificato;
}

}  // namespace qf17
