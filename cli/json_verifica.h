#pragma once

#include <nlohmann/json.hpp>

#include "verifica/verifica.h"

namespace qf17 {

struct Sessione;

// The result tables of a run with their unrounded values, as the report found them.
nlohmann::json TabelleVerifica(const Sessione& sessione);
// Adds the verdicts the report decided.
void AggiungiVerdetti(nlohmann::json& documento, const Sessione& sessione,
                      const EsitoVerifica& esito);

}  // namespace qf17
