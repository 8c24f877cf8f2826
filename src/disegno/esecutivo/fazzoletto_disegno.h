#pragma once

#include <cstdint>
#include <vector>

#include "verifica/geometria.h"

namespace qf17 {

class Tavola;
struct Sessione;
struct StatoEsecutivo;

// The hole groups of the gusset in the order of the coordinate table: the chord (unless it is
// welded), then each present member, followed by its mirrored profile (group + 3) when opposed.
std::vector<int> GruppiForiFazzoletto(const Sessione& s);
// The bolt group whose table holds the holes of hole group `g` (0..6).
inline int GruppoBulloni(int g) {
  return g > 3 ? g - 3 : g;
}

// Plate coordinates of bolt group `gruppo` (0 chord, 1..3 members) into row `gruppo` of ForoX /
// ForoY, or row `gruppo` + 3 for the mirrored profile (`segno` -1). The frame is the chord's:
// X along the chord from the point where the member axes meet it, Y across from its gravity
// axis, both as the node view shows them once turned to bring the chord level (a gusset under
// the chord has negative Y).
void CoordinateFori(const Sessione& s, StatoEsecutivo& stato, int gruppo, double segno = 1);

// Numbers the holes continuously, chord first, then A, B, C (each followed by its mirrored
// profile) as the coordinate table lists them; fills ForoX / ForoY too.
void NumeraFori(const Sessione& s, StatoEsecutivo& stato);

// Whether the segment (a1, a2) of the outline meets the line through (b1, b2), and where.
std::int16_t TagliaContorno(Punto a1, Punto a2, Punto b1, Punto b2, Punto& incrocio);

// The mark of the table's origin at (x, y), turned by `angolo` radians: two strokes.
void MarcaOrigine(Tavola& t, double x, double y, double angolo);

// "PARTICOLARE FAZZOLETTO" at the drawing's origin: outline, chord axis, member traces, holes,
// and either the hole chains or the hole numbers with the table's axes. The plate's left end is
// at x = 0 and the chord's axis at y = 0. Works out the hole coordinates itself; the numbers
// are those NumeraFori gave. Sets LargF and AltF to the size of all it drew. Needs the node
// geometry.
void DettaglioFazzoletto(Tavola& t, StatoEsecutivo& stato);

}  // namespace qf17
