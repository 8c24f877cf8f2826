// Equal coordinates found through a grid of cells twice the tolerance wide: two coordinates
// closer than the tolerance on both axes lie in the same cell or in neighbouring ones.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <tuple>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/formati/pulisci_passi.h"

namespace qf17 {

namespace {

constexpr double kLatoCella = 2 * kTolleranzaDisegno;
// From 2^40 on, two different doubles differ by more than the tolerance (and so do a double
// below it and one above): there a coordinate equals only itself, and its cell is any key
// that equal values share.
constexpr double kGrande = 1099511627776.0;  // 2^40
constexpr std::int64_t kChiaviGrandi = std::int64_t{1} << 60;

std::int64_t ChiaveAsse(double x) {
  if (std::abs(x) < kGrande) return static_cast<std::int64_t>(std::floor(x / kLatoCella));
  const auto bit = std::bit_cast<std::uint64_t>(x);
  return kChiaviGrandi + static_cast<std::int64_t>(bit >> 8);
}

struct Voce {
  std::int64_t cx, cy;
  std::int32_t indice;
  bool operator<(const Voce& o) const {
    return std::tie(cx, cy, indice) < std::tie(o.cx, o.cy, o.indice);
  }
};

bool Uguali(double x1, double y1, double x2, double y2) {
  return std::abs(x1 - x2) < kTolleranzaDisegno && std::abs(y1 - y2) < kTolleranzaDisegno;
}

}  // namespace

std::vector<std::int32_t> PrimeCoordinateUguali(const ArchivioDisegno& a) {
  const TabelleDisegno& t = a.Tabelle();
  const auto n = static_cast<std::size_t>(a.NumCoord);
  std::vector<Voce> voci(n);
  for (std::size_t i = 0; i < n; ++i) {
    const auto r = static_cast<std::int32_t>(i);
    voci[i] = {ChiaveAsse(t.CoordX[r]), ChiaveAsse(t.CoordY[r]), r};
  }
  std::sort(voci.begin(), voci.end());

  std::vector<std::int32_t> prima(n);
  for (std::size_t i = 0; i < n; ++i) {
    const auto v = static_cast<std::int32_t>(i);
    const double x = t.CoordX[v];
    const double y = t.CoordY[v];
    const std::int64_t cx = ChiaveAsse(x);
    const std::int64_t cy = ChiaveAsse(y);
    std::int32_t migliore = v;
    for (std::int64_t dx = -1; dx <= 1; ++dx) {
      for (std::int64_t dy = -1; dy <= 1; ++dy) {
        // Each cell lists its coordinates by index: the first equal one is the cell's earliest.
        auto it = std::lower_bound(voci.begin(), voci.end(), Voce{cx + dx, cy + dy, 0});
        for (; it != voci.end() && it->cx == cx + dx && it->cy == cy + dy; ++it) {
          if (it->indice >= migliore) break;
          if (Uguali(t.CoordX[it->indice], t.CoordY[it->indice], x, y)) {
            migliore = it->indice;
            break;
          }
        }
      }
    }
    prima[i] = migliore;
  }
  return prima;
}

}  // namespace qf17
