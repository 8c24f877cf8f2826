#pragma once

#include <filesystem>

#include "disegno/opzioni.h"

namespace qf17 {

// The options of a fresh installation.
Opzioni OpzioniPredefinite();
// Reads OpzioniQf7.txt: thirty numbers, then the note. False when the file is missing or
// damaged; `opzioni` then keeps what it had. Entry 22 is forced to 20 and entry 17 copies 13.
bool LeggiOpzioni(Opzioni& opzioni, const std::filesystem::path& file);
bool ScriviOpzioni(const Opzioni& opzioni, const std::filesystem::path& file);

}  // namespace qf17
