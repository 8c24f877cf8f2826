#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace qf17 {

// The stroke font of font.001: for each character code (Windows-1252), pairs of points in a
// 0..99 cell with the baseline at Y = 30; each pair is one pen stroke.
struct FontTratti {
  std::int16_t FontStrizione = 0;          // percentage by which glyph width is narrowed
  std::array<std::string, 256> FontCar{};  // the character itself, in UTF-8; empty when absent
  std::array<std::int16_t, 256> FontNumPunti{};  // -1 when the character is absent
  std::array<std::array<std::int16_t, 101>, 256> FontX{};
  std::array<std::array<std::int16_t, 101>, 256> FontY{};
};

}  // namespace qf17
