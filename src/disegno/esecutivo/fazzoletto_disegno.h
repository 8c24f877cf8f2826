#pragma once

#include <cstdint>

namespace qf17 {

class Tavola;
struct StatoEsecutivo;

// Plate coordinates of bolt group `gruppo` (0 chord, 1..3 members) into the rows `gruppo`
// (or `gruppo` + 3 for the mirrored profile, `segno` -1) of ForoX / ForoY.
void CoordinateFori(Tavola& t, StatoEsecutivo& stato, int gruppo, int modo, double segno);

// Numbers the holes continuously, chord first, then A, B, C (and their mirrored profiles) as
// the coordinate table lists them.
void NumeraFori(Tavola& t, StatoEsecutivo& stato);

// "PARTICOLARE FAZZOLETTO" at the drawing's origin: outline, chord line, holes, and either the
// hole chains or the hole numbers with the table's axes. Sets LargF and AltF.
void DettaglioFazzoletto(Tavola& t, StatoEsecutivo& stato);

}  // namespace qf17
