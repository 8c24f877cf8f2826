#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qf17 {

class ArchivioDisegno;

// A line of fixed-width fields, as the family's editor reads them: each field trimmed and
// right-aligned, the first in 20 columns and the others in 19, one blank between them, the line
// right-trimmed. A longer field keeps its first characters, as many as its width.
std::string CampiGrb(const std::vector<std::string>& campi);

// The colour a line or arc takes in the file: the store's own when it is 0 to 7, otherwise 1.
std::int16_t ColoreGrb(std::int16_t colore);

// The text of the GRB file of the drawing as it stands (no clean-up: coordinates go out as the
// composition left them): head, extents, coordinates, an empty marker table, lines, arcs, texts
// (style counted from 0), dimension entities and an empty polygon table. Windows-1252 with
// CR LF.
std::string CreaGRB(const ArchivioDisegno& a);

}  // namespace qf17
