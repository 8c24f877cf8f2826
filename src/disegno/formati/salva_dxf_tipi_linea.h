#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "nodo/tabella.h"

namespace qf17 {

// The dash patterns that break dashed lines into plain segments when a DXF file is written for
// a plotter or a program that knows no line types. They live in the installation's custom
// folder, in TipiLineaQf7.txt, one line a pattern:
//
//   <code> <piece> <piece> ...     ; comment
//
// <code> is the drawing's line type code, 1 to 9 (1 dash-dot and 4 dashed are the ones the
// sheet draws); each <piece> is a length in tenths of a millimetre on paper, a positive number
// with a point as decimal mark, at most 10000; a pattern has 1 to 11 pieces. Pieces 0, 2, 4...
// are drawn, the others are gaps. Blanks or tabs separate the fields; ";" starts a comment that
// runs to the end of the line; empty lines are skipped. A code given twice is an error. A code
// with no line has no pattern: its lines stay whole.
inline constexpr std::string_view kFileTipiLinea = "TipiLineaQf7.txt";
inline constexpr int kUltimoTipoLinea = 9;
inline constexpr int kUltimoTratto = 10;
inline constexpr double kMassimoTratto = 10000.0;

struct TipiLinea {
  Tabella<std::int16_t, 0, kUltimoTipoLinea> TipoNumTratti;            // 0: no pattern
  Tabella2<double, 0, kUltimoTipoLinea, 0, kUltimoTratto> TipoTratti;  // tenths of a mm on paper
  Tabella<double, 0, kUltimoTipoLinea> TipoLunghezza;  // sum of the pieces, tenths of a mm
};

// Reads the patterns from `file` into `tipi`, which is emptied first. Returns the empty string
// when the file was read, otherwise the message for the user, and `tipi` is left empty:
// "Errore: file <file> errato o mancante." when it cannot be read, "Errore nel file <file>,
// riga <n>: <reason>." for the first wrong line.
std::string LegTipLin(TipiLinea& tipi, const std::filesystem::path& file);

}  // namespace qf17
