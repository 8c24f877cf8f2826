#pragma once

namespace qf17 {

class ArchivioDisegno;

// Removes from the drawing, before it is written, what would be drawn twice and what nothing
// refers to, in this order: coloured non-continuous lines that another line covers (and lines of
// negative colour or type), repeated arcs, texts of no width or height; then every coordinate is
// redirected onto the first one equal to it within 0.0001 (arc ends and markers excepted) and
// coordinates nothing refers to are removed, the references renumbered. The rows that stay keep
// their order. A reference outside the coordinate table is an ErroreFatale.
void PulisciDisegno(ArchivioDisegno& a);

}  // namespace qf17
