#pragma once

#include <filesystem>

#include "disegno/stili_grb.h"
#include "piattaforma/piattaforma.h"

namespace qf17 {

// Reads the styles of the GRB template. A missing or damaged template shows the family's message
// and leaves `Letti` false: the sheet then uses the default sizes.
void LeggiStiliGRB(StiliGRB& stili, const std::filesystem::path& file, Piattaforma& piattaforma);

}  // namespace qf17
