#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace qf17 {

// The stroke font of font.001: for each character code, pairs of points in a 0..99 cell with
// the baseline at Y = 30; each pair is one pen stroke.
struct FontTratti {
  std::int16_t FontStrizione = 0;
  std::array<std::string, 256> FontCar{};
  std::array<std::int16_t, 256> FontNumPunti{};
  std::array<std::array<std::int16_t, 101>, 256> FontX{};
  std::array<std::array<std::int16_t, 101>, 256> FontY{};
};

}  // namespace qf17
