#pragma once

#include <string>

namespace qf17 {

// The job's display units, from `parametrilavoro`. A stored value times its factor is what the
// user sees; the decimals are how many the panel shows.
struct UnitaLavoro {
  double AccelG = 9.80665;
  double NordGeo = 0;
  std::string UniLunghezze;
  std::string UniForze;
  std::string UniCarichi;
  std::string UniMomenti;
  std::string UniTensioni;
  std::string UniSezioni;

  double FatLunghezze = 0;
  int DecLunghezze = 0;
  double FatForze = 0;
  int DecForze = 0;
  double FatMomenti = 0;
  int DecMomenti = 0;
  double FatTensioni = 0;
  int DecTensioni = 0;
  double FatSezioni = 0;
  int DecSezioni = 0;
  double FatCarichi = 0;
  int DecCarichi = 0;
};

}  // namespace qf17
