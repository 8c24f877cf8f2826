#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>

#include "librerie/formatta.h"
#include "librerie/numeri.h"
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

// Cells worked out by hand from the column rule: a number that does not fit keeps as many
// decimals as the width leaves (half to even) and then stands at the cell's left, whatever the
// side asked for. An integer wider than its cell is left to the other steps (stars).
TEST(FormatoColonna, CelleBreviACalcolo) {
  struct Caso {
    double valore;
    int w;
    bool destra, intero;
    const char* atteso;
  };
  const Caso casi[] = {
      {12345.67, 7, true, false, "12345.7|"},
      {0.25, 3, true, false, ".2 |"},
      {999.96, 5, true, false, "1000.|"},
      {7, 3, true, true, "  7|"},
      {2000, 4, false, true, "2000|"},
      {1.5, 4, false, false, "1.5 |"},
      {-3.25, 7, true, false, "  -3.25|"},
      {0, 4, true, false, "  0.|"},
      {0, 4, true, true, "   0|"},
      {12.5, 3, true, false, "12.|"},
      {1.0, 4, false, false, "1.  |"},
      {1234, 3, true, true, ""},
      {1234.5, 4, true, false, "1234|"},
  };
  for (const Caso& c : casi) {
    char cella[kCellaBreve];
    const std::size_t n = CellaNumeroBreve(c.valore, c.w, c.destra, true, c.intero, cella);
    EXPECT_EQ(std::string(cella, n), c.atteso) << c.valore << " w " << c.w;
  }
}

// The report's own figures are rounded ones: written without a string, their cells are still
// exactly what Formatta gives, including those fitted by fewer decimals, rounded up to one more
// digit (999.96 in 5 places), or shifted by a dropped point.
TEST(FormatoColonna, CelleBreviComeFormatta) {
  PiattaformaRegistrata p;
  std::mt19937_64 caso(17);
  std::uniform_int_distribution<int> larghezza(2, 14), esponente(-4, 9), decimali(0, 6);
  int brevi = 0, adattate = 0;
  for (int i = 0; i < 200000; ++i) {
    const bool destra = caso() % 2, separatore = caso() % 2, intero = caso() % 5 == 0;
    const int w = larghezza(caso);
    double v = static_cast<double>(caso() % 1000000) * std::pow(10.0, esponente(caso) - 6);
    v = intero ? std::trunc(v) : ArrotondaPari(v, decimali(caso));
    if (i % 50 == 0 && !intero) v = 999.96;
    if (caso() % 2) v = -v;
    double scala = 1;
    const std::string atteso = Formatta(v, Comandi(w, destra, separatore, intero), scala, p);
    char cella[kCellaBreve];
    const std::size_t n = CellaNumeroBreve(v, w, destra, separatore, intero, cella);
    if (n > 0) {
      ASSERT_EQ(std::string(cella, n), atteso) << v << " w " << w << (destra ? " R" : " L");
      ++brevi;
      if (TestoNumero(v).size() + 1 > static_cast<std::size_t>(w)) ++adattate;
    }
    const ValoreColonna valore =
        intero ? ValoreColonna(static_cast<long long>(v)) : ValoreColonna(v);
    ASSERT_EQ(FormatoColonna(valore, w, separatore, destra ? "R" : "L", p), atteso) << v;
  }
  EXPECT_GT(brevi, 150000);
  EXPECT_GT(adattate, 20000);
  EXPECT_TRUE(p.messaggi.empty());
}

// Fitting a number into fewer places rounds it and then takes its fixed digits; below 1E+9 and
// up to six places the shortest text of the rounded value stands for those digits (trailing
// zeros aside). Checked here against the fixed conversion itself.
TEST(FormatoColonna, TestoBreveComeCifreFisse) {
  std::mt19937_64 caso(11);
  std::uniform_int_distribution<int> esponente(-5, 9), decimali(0, 6);
  int confrontati = 0;
  for (int i = 0; i < 300000; ++i) {
    const int d = decimali(caso);
    const double grezzo =
        static_cast<double>(caso() % 1000000007) / 1e6 * std::pow(10.0, esponente(caso) - 3);
    const double r = std::fabs(ArrotondaPari(grezzo, d));
    if (r >= 1e9) continue;
    const std::string breve = TestoNumero(r);
    if (breve.find('E') != std::string::npos) continue;
    const std::size_t punto = breve.find('.');
    if (punto != std::string::npos && breve.size() - punto - 1 > static_cast<std::size_t>(d))
      continue;
    char buffer[64];
    auto fine = std::to_chars(buffer, buffer + sizeof buffer, r, std::chars_format::fixed, d).ptr;
    std::string fisso(buffer, fine);
    if (fisso.find('.') != std::string::npos) {
      while (fisso.back() == '0') fisso.pop_back();
      if (fisso.back() == '.') fisso.pop_back();
    }
    ASSERT_EQ(breve, fisso) << std::hexfloat << r << " d " << d;
    ++confrontati;
  }
  EXPECT_GT(confrontati, 200000);
}

}  // namespace
}  // namespace qf17
