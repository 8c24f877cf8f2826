#pragma once

#include <filesystem>

#include "disegno/font.h"

namespace qf17 {

// Reads font.001; false when the file cannot be read or is not a stroke font.
bool LeggiFont(FontTratti& font, const std::filesystem::path& file);

}  // namespace qf17
