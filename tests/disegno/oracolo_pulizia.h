#pragma once

#include <cstdint>

#include "disegno/archivio_disegno.h"

namespace qf17::prova {

// The drawing's clean-up done the plain way, pass by pass, removing one row at a time and walking
// again until a walk removes nothing: the reference that the fast clean-up must match table for
// table. Quadratic or worse: small drawings only.
void PulisciDisegnoOracolo(ArchivioDisegno& a);

// A drawing at the tables' limits, as composition could leave it if the 16-bit index allowed:
// `linee` lines in polylines of short strokes over a sheet of 4000 x 3000, on about as many
// coordinates; one line in four dashed or dash-dot, a third of those laid on an earlier line;
// one stroke end in five placed again on an earlier point (exactly or within the tolerance), far
// back beyond the search window; long frame and table lines; circles and arcs, some repeated;
// texts, some of no size. Filled straight into the tables, so it may hold 50000 coordinates.
void RiempiDisegnoPieno(ArchivioDisegno& a, std::int32_t linee, std::uint64_t seme);

}  // namespace qf17::prova
