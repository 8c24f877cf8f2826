#pragma once

#include <filesystem>

#include "disegno/stili_grb.h"
#include "piattaforma/piattaforma.h"

namespace qf17 {

// Reads the styles of the GRB template: a skipped line; the list scale factor, unit code and
// one more integer; the number of styles; for each style (at most 100 are kept) a skipped line,
// the list height, width, character number and one more value, and a skipped line.
// A missing or damaged template shows the family's message and leaves `Letti` false with no
// styles: the sheet then uses the default sizes.
void LeggiStiliGRB(StiliGRB& stili, const std::filesystem::path& file, Piattaforma& piattaforma);

}  // namespace qf17
