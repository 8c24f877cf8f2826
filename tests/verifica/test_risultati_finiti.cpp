#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

#include "verifica/risultati_finiti.h"

namespace qf17 {
namespace {

// The last guard before a report names the first figure that is not finite, as the user reads
// it; resistances first under limit states, then set by set.
TEST(RisultatiFiniti, NominaIlPrimoValoreNonFinito) {
  Nodo n;
  n.nSollAg = 3;
  n.nBull[1] = 2;
  auto r = std::make_unique<RisultatiVerifica>();
  EXPECT_EQ(PrimoRisultatoNonFinito(n, *r, true), "");
  const double infinito = std::numeric_limits<double>::infinity();
  r->SigDiff(2, 3) = std::nan("");
  EXPECT_EQ(PrimoRisultatoNonFinito(n, *r, false),
            "tensione nella sezione di diffusione dell'asta B, combinazione 3");
  r->TauBull(1, 2, 2) = infinito;  // a TA table: not looked at under limit states
  EXPECT_EQ(PrimoRisultatoNonFinito(n, *r, false), "Tau del bullone 2 dell'asta A, combinazione 2");
  r->FvRd(1, 2) = infinito;
  EXPECT_EQ(PrimoRisultatoNonFinito(n, *r, true), "FvRd del bullone 2 dell'asta A");
  n.Saldature(4, 1).SigPerp[1] = -infinito;
  EXPECT_EQ(PrimoRisultatoNonFinito(n, *r, false),
            "Sigma perpendicolare della saldatura, combinazione 1");
}

}  // namespace
}  // namespace qf17
