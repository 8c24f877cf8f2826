#pragma once

#include <span>
#include <string_view>

namespace qf17 {

// One conversion of the format command "(cu_a_b)": the value in unit a times `fattore` is the
// value in unit b; `spostamento` is added to the decimals that "(dv_nn)" asks for.
struct ConversioneUnita {
  std::string_view chiave;  // "a_b", compared in lower case
  double fattore;
  int spostamento;
};

// The family's conversions in the order they are sought. The last row, "||", converts nothing.
std::span<const ConversioneUnita> TabellaConversioni();

// The decimal shift of a conversion. Between metric units it is minus the decimal logarithm of
// the factor rounded to the nearest integer, so that the shown precision stays the same. Rows
// with inches, feet or pounds-force carry the logarithm itself, rounded away from zero: that is
// how the family's table has always shifted them, and the family's files rely on it.
int SpostamentoDecimale(std::string_view chiave, double fattore);

}  // namespace qf17
