#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "verifica/bulloni_slu.h"
#include "verifica/test_bulloni_slu_prova.h"

namespace qf17 {
namespace {

using prova::ProvaBulloniSLU;
using Bulloni = std::vector<std::pair<double, double>>;

// Bolts of 16 (holes of 16), t = min(10, 6) = 6, steel ft 3600 up to 40 mm, gamma 1.25:
//   FbRd = kRes * aRes * 3600 * 16 * 6 / 100 / 1.25 = kRes * aRes * 2764.8
// r = 8000 / 3600 = 2.22 never binds; aRes is bound by 1, kRes by 2.5.
// Shear, class 8.8: FvRd = 0.6 * 8000 * (pi * 16^2 / 4 = 201.0619) / 100 / 1.25 = 7720.778.
constexpr double kBase = 2764.8;
constexpr double kFvRd88 = 7720.778;

struct Atteso {
  double kRes;
  double aRes;
};

struct Caso {
  const char* nome;
  int g;
  Bulloni bulloni;
  std::vector<Atteso> attesi;
};

// The same bolts read on the chord and on a member: the chord is pulled along x, so kRes is
// read on y and aRes on x; a member the other way round. Chord and member A both have a
// bolted rectangle of 120 x 100.
//
// A row along x at y = 30: x = 20, 60, 98.
//   Across y (|dx| <= T |dy|) each bolt is alone in its fan, and takes the formula of the
//   least: on y, 30 / (3 * 16) = 0.625 (the greatest's would be 70 / 48, so 1); on the chord's
//   kRes, 2.8 * 30 / 16 - 1.7 = 3.55, so 2.5.
//   Across x (|dy| <= T |dx|) all three share one fan:
//     x = 20 least:    kRes = 2.8 * 20 / 16 - 1.7 = 1.8;    aRes = 20 / 48 = 0.41667
//     x = 60 between:  p = min(40, 38) = 38:
//                      kRes = 1.4 * 38 / 16 - 1.7 = 1.625; aRes = 38 / 48 - 0.25 = 0.54167
//     x = 98 greatest: U - x = 120 - 98 = 22:
//                      kRes = 2.8 * 22 / 16 - 1.7 = 2.15;  aRes = 22 / 48 = 0.45833
// A column across at x = 30: y = 20, 50, 78: the same with the roles of x and y exchanged
// (p = min(30, 28) = 28: kRes = 1.4 * 28 / 16 - 1.7 = 0.75, aRes = 28 / 48 - 0.25 = 0.33333;
// 100 - 78 = 22).
TEST(ResistenzeBulloniSLU, CoefficientiDiCorrenteEAstaAParti) {
  const Bulloni fila = {{20, 30}, {60, 30}, {98, 30}};
  const Bulloni colonna = {{30, 20}, {30, 50}, {30, 78}};
  const Caso casi[] = {
      {"fila sull'asta", 2, fila, {{1.8, 0.625}, {1.625, 0.625}, {2.15, 0.625}}},
      {"fila sul corrente", 1, fila, {{2.5, 20.0 / 48}, {2.5, 38.0 / 48 - 0.25}, {2.5, 22.0 / 48}}},
      {"colonna sul corrente", 1, colonna, {{1.8, 0.625}, {0.75, 0.625}, {2.15, 0.625}}},
      {"colonna sull'asta",
       2,
       colonna,
       {{2.5, 20.0 / 48}, {2.5, 28.0 / 48 - 0.25}, {2.5, 22.0 / 48}}},
  };
  ProvaBulloniSLU p;
  for (const Caso& c : casi) {
    const int gruppo = c.g - 1;
    p.nodo.nBull[gruppo] = 0;
    for (const auto& [x, y] : c.bulloni) p.Bullone(gruppo, x, y, 16);
    const std::vector<CoefficientiRifollamento> coeff =
        CoefficientiRifollamentoSLU(p.sessione, c.g);
    ResistenzeBulloniSLU(p.sessione, c.g);
    ASSERT_EQ(coeff.size(), c.attesi.size()) << c.nome;
    for (std::size_t k = 0; k < c.attesi.size(); ++k) {
      const int b = static_cast<int>(k) + 1;
      EXPECT_NEAR(coeff[k].kRes, c.attesi[k].kRes, 1e-12) << c.nome << " " << b;
      EXPECT_NEAR(coeff[k].aRes, c.attesi[k].aRes, 1e-12) << c.nome << " " << b;
      EXPECT_NEAR(p.r.FbRd(gruppo, b), c.attesi[k].kRes * c.attesi[k].aRes * kBase, 1e-9)
          << c.nome << " " << b;
      EXPECT_NEAR(p.r.FvRd(gruppo, b), kFvRd88, 0.001) << c.nome << " " << b;
    }
  }
}

// The same figures written out, so a slip in the factor above would show:
//   member row: 1.8 * 0.625 * 2764.8 = 3110.4; 1.625 * 0.625 * 2764.8 = 2808;
//   2.15 * 0.625 * 2764.8 = 3715.2. Chord row: 2.5 * 0.41667 * 2764.8 = 2880;
//   2.5 * 0.54167 * 2764.8 = 3744; 2.5 * 0.45833 * 2764.8 = 3168.
TEST(ResistenzeBulloniSLU, RifollamentoDellaFilaSuAstaECorrente) {
  ProvaBulloniSLU p;
  for (int gruppo : {0, 1}) {
    for (double x : {20.0, 60.0, 98.0}) p.Bullone(gruppo, x, 30, 16);
  }
  ResistenzeBulloniSLU(p.sessione, 2);
  ResistenzeBulloniSLU(p.sessione, 1);
  EXPECT_NEAR(p.r.FbRd(1, 1), 3110.4, 1e-9);
  EXPECT_NEAR(p.r.FbRd(1, 2), 2808.0, 1e-9);
  EXPECT_NEAR(p.r.FbRd(1, 3), 3715.2, 1e-9);
  EXPECT_NEAR(p.r.FbRd(0, 1), 2880.0, 1e-9);
  EXPECT_NEAR(p.r.FbRd(0, 2), 3744.0, 1e-9);
  EXPECT_NEAR(p.r.FbRd(0, 3), 3168.0, 1e-9);
}

// A bolt alone in its fan is at both ends and takes the formula of the least: one bolt on
// member A at (100, 30). kRes on x: 2.8 * 100 / 16 - 1.7 = 15.8, so 2.5 (the greatest's would
// give 2.8 * 20 / 16 - 1.7 = 1.8); aRes on y: 30 / 48 = 0.625 (the greatest's 70 / 48, so 1).
TEST(ResistenzeBulloniSLU, BulloneSoloNelVentaglioComeIlMinimo) {
  ProvaBulloniSLU p;
  p.Bullone(1, 100, 30, 16);
  const std::vector<CoefficientiRifollamento> c = CoefficientiRifollamentoSLU(p.sessione, 2);
  ASSERT_EQ(c.size(), 1u);
  EXPECT_EQ(c[0].kRes, 2.5);
  EXPECT_EQ(c[0].aRes, 30.0 / 48);
}

// The fan opens 30 degrees either side: three bolts on member A at x = 40, 70, 100, the middle
// one 17 or 18 off the row of the other two, 30 away along x, where the fan is
// 30 * tan(30) = 17.32 wide.
//   17: bolt 2 lies between its neighbours, p = 30: kRes = 1.4 * 30 / 16 - 1.7 = 0.925
//   18: bolt 2 is alone in its fan, so the least: 2.8 * 70 / 16 - 1.7 = 10.55, so 2.5
TEST(ResistenzeBulloniSLU, VentaglioDiTrentaGradi) {
  struct Caso {
    double scarto;
    double kRes;
  };
  const Caso casi[] = {{17.0, 0.925}, {18.0, 2.5}};
  ProvaBulloniSLU p;
  for (const Caso& c : casi) {
    p.nodo.nBull[1] = 0;
    p.Bullone(1, 40, 30, 16);
    p.Bullone(1, 70, 30 + c.scarto, 16);
    p.Bullone(1, 100, 30, 16);
    const std::vector<CoefficientiRifollamento> coeff = CoefficientiRifollamentoSLU(p.sessione, 2);
    EXPECT_NEAR(coeff[1].kRes, c.kRes, 1e-12) << c.scarto;
  }
}

// Shear by the class name, held anywhere in it; bolt of 16, FvRd = c * 12867.96 with
// 12867.96 = 8000 * 201.0619 / 100 / 1.25.
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
  ProvaBulloniSLU p;
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

// The bearing strength over 40 mm of web or gusset: ft40 = 3400. Single bolt on member A at
// (20, 30): kRes = 1.8 (least: 2.8 * 20 / 16 - 1.7), aRes = 0.625.
//   web 6, gusset 40:   t = 6,  3600: 1.8 * 0.625 * 3600 * 16 * 6 / 100 / 1.25 = 3110.4
//   web 6, gusset 40.5: t = 6,  3400: 1.125 * 3400 * 96 / 125 = 2937.6
//   web 45, gusset 10:  t = 10, 3400: 1.125 * 3400 * 160 / 125 = 4896
TEST(ResistenzeBulloniSLU, OltreQuarantaMillimetriFt40) {
  struct Caso {
    double a;
    double s;
    double FbRd;
  };
  const Caso casi[] = {{6, 40, 3110.4}, {6, 40.5, 2937.6}, {45, 10, 4896}};
  ProvaBulloniSLU p;
  p.Bullone(1, 20, 30, 16);
  for (const Caso& c : casi) {
    p.nodo.Aste[1].a = c.a;
    p.nodo.Fz_s = c.s;
    ResistenzeBulloniSLU(p.sessione, 2);
    EXPECT_NEAR(p.r.FbRd(1, 1), c.FbRd, 1e-9) << c.a << " " << c.s;
  }
}

}  // namespace
}  // namespace qf17
