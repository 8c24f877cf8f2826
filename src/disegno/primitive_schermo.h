#pragma once

#include <string>
#include <vector>

// What the forms' pictures hold, for a front end to paint and a test to read. Unlike the drawing
// store, which is the executive sheet, these live only on the screen.
namespace qf17 {

// The colours of the pictures of the forms (the bolt editor's preview, the panel's sketches), by
// what they mark. The family's colour words are kept beside each, for a front end that paints them
// as they were.
enum class ColoreAnteprima {
  Asse,     // gravity axis: dark blue, 12582912
  Sezione,  // the section's outline: the system's button text colour
  Area,     // the bolt-able area, the gusset in a sketch: blue, 16711680
  Bullone,  // bolts: green, 32768
};

enum class TrattoAnteprima { Continuo, Tratteggiato, TrattoPunto };

// One thing of a picture, in the picture's own coordinates (mm of the section or of the bolt
// group, y upwards): a segment, a circle (centre and radius in x1, y1, raggio) or a text whose
// label stands with its top left corner at (x1, y1).
struct PrimitivaAnteprima {
  enum class Tipo { Linea, Cerchio, Testo };
  Tipo tipo = Tipo::Linea;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0, raggio = 0;
  ColoreAnteprima colore = ColoreAnteprima::Sezione;
  TrattoAnteprima tratto = TrattoAnteprima::Continuo;
  std::string testo;
  std::string controllo;  // a text's label control: LabelX, LabelY, Label, LabQuotaX, LabQuotaY
};

using DisegnoSchermo = std::vector<PrimitivaAnteprima>;

}  // namespace qf17
