// Covered lines found through a grid: every line is listed in the cells that its zone of cover
// touches, and a line looks for its covers only among those listed in the cell of its first end.
// The zone of cover of a segment (the points the family's test puts on it) is an ellipse with
// the ends as foci; it lies within a band of half-width sqrt(L t / 2 + t^2 / 4) round the
// segment, L its length and t the tolerance, which the grid widens further for rounding.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <tuple>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/formati/pulisci_passi.h"

namespace qf17 {

namespace {

// Beyond this a coordinate is not a drawing's: such lines are compared with every other.
constexpr double kLontano = 1e9;
// Lines whose band would touch more cells than this are compared with every line instead.
constexpr std::int64_t kCelleMassime = 256;
// How many of the longest lines may be left out of the grid when its cell size is chosen.
constexpr std::size_t kLineeLunghe = 64;
constexpr double kCelleLineaLunga = 64;

double Distanza(double x1, double y1, double x2, double y2) {
  const double dx = x1 - x2;
  const double dy = y1 - y2;
  return std::sqrt(dx * dx + dy * dy);
}

struct Segmento {
  double ax, ay, bx, by;
  bool Normale() const {
    return std::abs(ax) <= kLontano && std::abs(ay) <= kLontano && std::abs(bx) <= kLontano &&
           std::abs(by) <= kLontano;
  }
  double Lunghezza() const { return Distanza(ax, ay, bx, by); }
};

struct Voce {
  std::int64_t cx, cy;
  std::int32_t linea;
  bool operator<(const Voce& o) const {
    return std::tie(cx, cy, linea) < std::tie(o.cx, o.cy, o.linea);
  }
};

// The half-width of the band round a segment, with room for the rounding of the test itself
// and of the cell arithmetic on coordinates up to `massimo`.
double Fascia(double lunghezza, double massimo) {
  const double t = kTolleranzaDisegno + 1e-14 * (lunghezza + 1);
  return std::sqrt(lunghezza * t / 2 + t * t / 4) + t + 1e-9 * (1 + massimo);
}

class Griglia {
 public:
  // `lato` 0 chooses the cell size from the drawing.
  Griglia(const std::vector<Segmento>& seg, const std::vector<bool>& normale, double lato);

  // The lines listed in the cell of (x, y), by index.
  std::pair<std::vector<Voce>::const_iterator, std::vector<Voce>::const_iterator> Cella(
      double x, double y) const;
  const std::vector<std::int32_t>& Lunghe() const { return lunghe_; }

 private:
  double Lato(const std::vector<Segmento>& seg, const std::vector<bool>& normale) const;
  // Lists the cells of the band of `s` in `voci`, or returns false past `massimo` cells.
  bool Celle(const Segmento& s, double fascia, std::int32_t linea, std::int64_t massimo,
             std::vector<Voce>& voci) const;
  std::int64_t Indice(double v, double origine) const {
    return static_cast<std::int64_t>(std::floor((v - origine) / lato_));
  }

