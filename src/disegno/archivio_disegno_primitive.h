#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace qf17 {

struct Sessione;

// The drawing primitives of composition. Each one first checks that the session's drawing is
// the target ("gendis"); with any other target it draws nothing, since no command draws on the
// screen. Coordinates are given relative to the drawing's origin, which the primitive adds.
// Colours are the store's indices 0 to 7; an absent colour or 0 is stored as 1.

// Stores a line given in sheet coordinates (origin already applied) with the colour as given:
// line type from the style in force, both ends through the coordinate search, extents widened.
// At row 49999 the user is told once; a full table drops the line without a word.
void RegistraLinea(Sessione& s, double x1, double y1, double x2, double y2, std::int16_t colore);

// A line from (x1, y1) to (x2, y2). A line no longer than 0.0001 in both X and Y is not stored.
void DisegnaLinea(Sessione& s, double x1, double y1, double x2, double y2, std::int16_t colore = 0);
// The same from (x, y) to (x + dx, y + dy).
void DisegnaLineaRel(Sessione& s, double x, double y, double dx, double dy,
                     std::int16_t colore = 0);

// A circle of the given diameter centred on (x, y), or the arc of it from angle `inizio` to
// `fine` (radians, counter-clockwise from +X). Without `fine` the arc closes on `inizio`: a whole
// circle. Without a colour it takes the drawing's ColoreCorrente. A diameter not above 0.0001
// draws nothing.
void DisegnaCerchio(Sessione& s, double x, double y, double diametro,
                    std::optional<std::int16_t> colore = std::nullopt, double inizio = 0,
                    std::optional<double> fine = std::nullopt);

// A text anchored at the left end of its baseline; `angolo` in whole degrees counter-clockwise,
// `larghezza` the cell width of one character and `altezza` its height, both kept in tenths
// rounded half to even. The text table is told full at row 14999 but stops only at 50000, as
// the family's drawings do: a drawing that needs row 15001 is an ErroreFatale.
void ScriviTesto(Sessione& s, const std::string& testo, double x, double y, std::int16_t angolo,
                 double larghezza, double altezza, std::int16_t colore = 0);

}  // namespace qf17
