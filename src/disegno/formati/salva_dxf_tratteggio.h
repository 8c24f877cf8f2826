#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "disegno/formati/salva_dxf_tipi_linea.h"

namespace qf17 {

// A line of the sheet, in millimetres of the drawing.
struct SegmentoDxf {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
};

// Where the pattern stands between one dashed line and the next: the piece it is in and what is
// left of it. `resto` 0 is a fresh start at piece 0. The pattern runs on across the lines that
// follow one another in the table (the sides of a polygon) while they keep the same type; a
// line of another type starts it afresh, and a line written whole leaves it as it was.
struct StatoTratteggio {
  std::int16_t tipo = 0;
  std::int16_t pezzo = 0;
  double resto = 0;
};

// More patterns than this on one line and the line is written whole: too many dashes.
inline constexpr double kMassimoPatternLinea = 2000;
// Distances along a line closer than this are the same.
inline constexpr double kTolleranzaTratteggio = 0.0001;

// The dashes of `linea` (type `tipo`) at the plot scale 1:`scala`: the pattern's pieces, in
// tenths of a millimetre on paper, are `scala` / 10 millimetres of the drawing. Even pieces are
// drawn, odd ones are gaps; a dash cut by the line's end is kept, the rest of the piece is
// handed on in `stato`, unless the line ends on a piece's end (within 0.0001): then the next
// line starts the pattern afresh. No value when the line is to be written whole: its type has
// no pattern, the pattern or the line has no length, or the line holds more than 2000
// patterns; `stato` is then untouched.
std::optional<std::vector<SegmentoDxf>> DisgregaLinea(const TipiLinea& tipi, std::int16_t tipo,
                                                      double scala, const SegmentoDxf& linea,
                                                      StatoTratteggio& stato);

}  // namespace qf17
