#pragma once

#include "disegno/esecutivo/tavola.h"

namespace qf17 {

// The sheet of the DIS and DXF files: a dimension is lines, indicators and a text, and texts
// take their sizes from the drawing options (dimension texts 8 x 7, other texts 10 x 9, table
// cells 12 x 11 by index).
class TavolaDis : public Tavola {
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
};

}  // namespace qf17
