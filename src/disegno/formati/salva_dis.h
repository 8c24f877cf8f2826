#pragma once

#include <cstdint>
#include <string>

namespace qf17 {

class ArchivioDisegno;
struct Sessione;

// The smallest and largest X and Y of the coordinate table, read from row 0 whatever the count.
struct EstensioniDis {
  double xmin = 0, ymin = 0, xmax = 0, ymax = 0;
};
EstensioniDis EstensioniDisegno(const ArchivioDisegno& a);

// The text of the DIS file of the drawing as it stands (call it on a cleaned drawing), with the
// extents given and the version line of `versione` (4, or 3 for any other value): Windows-1252
// with CR LF.
std::string TestoDis(const ArchivioDisegno& a, const EstensioniDis& estensioni,
                     std::int16_t versione);

// Writes the session's drawing to `nome` as a DIS file: extents measured first, then the
// clean-up (the drawing stays cleaned), then the file. `versione` goes in as the format version
// and comes back 1 when the file was written, 0 when it was not. `silenzioso`: 0 the user asked
// for the file (told of the failure and of the saving); 1 for the viewer (told nothing); 2 told
// only of a failure; a negative value is told only of the saving.
void SalvaDis(Sessione& s, const std::string& nome, std::int16_t& versione,
              std::int16_t silenzioso);

}  // namespace qf17
