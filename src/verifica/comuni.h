#pragma once

#include <string_view>

namespace qf17 {

struct Opzioni;

// Length factor of a unit text: "mm" 10, "cm" 1, "m" 0.01, tested by substring in this order.
double FattoreLunghezza(std::string_view unita);
// daN over mm2 to daN/cm2.
inline constexpr double kF2 = 100.0;
inline constexpr double kPiGreco = 3.14159265358979;

// a if |a| is not less than |b|, else b, with its sign.
double MaxAss(double a, double b);
double MinDi(double a, double b);
double MaxDi(double a, double b);
// -1, 0 or 1.
double Segno(double x);
// Int(x * 10 + 0.5) / 10 and Int(x * 100 + 0.5) / 100, Int rounding down.
double Arrot1(double x);
double Arrot2(double x);

// Stress area (threaded when option 26 is 1) or nominal area of a bolt of diameter d, mm2.
double AreaBullone(const Opzioni& opzioni, double d);
// Hole diameter: d + option 25, or with a negative option d + 1 up to 20 mm and d + 1.5 above.
double DiamForo(const Opzioni& opzioni, double d);

}  // namespace qf17
