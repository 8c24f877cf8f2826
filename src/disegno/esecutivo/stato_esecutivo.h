#pragma once

#include <cstdint>

#include "nodo/nodo.h"
#include "nodo/tabella.h"

namespace qf17 {

// Hole groups of the gusset detail: 0 the chord, 1..3 members A, B, C, 4..6 the mirrored
// profile of a member of mode 2.
inline constexpr int kGruppiForiFazzoletto = 6;

// The working values of one composition of the executive sheet, made fresh for each one.
struct StatoEsecutivo {
  // Spacing constants.
  double FattoreAltezza = 1.3;    // chord height enlarged when the length chain is placed
  double FattoreLunghezza = 1.3;  // gusset length enlarged when the width chain is placed
  double FattoreSezioni = 2.0;
  double MargineTabella = 0;  // 4 x the width of other texts

  // Extents of the node view, kept to place the other views.
  double XmaxN = 0, YmaxN = 0, XminN = 0, YminN = 0;

  // 1 dimensions the holes of the gusset detail, 0 numbers them for the coordinate table.
  std::int16_t ModoForiFazzoletto = 1;
  // Width and height of the last detail drawn.
  double LargF = 0, AltF = 0;

  // Hole positions in the gusset's frame and their numbers in the coordinate table.
  Tabella2<double, 0, kGruppiForiFazzoletto, 0, kMaxBulloni> ForoX, ForoY;
  Tabella2<std::int32_t, 0, kGruppiForiFazzoletto, 0, kMaxBulloni> ForoNumero;
};

}  // namespace qf17
