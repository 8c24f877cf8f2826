#include <gtest/gtest.h>

#include <string>

#include "verifica/bulloni_slu.h"
#include "verifica/test_bulloni_slu_prova.h"

namespace qf17 {
namespace {

// Shear by the class name, held anywhere in it; bolt of 16, FvRd = c * 12867.96 with
// 12867.96 = 8000 * 201.0619 / 100 / 1.25: 0.6 for 4.6, 5.6 and 8.8, 0.5 for 6.8 and 10.9, none
// for a class the rule does not name. The fans, the bearing coefficients and ft40 are checked
// against the plain reading of the rules in the differential test, anchored by the samples.
TEST(ResistenzeBulloniSLU, TaglioSecondoLaClasse) {
  struct Caso {
    const char* classe;
    double FvRd;
  };
  const Caso casi[] = {
      {"4.6", 7720.778},  {"5.6", 7720.778},
      {"8.8", 7720.778},  {"6.8", 6433.982},
      {"10.9", 6433.982}, {"Classe 8.8 zincata", 7720.778},
      {"12.9", 0},        {"", 0},
      {"88", 0},
  };
  prova::ProvaBulloniSLU p;
  p.Bullone(1, 60, 30, 16);
  for (const Caso& c : casi) {
    p.nodo.vite.Nome = c.classe;
    ResistenzeBulloniSLU(p.sessione, 2);
    EXPECT_NEAR(p.r.FvRd(1, 1), c.FvRd, 0.001) << c.classe;
  }
  // The threaded area when option 26 is 1: 0.9 * 16 * (15.9 / 16)^3.5 = 14.08746,
  // pi * 14.08746^2 / 4 = 155.8672; 0.6 * 8000 * 155.8672 / 100 / 1.25 = 5985.302.
  p.nodo.vite.Nome = "8.8";
  p.sessione.opzioni[26] = 1;
  ResistenzeBulloniSLU(p.sessione, 2);
  EXPECT_NEAR(p.r.FvRd(1, 1), 5985.302, 0.001);
}

}  // namespace
}  // namespace qf17
