#include "disegno/opzioni.h"

#include "nodo/tabella.h"

namespace qf17 {

double& Opzioni::operator[](int i) {
  if (i < 0 || i > 29) IndiceFuoriTabella(i, 0, 29);
  return valori[static_cast<std::size_t>(i)];
}

double Opzioni::operator[](int i) const {
  if (i < 0 || i > 29) IndiceFuoriTabella(i, 0, 29);
  return valori[static_cast<std::size_t>(i)];
}

}  // namespace qf17
