#include <gtest/gtest.h>

#include "disegno/opzioni.h"
#include "verifica/comuni.h"

namespace qf17 {
namespace {

TEST(Comuni, AreaBullone) {
  Opzioni opzioni;
  opzioni[26] = 0;
  // pi * (12 * 12) / 4 = 36 * 3.14159265358979 = 113.09733552923244. The square comes first:
  // (pi * 12) * 12 / 4 rounds to the next double up.
  EXPECT_EQ(AreaBullone(opzioni, 12), 113.09733552923244);
  EXPECT_NEAR(AreaBullone(opzioni, 20), 314.159265, 1e-6);
  opzioni[26] = 0.5;  // only 1 asks for the threaded area
  EXPECT_NEAR(AreaBullone(opzioni, 20), 314.159265, 1e-6);

  opzioni[26] = 1;
  // d = 20: 0.995^3.5 = exp(3.5 * ln 0.995) = exp(-0.0175439) = 0.982609;
  // 0.9 * 20 * 0.982609 = 17.68697; pi * 17.68697^2 / 4 = pi * 312.8289 / 4 = 245.695.
  EXPECT_NEAR(AreaBullone(opzioni, 20), 245.695, 0.001);
  // d = 10: 0.99^3.5 = exp(-0.0351762) = 0.965435; 9 * 0.965435 = 8.68892;
  // pi * 75.4973 / 4 = 59.295.
  EXPECT_NEAR(AreaBullone(opzioni, 10), 59.295, 0.001);
}

TEST(Comuni, DiamForo) {
  struct Caso {
    double tolleranza, d, foro;
  };
  const Caso casi[] = {
      {0, 16, 16},  {0.5, 16, 16.5}, {2, 27, 29},    {-1, 16, 17},
      {-1, 20, 21}, {-1, 20.5, 22},  {-1, 24, 25.5}, {-0.01, 22, 23.5},
  };
  for (const Caso& c : casi) {
    Opzioni opzioni;
    opzioni[25] = c.tolleranza;
    EXPECT_EQ(DiamForo(opzioni, c.d), c.foro) << c.tolleranza << " " << c.d;
  }
}

TEST(Comuni, ArrotondamentiPerDifetto) {
  // Int(x * 10 + 0.5) / 10 with Int rounding down: halves go up, also below zero.
  struct Caso {
    double x, uno;
  };
  const Caso uno[] = {{-0.05, 0}, {0.25, 0.3}, {-0.25, -0.2}, {-0.06, -0.1}, {1.04, 1}};
  for (const Caso& c : uno) EXPECT_EQ(Arrot1(c.x), c.uno) << c.x;
  const Caso due[] = {{0.125, 0.13}, {-0.125, -0.12}, {-0.005, 0}, {3.14159, 3.14}};
  for (const Caso& c : due) EXPECT_EQ(Arrot2(c.x), c.uno) << c.x;
}

TEST(Comuni, MaxAssTieneIlSegno) {
  EXPECT_EQ(MaxAss(-5, 3), -5);
  EXPECT_EQ(MaxAss(3, -5), -5);
  EXPECT_EQ(MaxAss(-4, 4), -4);  // equal sizes: the first
  EXPECT_EQ(MaxAss(4, -4), 4);
}

}  // namespace
}  // namespace qf17
