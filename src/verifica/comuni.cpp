#include "verifica/comuni.h"

#include <cmath>

#include "disegno/opzioni.h"

namespace qf17 {

double FattoreLunghezza(std::string_view unita) {
  if (unita.find("mm") != std::string_view::npos) return 10.0;
  if (unita.find("cm") != std::string_view::npos) return 1.0;
  if (unita.find('m') != std::string_view::npos) return 0.01;
  return 0.0;
}

double MaxAss(double a, double b) {
  return std::abs(a) >= std::abs(b) ? a : b;
}
double MinDi(double a, double b) {
  return a < b ? a : b;
}
double MaxDi(double a, double b) {
  return a > b ? a : b;
}
double Segno(double x) {
  return x > 0 ? 1.0 : x < 0 ? -1.0 : 0.0;
}
double Arrot1(double x) {
  return std::floor(x * 10 + 0.5) / 10;
}
double Arrot2(double x) {
  return std::floor(x * 100 + 0.5) / 100;
}

double AreaBullone(const Opzioni& opzioni, double d) {
  if (opzioni[26] == 1) {
    double resistente = 0.9 * d * std::pow((d - 0.1) / d, 3.5);
    return kPiGreco * (resistente * resistente) / 4;
  }
  return kPiGreco * (d * d) / 4;
}

double DiamForo(const Opzioni& opzioni, double d) {
  if (opzioni[25] >= 0) return d + opzioni[25];
  return d <= 20 ? d + 1.0 : d + 1.5;
}

}  // namespace qf17
