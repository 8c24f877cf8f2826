#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qf17 {

struct Sessione;

// What the GRB primitives tell the user when their tables fill up (box titled with the
// program's name).
inline constexpr std::string_view kLimiteTestiGrb = "Superato il numero massimo di testi";
inline constexpr std::string_view kLimiteQuoteGrb = "Superato il numero massimo di quote";
// The text of a dimension entity that lets the reader of the file write the measure.
inline constexpr std::string_view kTestoQuotaPredefinito = "Stringa_di_default";

// Where ScriviTestoGRB anchors a text on the segment it is given.
inline constexpr std::int16_t kAncoraAllInizio = 0;  // at (x1, y1): any value but 1 and 2
inline constexpr std::int16_t kAncoraAlCentro = 1;   // at the middle of the segment
inline constexpr std::int16_t kAncoraAllaFine = 2;   // at (x2, y2)

// A text of the GRB sheet: a style number instead of sizes and a colour. Anchored by `modo`
// (1 the middle of (x1, y1)-(x2, y2), 2 its end, any other its start), origin added; the style
// is kept in TestoColore and the mode in TestoAllineamento, the sizes are left at 0. Draws only
// while the drawing is the target. The table is told full at row 14999 and stops at 15000.
void ScriviTestoGRB(Sessione& s, const std::string& testo, double x1, double y1, double x2,
                    double y2, std::int16_t angolo, std::int16_t modo, std::int16_t stile);

// A dimension entity of the GRB sheet between (x1, y1) and (x2, y2), origin added: "H" when the
// points have the same Y within 0.0001, "V" when they have the same X, "P" otherwise; an empty
// text is stored as "Stringa_di_default". `scost` is the offset of the dimension line from the
// points. Points closer than 0.0001 both ways store nothing. The table is told full at row 999
// and stops at 1000. Draws only while the drawing is the target.
void QuotaGRB(Sessione& s, const std::string& testo, double x1, double y1, double x2, double y2,
              double scost, std::int16_t stile);

}  // namespace qf17
