#pragma once

#include <string_view>
#include <vector>

#include "disegno/font.h"

namespace qf17 {

// One pen stroke of a text drawn with the stroke font.
struct Tratto {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
};

// The strokes of a UTF-8 text with the anchor (x, y) at the left end of the baseline, `angolo`
// in radians counter-clockwise from +X, `larghezza` the cell width of one character and
// `altezza` the height of a capital. Characters the font lacks (or the code page cannot hold,
// which become "?") draw nothing of their own but still take their cell.
std::vector<Tratto> TrattiTesto(const FontTratti& font, std::string_view testo, double x, double y,
                                double angolo, double larghezza, double altezza);

}  // namespace qf17
