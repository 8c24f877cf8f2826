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

int ComandoVerifica(Sessione& s, const std::filesystem::path& file, const std::string& metodo,
                    const std::string& fileJson) {
  if (!ApriNodoDaFile(s, file)) return kEsitoErrore;
  if (!metodo.empty()) s.nodo.TipoVer = Maiuscolo(metodo) == "SLU" ? 1 : 0;
  AvvisoBulloniMancanti(s);
  nlohmann::json documento;
  EsitoVerifica esito = EseguiVerifica(s, [&](const Sessione& sessione) {
    if (!fileJson.empty()) documento = TabelleVerifica(sessione);
  });
  if (esito.fine != FineVerifica::Relazione) return kEsitoErrore;
  if (!fileJson.empty()) {
    AggiungiVerdetti(documento, s, esito);
    if (!ScriviFileSicuro(fileJson, documento.dump(1, '\t') + "\n")) {
      std::cerr << "ERRORE: impossibile scrivere " << fileJson << "\n";
      return kEsitoErrore;
    }
  }
  std::cout << esito.relazione.string() << "\n";
  return esito.nodoVerificato ? 0 : 1;
}

}  // namespace qf17