  double massimo_ = 0, ox_ = 0, oy_ = 0, lato_ = 1;
  std::vector<Voce> voci_;
  std::vector<std::int32_t> lunghe_;
};

Griglia::Griglia(const std::vector<Segmento>& seg, const std::vector<bool>& normale, double lato) {
  bool primo = true;
  for (std::size_t i = 0; i < seg.size(); ++i) {
    if (!normale[i]) continue;
    const Segmento& s = seg[i];
    massimo_ = std::max({massimo_, std::abs(s.ax), std::abs(s.ay), std::abs(s.bx), std::abs(s.by)});
    ox_ = primo ? std::min(s.ax, s.bx) : std::min({ox_, s.ax, s.bx});
    oy_ = primo ? std::min(s.ay, s.by) : std::min({oy_, s.ay, s.by});
    primo = false;
  }
  lato_ = lato > 0 ? lato : Lato(seg, normale);
  std::vector<Voce> celle;
  for (std::size_t i = 0; i < seg.size(); ++i) {
    const auto linea = static_cast<std::int32_t>(i);
    if (!normale[i]) {
      lunghe_.push_back(linea);
      continue;
    }
    celle.clear();
    if (Celle(seg[i], Fascia(seg[i].Lunghezza(), massimo_), linea, kCelleMassime, celle)) {
      voci_.insert(voci_.end(), celle.begin(), celle.end());
    } else {
      lunghe_.push_back(linea);
    }
  }
  std::sort(voci_.begin(), voci_.end());
}

// Cells small enough to part the lines of a dense drawing; large enough that the cells are not
// many more than the lines, that only a few long lines cross too many of them, and that all the
// lines together are listed in no more than a few cells each.
double Griglia::Lato(const std::vector<Segmento>& seg, const std::vector<bool>& normale) const {
  std::vector<double> mx, my, misura, fasce;
  for (std::size_t i = 0; i < seg.size(); ++i) {
    if (!normale[i]) continue;
    const Segmento& s = seg[i];
    const double f = Fascia(s.Lunghezza(), massimo_);
    mx.push_back((s.ax + s.bx) / 2);
    my.push_back((s.ay + s.by) / 2);
    misura.push_back(std::abs(s.bx - s.ax) + std::abs(s.by - s.ay) + 4 * f);
    fasce.push_back(f);
  }
  if (mx.empty()) return 1;
  auto quantile = [](std::vector<double>& v, double q) {
    auto k = static_cast<std::size_t>(q * static_cast<double>(v.size() - 1));
    std::nth_element(v.begin(), v.begin() + static_cast<std::ptrdiff_t>(k), v.end());
    return v[k];
  };
  // The spread of the middle of the drawing, so that one far line does not make the cells huge.
  const double qx = quantile(mx, 0.99) - quantile(mx, 0.01);
  const double qy = quantile(my, 0.99) - quantile(my, 0.01);
  const double diffusione = std::max(qx, qy) / std::sqrt(static_cast<double>(mx.size()));
  double perLunghe = 0;
  if (misura.size() > kLineeLunghe) {
    perLunghe = quantile(misura, 1.0 - static_cast<double>(kLineeLunghe) /
                                           static_cast<double>(misura.size())) /
                kCelleLineaLunga;
  }
  // And no more cells in all than a few per line: lines all alike would each cross many.
  double somma = 0;
  for (double m : misura) somma += m;
  const double perTotale = somma / (16 * static_cast<double>(misura.size()));
  const double lato = std::max({diffusione, perLunghe, perTotale, 4 * quantile(fasce, 0.5)});
  return std::isfinite(lato) && lato > 0 ? lato : 1;
}

bool Griglia::Celle(const Segmento& s, double fascia, std::int32_t linea, std::int64_t massimo,
                    std::vector<Voce>& voci) const {
  const std::int64_t c0 = Indice(std::min(s.ax, s.bx) - fascia, ox_);
  const std::int64_t c1 = Indice(std::max(s.ax, s.bx) + fascia, ox_);
  if (c1 - c0 + 1 > massimo) return false;
  for (std::int64_t c = c0; c <= c1; ++c) {
    // The part of the segment whose X lies within the band's reach of this column.
    const double x0 = ox_ + static_cast<double>(c) * lato_ - fascia;
    const double x1 = ox_ + static_cast<double>(c + 1) * lato_ + fascia;
    double ylo = std::min(s.ay, s.by);
    double yhi = std::max(s.ay, s.by);
    if (s.bx != s.ax) {
      const double t0 = std::clamp((x0 - s.ax) / (s.bx - s.ax), 0.0, 1.0);
      const double t1 = std::clamp((x1 - s.ax) / (s.bx - s.ax), 0.0, 1.0);
      const double y0 = s.ay + t0 * (s.by - s.ay);
      const double y1 = s.ay + t1 * (s.by - s.ay);
      ylo = std::min(y0, y1);
      yhi = std::max(y0, y1);
    }
    const std::int64_t r0 = Indice(ylo - fascia, oy_);
    const std::int64_t r1 = Indice(yhi + fascia, oy_);
    if (static_cast<std::int64_t>(voci.size()) + (r1 - r0 + 1) > massimo) return false;
    for (std::int64_t r = r0; r <= r1; ++r) voci.push_back({c, r, linea});
  }
  return true;
}

std::pair<std::vector<Voce>::const_iterator, std::vector<Voce>::const_iterator> Griglia::Cella(
    double x, double y) const {
  const std::int64_t cx = Indice(x, ox_);
  const std::int64_t cy = Indice(y, oy_);
  return {std::lower_bound(voci_.begin(), voci_.end(), Voce{cx, cy, 0}),
          std::upper_bound(voci_.begin(), voci_.end(),
                           Voce{cx, cy, std::numeric_limits<std::int32_t>::max()})};
}

}  // namespace

bool SuSegmento(double px, double py, double ax, double ay, double bx, double by) {
  return Distanza(px, py, ax, ay) + Distanza(px, py, bx, by) - Distanza(ax, ay, bx, by) <
         kTolleranzaDisegno;
}

namespace {

// Whether a line still present covers line i among the lines of [inizio, fine), ascending by
// index: first those after i, which are all still present, then the earlier ones that stayed.
template <class It, class Linea, class Copre>
bool CopertaDa(std::int32_t i, It inizio, It fine, Linea linea, const std::vector<bool>& tieni,
               Copre copre) {
  It mezzo = std::partition_point(inizio, fine, [&](const auto& v) { return linea(v) <= i; });
  for (It it = mezzo; it != fine; ++it) {
    if (copre(linea(*it))) return true;
  }
  for (It it = inizio; it != mezzo; ++it) {
    const std::int32_t j = linea(*it);
    if (j != i && tieni[static_cast<std::size_t>(j)] && copre(j)) return true;
  }
  return false;
}

}  // namespace

std::vector<bool> LineeDaTenere(const ArchivioDisegno& a, double latoCella) {
  const TabelleDisegno& t = a.Tabelle();
  const auto n = static_cast<std::size_t>(a.NumLinee);
  std::vector<Segmento> seg(n);
  std::vector<bool> normale(n), tieni(n, true);
  bool daCercare = false;
  for (std::size_t i = 0; i < n; ++i) {
    const auto r = static_cast<std::int32_t>(i);
    seg[i] = {t.CoordX[t.LinP1[r]], t.CoordY[t.LinP1[r]], t.CoordX[t.LinP2[r]],
              t.CoordY[t.LinP2[r]]};
    normale[i] = seg[i].Normale();
    daCercare = daCercare || (t.LinColore[r] > 0 && t.LinTipo[r] > 0);
  }
  std::unique_ptr<Griglia> griglia;
  if (daCercare) griglia = std::make_unique<Griglia>(seg, normale, latoCella);
  std::vector<std::int32_t> tutte;

  for (std::size_t i = 0; i < n; ++i) {
    const auto r = static_cast<std::int32_t>(i);
    if (t.LinColore[r] < 0 || t.LinTipo[r] < 0) {
      tieni[i] = false;
      continue;
    }
    if (t.LinColore[r] <= 0 || t.LinTipo[r] <= 0) continue;
    const Segmento& s = seg[i];
    auto copre = [&seg, &s](std::int32_t j) {
      const Segmento& c = seg[static_cast<std::size_t>(j)];
      return SuSegmento(s.ax, s.ay, c.ax, c.ay, c.bx, c.by) &&
             SuSegmento(s.bx, s.by, c.ax, c.ay, c.bx, c.by);
    };
    auto indice = [](std::int32_t j) { return j; };
    bool coperta = false;
    if (normale[i]) {
      const auto [inizio, fine] = griglia->Cella(s.ax, s.ay);
      coperta =
          CopertaDa(
              r, inizio, fine, [](const Voce& v) { return v.linea; }, tieni, copre) ||
          CopertaDa(r, griglia->Lunghe().begin(), griglia->Lunghe().end(), indice, tieni, copre);
    } else {
      if (tutte.empty()) {
        tutte.resize(n);
        for (std::size_t j = 0; j < n; ++j) tutte[j] = static_cast<std::int32_t>(j);
      }
      coperta = CopertaDa(r, tutte.begin(), tutte.end(), indice, tieni, copre);
    }
    if (coperta) tieni[i] = false;
  }
  return tieni;
}

}  // namespace qf17
