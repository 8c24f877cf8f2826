#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>

#include "librerie/formatta.h"
#include "piattaforma/piattaforma_registrata.h"

namespace qf17 {
namespace {

// The command string the column cell of a number stands for.
std::string Comandi(int larghezza, bool destra, bool separatore, bool intero) {
  std::string w = std::to_string(larghezza);
  if (w.size() < 2) w.insert(0, "0");
  return std::string(destra ? "(FD_" : "(FS_") + w + ")" + (separatore ? "(SC_|)" : "") +
         (intero ? "(NP_1)" : "");
}

// A report asks for millions of number cells, which take a direct road: it must give exactly
// what Formatta gives for the same commands, stars, exponent forms and dropped points included.
TEST(FormatoColonna, NumeriComeFormatta) {
  PiattaformaRegistrata p;
  std::mt19937_64 caso(2026);
  std::uniform_int_distribution<int> larghezza(2, 24), esponente(-12, 16), decimali(0, 6);
  for (int i = 0; i < 100000; ++i) {
    const bool destra = caso() % 2, separatore = caso() % 2, intero = caso() % 4 == 0;
    const int w = larghezza(caso);
    double v;
    if (intero) {
      v = static_cast<double>(static_cast<long long>(caso() % 2000000000ULL) - 1000000000LL) /
          std::pow(10.0, decimali(caso) * 2);
      v = std::trunc(v);
    } else if (i % 5 == 0) {
      v = std::bit_cast<double>(caso());
      if (!std::isfinite(v)) continue;
    } else {
      v = (static_cast<double>(caso() % 100000000) / 1000.0) * std::pow(10.0, esponente(caso));
      if (caso() % 2) v = -v;
      if (i % 7 == 0) v = std::round(v);
    }
    double scala = 1;
    const std::string atteso = Formatta(v, Comandi(w, destra, separatore, intero), scala, p);
    const ValoreColonna valore =
        intero ? ValoreColonna(static_cast<long long>(v)) : ValoreColonna(v);
    ASSERT_EQ(FormatoColonna(valore, w, separatore, destra ? "R" : "L", p), atteso)
        << v << " w " << w << (destra ? " R" : " L") << (intero ? " intero" : "");
  }
  EXPECT_TRUE(p.messaggi.empty());
}

}  // namespace
}  // namespace qf17
