#pragma once

#include <vector>

#include "nodo/sessione.h"

namespace qf17::prova {

// The bolt resistances under limit states as the rules read, every bolt against every other:
// the reference the fan search must equal figure for figure.
struct VentaglioOracolo {
  double minimo = 0;   // least u of the fan
  double massimo = 0;  // greatest u of the fan
  double passo = 0;    // least |uk - um| over the other bolts of the fan (1e300 if none)
};
// Fan of bolt k (0-based) across u.
VentaglioOracolo OracoloVentaglio(const std::vector<double>& u, const std::vector<double>& v,
                                  int k);

struct ResistenzeOracolo {
  std::vector<double> FvRd;  // bolt k at k - 1
  std::vector<double> FbRd;
  std::vector<double> kRes;
  std::vector<double> aRes;
};
// Group g: 1 chord, 2..4 members.
ResistenzeOracolo OracoloResistenzeSLU(const Sessione& s, int g);

}  // namespace qf17::prova
