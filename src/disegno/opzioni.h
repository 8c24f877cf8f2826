#pragma once

#include <array>
#include <string>

namespace qf17 {

// The drawing options of OpzioniQf7.txt: thirty numbers and the note printed under the title.
struct Opzioni {
  std::array<double, 30> valori{};
  std::string NotaDisegno;

  double& operator[](int i);
  double operator[](int i) const;
};

}  // namespace qf17
