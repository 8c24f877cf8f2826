#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace qf17 {

class ArchivioDisegno;
struct FontTratti;
struct Sessione;
struct TipiLinea;

// The boxes of the DXF saver.
inline constexpr std::string_view kTitoloSalvaDxf = "SALVA FILE DXF";
inline constexpr std::string_view kErroreAperturaDxf = "ERRORE: non riesco ad aprire il file ";
inline constexpr std::string_view kAvvisoDisgregaDxf =
    "Le linee tratteggiate sono state disgregate ipotizzando una scala di plottaggio 1:";

// The CAD colour numbers (group 62) of the store's colours 0 to 7; any other colour is 7, and
// a monochrome file has 7 everywhere.
inline constexpr std::array<std::int16_t, 8> kColoriDxf = {18, 7, 5, 1, 3, 2, 8, 6};
std::int16_t ColoreDxf(std::int16_t colore, bool monocromo);

// The line type names (group 6) of the store's codes 1 to 4; any other code is "CONTINUOUS".
// Only the layer is defined in the file: the names rely on the reader's own line types.
std::string_view NomeTipoLineaDxf(std::int16_t tipo);

// A number as the DXF file holds it: the plain shortest form (at most 15 significant digits,
// point as decimal mark), with one leading blank when it is not negative and none after it.
std::string NumeroDxf(double valore);
std::string NumeroDxf(long long valore);

// The angle in degrees, 0 up to but not including 360, of the point P seen from the centre C:
// the quadrant rule of the family's CAD files, with its own value of pi.
double AngoloDxf(double cx, double cy, double px, double py);

// The text of a TEXT entity: the first "]" (the family's diameter sign) becomes "%%c", the CAD
// diameter sign; later ones stay.
std::string TestoConDiametro(std::string testo);

// How the file is written. Plain: texts as TEXT entities, colours mapped, line types as names.
struct ModoDxf {
  bool esplodiTesti = false;  // texts as lines of the stroke font
  bool monocromo = false;     // every colour 7
  bool disgrega = false;      // dashed lines as plain dashes at the plot scale 1:`scala`
  double scala = 0;
  const TipiLinea* tipi = nullptr;  // the dash patterns, needed by `disgrega`
};

// The DXF text of the drawing as it stands (the writer neither cleans nor changes it): HEADER
// with the extents widened by 5% of the larger side, TABLES with layer "0", then ENTITIES:
// lines, texts and arcs in table order. Group codes are written with their leading blank.
// Windows-1252 with CR LF. A row that refers to a coordinate outside the live table, and a text
// of no width or height (it has no size to give), are left out.
std::string TestoDxf(const ArchivioDisegno& a, const FontTratti& font, const ModoDxf& modo = {});

// Writes the session's drawing to `nome` as a DXF file. `esplodiTesti`, `monocromo` and
// `disgrega` take effect when 1; `scala` is the plot scale's denominator for `disgrega`, whose
// patterns are read from TipiLineaQf7.txt in the custom folder (a wrong or missing file is
// told, with title "ERRORE", and nothing is written). A file that cannot be written is told
// ("ERRORE: non riesco ad aprire il file " + nome); with `silenzioso` 0 the saving is confirmed
// ("SALVA FILE DXF"), with the plot scale when lines were broken up. True when written.
bool SalvaDxf(Sessione& s, const std::string& nome, std::int16_t esplodiTesti,
              std::int16_t monocromo, double scala, std::int16_t disgrega, std::int16_t silenzioso);

}  // namespace qf17
