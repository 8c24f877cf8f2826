#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace qf17 {

struct Sessione;

// The preview of a drawing for a browser or an image converter, drawn on white: the store's
// colour indices 0 to 7 become these (0 and 1, white on the family's dark screens, are black
// here; any other index is black too).
inline constexpr std::array<std::string_view, 8> kColoriSvg = {
    "#000000",  // 0 black
    "#000000",  // 1 black
    "#000080",  // 2 navy
    "#800000",  // 3 maroon
    "#008000",  // 4 green
    "#808000",  // 5 olive
    "#c06000",  // 6 orange
    "#800080",  // 7 purple
};
std::string_view ColoreSvg(std::int16_t indice);
// A number of an SVG file: at most four decimals, point as decimal mark, whatever the locale.
std::string NumeroSvg(double valore);
// A text with the characters XML reserves escaped.
std::string TestoXml(std::string_view testo);

// Dash patterns in millimetres of the sheet by line type; continuous (and the unused types 2
// and 3) have none.
inline constexpr std::string_view kTrattoSvg = "6 3";            // type 4, dashed
inline constexpr std::string_view kTrattoPuntoSvg = "12 3 2 3";  // type 1, dash-dot
// Pens are one pixel wide however the preview is scaled (a viewer that ignores this draws them
// one millimetre wide).
inline constexpr std::string_view kSpessoreSvg = "1";

// The SVG text of the session's drawing as it stands (the writer neither cleans nor changes
// it): lines with their colours and dashes, circles and counter-clockwise arcs, texts as the
// stroke font draws them. One unit is one millimetre of the sheet, Y turned downwards; the
// view holds everything drawn with a margin, on a white ground. Numbers have at most four
// decimals, point as decimal mark. UTF-8 with LF.
std::string TestoSvg(const Sessione& s);

// Writes TestoSvg to `file`, replacing it only when the whole of it was written. False on
// failure.
bool ScriviSvg(const Sessione& s, const std::filesystem::path& file);

// The same with the DIS writer's boxes: `silenzioso` 0 tells the user of the failure and of the
// saving, 1 of nothing, 2 of a failure only, a negative value of the saving only. True when the
// file was written.
bool SalvaSvg(Sessione& s, const std::string& nome, std::int16_t silenzioso);

}  // namespace qf17
