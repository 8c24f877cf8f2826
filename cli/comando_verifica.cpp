#include <filesystem>
#include <iostream>
#include <nlohmann/json.hpp>
#include <string>

#include "comandi.h"
#include "json_verifica.h"
#include "librerie/token.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"
#include "verifica/verifica.h"

namespace qf17 {

namespace {

nlohmann::json Avvertenze(const RaccoltaMessaggi& raccolta) {
  nlohmann::json elenco = nlohmann::json::array();
  for (const auto& voce : raccolta.Voci()) {
    elenco.push_back({{"testo", voce.testo}, {"volte", voce.volte}});
  }
  return elenco;
}

}  // namespace

int ComandoVerifica(Sessione& s, const std::filesystem::path& file, const std::string& metodo,
                    const std::string& fileJson) {
  if (!ApriNodoPerComando(s, file)) return kEsitoErrore;
  if (!fileJson.empty() && !UscitaNonSulNodo(s, fileJson, file)) return kEsitoErrore;
  if (!metodo.empty()) s.nodo.TipoVer = Maiuscolo(metodo) == "SLU" ? 1 : 0;
  if (s.nodo.nSollAg == 0) {
    s.piattaforma.Messaggio("Il nodo non ha sollecitazioni: verifica non eseguita.", "ERRORE",
                            Icona::Critica, Pulsanti::Ok);
    return kEsitoErrore;
  }
  // The boxes of the button's whole event, the warning on missing bolts included.
  RaccoltaMessaggi raccolta(s.piattaforma);
  AvvisoBulloniMancanti(s);
  nlohmann::json documento;
  EsitoVerifica esito = EseguiVerifica(s, [&](const Sessione& sessione) {
    if (!fileJson.empty()) documento = TabelleVerifica(sessione);
  });
  if (esito.fine != FineVerifica::Relazione) return kEsitoErrore;
  if (!fileJson.empty()) {
    AggiungiVerdetti(documento, s, esito);
    documento["avvertenze"] = Avvertenze(raccolta);
    if (!ScriviFileSicuro(fileJson, documento.dump(1, '\t') + "\n")) {
      s.piattaforma.Messaggio("Errore: impossibile scrivere " + fileJson, "ERRORE", Icona::Critica,
                              Pulsanti::Ok);
      return kEsitoErrore;
    }
  }
  std::cout << esito.relazione.string() << "\n";
  if (!esito.nodoVerificato) return kEsitoNonVerificato;
  return raccolta.Voci().empty() ? kEsitoFatto : kEsitoConAvvertenze;
}

}  // namespace qf17
