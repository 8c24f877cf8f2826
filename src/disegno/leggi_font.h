#pragma once

#include <filesystem>

#include "disegno/font.h"

namespace qf17 {

// Reads font.001: a head line with the narrowing percentage, then one line a glyph, the glyph's
// byte first and then four characters a point (two digits of X, two of Y).
// False when the file cannot be read, is empty or its head is not a narrowing of 0 to 99;
// `font` then keeps what it had. Damaged glyph lines are read leniently: missing characters
// and blanks count as 0, non-digits by the leading-number rule, points beyond 100 are dropped.
bool LeggiFont(FontTratti& font, const std::filesystem::path& file);

}  // namespace qf17
