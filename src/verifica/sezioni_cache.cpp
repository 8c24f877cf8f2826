#include "verifica/sezioni_cache.h"

#include <cmath>
#include <numeric>

namespace qf17::sezioni {

bool Impronta::Cambiata() {
  if (!vuota_ && nuova_ == accettata_) return false;
  accettata_.swap(nuova_);
  vuota_ = false;
  return true;
}

BulloniPerX::BulloniPerX(const std::vector<double>& x) : ordine_(x.size()) {
  std::iota(ordine_.begin(), ordine_.end(), 0);
  std::stable_sort(ordine_.begin(), ordine_.end(), [&](int a, int b) { return x[a] < x[b]; });
  xOrdinate_.reserve(x.size());
  for (int b : ordine_) xOrdinate_.push_back(x[b]);
}

int BulloniPerX::ContaDa(double xs) const {
  auto primo = std::lower_bound(xOrdinate_.begin(), xOrdinate_.end(), xs);
  return static_cast<int>(xOrdinate_.end() - primo);
}

std::pair<int, int> BulloniPerX::Finestra(double xs, double d) const {
  auto vicino = [&](double x) { return std::abs(x - xs) <= d; };
  auto inizio = std::partition_point(xOrdinate_.begin(), xOrdinate_.end(),
                                     [&](double x) { return x < xs && !vicino(x); });
  auto fine = std::partition_point(inizio, xOrdinate_.end(),
                                   [&](double x) { return x <= xs || vicino(x); });
  return {static_cast<int>(inizio - xOrdinate_.begin()),
          static_cast<int>(fine - xOrdinate_.begin())};
}

bool TuttiFiniti(const std::vector<double>& v) {
  return std::all_of(v.begin(), v.end(), [](double x) { return std::isfinite(x); });
}

}  // namespace qf17::sezioni
