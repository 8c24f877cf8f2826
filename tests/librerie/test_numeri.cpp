#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>

#include "librerie/numeri.h"
#include "piattaforma/errori.h"

namespace qf17 {
namespace {

TEST(Numeri, NumeroIniziale) {
  struct Caso {
    const char* testo;
    double atteso;
  };
  const Caso casi[] = {
      {"12abc", 12},   {"12,5", 12},   {"  -3.25", -3.25}, {"", 0},       {"abc", 0},
      {".5", 0.5},     {"-.5x", -0.5}, {"7.", 7},          {"1e3", 1000}, {"1e", 1},
      {"2E-2z", 0.02}, {"+4", 4},      {"-", 0},           {".", 0},      {"45   [Ast_teta 1]", 45},
  };
  for (const auto& c : casi) EXPECT_DOUBLE_EQ(NumeroIniziale(c.testo), c.atteso) << c.testo;
  EXPECT_THROW(NumeroIniziale("1e999"), ErroreFatale);
  EXPECT_THROW(NumeroIniziale(std::string(400, '9')), ErroreFatale);
  EXPECT_EQ(NumeroIniziale("0." + std::string(400, '0') + "1"), 0.0);
  EXPECT_EQ(NumeroIniziale("1e-999"), 0.0);
}

TEST(Numeri, TestoNumeroPiuCortoA15Cifre) {
  struct Caso {
    double valore;
    const char* atteso;
  };
  const Caso casi[] = {
      {0, "0"},
      {45, "45"},
      {-3, "-3"},
      {0.1 + 0.2, "0.3"},
      {12.5, "12.5"},
      {1.0 / 3, "0.333333333333333"},
      {150, "150"},
      {-0.0, "0"},
      {1e20, "1E+20"},
      {1e-7, "1E-07"},
      {123456789012345.0, "123456789012345"},
      {0.0001, "0.0001"},
      {2.539999983236, "2.539999983236"},
  };
  for (const auto& c : casi) EXPECT_EQ(TestoNumero(c.valore), c.atteso);
}

// Random doubles of every magnitude and some with few digits, which take the fast road, and
// values next to the switch between plain and exponent form.
TEST(Numeri, TestoNumeroComeLaFormaDiRiferimento) {
  std::mt19937_64 caso(17);
  std::uniform_int_distribution<int> esponente(-30, 30);
  std::uniform_int_distribution<int> cifre(1, 17);
  int provati = 0;
  for (int i = 0; i < 200000; ++i) {
    double v;
    if (i % 3 == 0) {
      v = std::bit_cast<double>(caso());
      if (!std::isfinite(v)) continue;
    } else {
      long long mantissa = static_cast<long long>(caso() % 100000000000000000ULL);
      mantissa %= static_cast<long long>(std::pow(10.0, cifre(caso)));
      v = static_cast<double>(mantissa) * std::pow(10.0, esponente(caso));
      if (i % 2) v = -v;
    }
    ASSERT_EQ(TestoNumero(v), TestoNumeroRiferimento(v)) << std::hexfloat << v;
    ++provati;
  }
  // Report figures: values rounded to a few decimals, of every size around the fast road's ends.
  std::uniform_real_distribution<double> quota(-1.0, 1.0);
  std::uniform_int_distribution<int> decimali(0, 8);
  for (int i = 0; i < 200000; ++i) {
    const double v =
        ArrotondaPari(quota(caso) * std::pow(10.0, esponente(caso) / 3), decimali(caso));
    ASSERT_EQ(TestoNumero(v), TestoNumeroRiferimento(v)) << std::hexfloat << v;
  }
  for (double v : {1e-5, 1e-4, 0.00012345, 1e14, 999999999999999.0, 1e15, 1e16, 123456.5, 0.1 + 0.2,
                   1.0 / 3, 2.0 / 3, 9.9999999999999995e14, 5e-324, 1.7976931348623157e308}) {
    EXPECT_EQ(TestoNumero(v), TestoNumeroRiferimento(v)) << v;
  }
  EXPECT_GT(provati, 190000);
}

TEST(Numeri, TestoNumeroIgnoraLaLocale) {
  const char* prima = std::setlocale(LC_NUMERIC, nullptr);
  std::string salvata = prima ? prima : "C";
  if (std::setlocale(LC_NUMERIC, "it_IT.UTF-8") == nullptr) GTEST_SKIP() << "no Italian locale";
  EXPECT_EQ(TestoNumero(12.5), "12.5");
  EXPECT_DOUBLE_EQ(NumeroIniziale("12.5"), 12.5);
  std::setlocale(LC_NUMERIC, salvata.c_str());
}

TEST(Numeri, TestoListaBlanchi) {
  EXPECT_EQ(TestoLista(4.0), " 4 ");
  EXPECT_EQ(TestoLista(-2.5), "-2.5 ");
  EXPECT_EQ(TestoLista(0LL), " 0 ");
  EXPECT_EQ(TestoLista(-7LL), "-7 ");
}

TEST(Numeri, ArrotondamentoBancario) {
  EXPECT_EQ(ArrotondaPari(2.5), 2);
  EXPECT_EQ(ArrotondaPari(3.5), 4);
  EXPECT_EQ(ArrotondaPari(-2.5), -2);
  EXPECT_DOUBLE_EQ(ArrotondaPari(0.125, 2), 0.12);
  EXPECT_DOUBLE_EQ(ArrotondaPari(0.375, 2), 0.38);
  EXPECT_DOUBLE_EQ(ArrotondaPari(1250, -2), 1200);
  EXPECT_EQ(InI16(32767.4), 32767);
  EXPECT_EQ(InI16(-32768), -32768);
  EXPECT_EQ(InI16(4.5), 4);
  EXPECT_THROW(InI16(32767.5), ErroreFatale);
  EXPECT_THROW(InI16(-40000), ErroreFatale);
}

TEST(Numeri, InteroStretto) {
  EXPECT_EQ(InteroStretto(" 1 "), 1);
  EXPECT_EQ(InteroStretto("2.5"), 2);
  EXPECT_THROW(InteroStretto("uno"), ErroreFatale);
  EXPECT_THROW(InteroStretto("1x"), ErroreFatale);
  EXPECT_THROW(InteroStretto(""), ErroreFatale);
  EXPECT_THROW(InteroStretto("99999"), ErroreFatale);
}

}  // namespace
}  // namespace qf17
