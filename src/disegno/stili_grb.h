#pragma once

#include <cstdint>

#include "nodo/tabella.h"

namespace qf17 {

// Text and dimension styles of the GRB template cad2dmodello.grb, sizes in drawing units
// (already converted from the template's unit and multiplied by its scale factor).
struct StiliGRB {
  int NumStili = 0;
  Tabella<double, 0, 100> GRBAltezza;
  Tabella<double, 0, 100> GRBLarghezza;
  Tabella<std::int16_t, 0, 100> GRBCarattere;
  double Scala = 1;              // scale factor of the template
  std::int16_t CodiceUnita = 2;  // 0: thousandths, 1: tenths, other: drawing units
  bool Letti = false;            // false: the sheet uses the default sizes
};

}  // namespace qf17
