#pragma once

#include <cstdint>
#include <string>

#include "disegno/esecutivo/tavola.h"

namespace qf17 {

// The sheet of the GRB file: texts carry a style of the template instead of sizes, and a
// dimension is one entity that the family's editor draws itself. Dimension texts (and the other
// texts of the dimension kind: hole numbers, axis letters) take the dimension style of option
// 29, every other text the text style of option 28. Texts are placed with the sizes of their
// style; when the template was not read, or does not hold the style, with the sizes of the
// drawing options, as on the DIS sheet.
//
// A dimension's points are where the DIS sheet draws its line (the chains already stand off the
// outline), so the entity's offset is 0: the editor's line lies where the DIS line lies, and the
// editor writes the text by its style. Its measure is left to the editor ("Stringa_di_default")
// unless the drawing is scaled (a detail drawn larger): then the true measure is written, as the
// DIS sheet does.
class TavolaGrb : public Tavola {
 public:
  using Tavola::Tavola;
  double Larghezza(ClasseTesto classe) const override;
  double Altezza(ClasseTesto classe) const override;
  void Quota(const std::string& testo, double x1, double x2, double y1, double y2, double distanza,
             double fattore) override;
  void TestoCentrato(const std::string& testo, double x1, double x2, double y1, double y2,
                     double distanza, ClasseTesto classe, std::int16_t colore) override;
  void Testo(const std::string& testo, double x, double y, std::int16_t angolo, ClasseTesto classe,
             std::int16_t colore) override;

  // The style number of a kind of text: option 29 for dimensions, option 28 for the others.
  std::int16_t Stile(ClasseTesto classe) const;

 private:
  // The sizes a text was placed with, kept in its row (when `riga` was just added) so that the
  // composition can measure the texts already on the sheet, as it does on the DIS sheet. The
  // file does not write them.
  void DimensioniRiga(std::int32_t riga, ClasseTesto classe);
};

// The offset of every dimension entity of the sheet from its points.
inline constexpr double kScostamentoQuoteGrb = 0.0;

}  // namespace qf17
