#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "librerie/unita.h"
#include "piattaforma/piattaforma.h"

namespace qf17 {

struct Sessione;

// Reads parametrilavoro of the job folder and computes the factors (ParUni).
void LeggiUnitaLavoro(Sessione& sessione);
// The factors and decimals of the unit names already in `unita`.
void ParUni(UnitaLavoro& unita);

// Starts the unit tool and waits; on its end returns line 1 of ux_unimis.tmp in the temp folder,
// trimmed. No value when the tool could not start or gave nothing.
std::optional<std::string> LanciaUnita(Sessione& sessione, std::string_view valore, int categoria,
                                       std::string_view unita, std::string_view titolo);

}  // namespace qf17
