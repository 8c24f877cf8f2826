#pragma once

#include <filesystem>

#include "disegno/opzioni.h"

namespace qf17 {

// The options of a fresh installation.
Opzioni OpzioniPredefinite();
// Reads OpzioniQf7.txt: thirty lines each read by its leading number (blanks before it are
// skipped, so both the list-print and the plain form read), then the note. False when the file
// is missing, has fewer than 31 lines or holds a number beyond any range; `opzioni` then keeps
// what it had. Entry 22 is forced to 20 and entry 17 copies 13.
bool LeggiOpzioni(Opzioni& opzioni, const std::filesystem::path& file);
// Writes the thirty numbers in list-print form (" 8 ", "-1 ") and the note, Windows-1252 with
// CR LF, replacing the file only when the whole of it was written.
bool ScriviOpzioni(const Opzioni& opzioni, const std::filesystem::path& file);

}  // namespace qf17
