#pragma once

#include <cstdint>
#include <vector>

namespace qf17 {

class ArchivioDisegno;

// The passes of the clean-up, each in one sweep over sorted or gridded data instead of the
// pairwise walks the family's description suggests; they give the same tables.

// For each line, whether it stays: lines of negative colour or type go; a line of positive
// colour and type goes when another line still present at its turn covers both its ends.
// `latoCella` fixes the size of the grid's cells (tests use it to put cell edges where they
// hurt); 0 lets the drawing choose it.
std::vector<bool> LineeDaTenere(const ArchivioDisegno& a, double latoCella = 0);

// The whole clean-up with the grid's cell size fixed as above.
void PulisciDisegnoConCelle(ArchivioDisegno& a, double latoCella);

// For each coordinate, the first coordinate before it equal within 0.0001 in X and Y, or itself.
std::vector<std::int32_t> PrimeCoordinateUguali(const ArchivioDisegno& a);

// One end on a segment, the family's way: the sum of the distances to the ends exceeds the
// segment's length by less than the tolerance.
bool SuSegmento(double px, double py, double ax, double ay, double bx, double by);

}  // namespace qf17
