// Where the gusset detail writes each hole's number when the holes are given by the coordinate
// table: beside its own hole, clear of every hole and at most half as far from its own as from
// any other, so that the workshop cannot read it against a neighbour, and clear of the numbers
// before it and of what else the detail asks to keep free.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <memory>
#include <numbers>
#include <unordered_map>
#include <utility>
#include <vector>

#include "disegno/esecutivo/fazzoletto_interno.h"

namespace qf17 {

namespace {

// Directions tried around a hole, upper right first, then the other diagonals, the axes and the
// directions between them: a number reads best off a corner of its hole.
constexpr double kDirezioni[] = {45,   135,   -45,   -135,   0,    90,    180,   -90,
                                 22.5, 157.5, -22.5, -157.5, 67.5, 112.5, -67.5, -112.5};
// Distances from the hole's edge, in gaps: near first, then farther out where the near ring is
// taken.
constexpr double kAnelli[] = {1, 2, 3, 5, 8, 12};

double DistanzaDaRiquadro(const Riquadro& b, Punto p) {
  const double dx = std::max({b.minX - p.x, 0.0, p.x - b.maxX});
  const double dy = std::max({b.minY - p.y, 0.0, p.y - b.maxY});
  return std::hypot(dx, dy);
}

bool SiToccano(const Riquadro& a, const Riquadro& b, double spazio) {
  return a.minX < b.maxX + spazio && b.minX < a.maxX + spazio && a.minY < b.maxY + spazio &&
         b.minY < a.maxY + spazio;
}

// The text's box at distance `distanza` from the centre along direction `gradi`: its point
// nearest to the centre along that direction lies at that distance, so the whole box does.
Riquadro BoxInDirezione(Punto centro, double distanza, double gradi, double larghezza,
                        double altezza) {
  const double a = gradi * std::numbers::pi / 180;
  const double c = std::cos(a), s = std::sin(a);
  const double sporgenza = std::abs(c) * larghezza / 2 + std::abs(s) * altezza / 2;
  const Punto mezzo{centro.x + (distanza + sporgenza) * c, centro.y + (distanza + sporgenza) * s};
  Riquadro b;
  b.Aggiungi({mezzo.x - larghezza / 2, mezzo.y - altezza / 2});
  b.Aggiungi({mezzo.x + larghezza / 2, mezzo.y + altezza / 2});
  return b;
}

// Items by the cells of a square grid, so that a box only meets what lies near it.
class Griglia {
 public:
  // A side that is not a positive number (text sizes of 0) makes one unit cells.
  explicit Griglia(double lato) : lato_(lato > 0 ? lato : 1) {}
  void Aggiungi(Punto p, int indice) { celle_[Chiave(Cella(p.x), Cella(p.y))].push_back(indice); }
  // Calls f(indice) for every item whose point lies within `raggio` of the box's cells.
  template <class F>
  void Vicini(const Riquadro& b, double raggio, F&& f) const {
    for (std::int64_t i = Cella(b.minX - raggio); i <= Cella(b.maxX + raggio); ++i) {
      for (std::int64_t j = Cella(b.minY - raggio); j <= Cella(b.maxY + raggio); ++j) {
        auto it = celle_.find(Chiave(i, j));
        if (it == celle_.end()) continue;
        for (const int k : it->second) f(k);
      }
    }
  }

 private:
  // Far or broken coordinates share the outer cells, whose key cannot overflow.
  std::int64_t Cella(double v) const {
    const double c = std::floor(v / lato_);
    return std::isfinite(c) ? static_cast<std::int64_t>(std::clamp(c, -1e12, 1e12)) : 0;
  }
  static std::int64_t Chiave(std::int64_t i, std::int64_t j) { return i * 4000037 + j; }
  double lato_;
  std::unordered_map<std::int64_t, std::vector<int>> celle_;
};

struct Esame {
  bool vicino = false;  // at most half as far from its own hole as from any other
  bool libero = false;  // clear of every other hole by a gap
  double scarto = 0;    // how much nearer to its own than to the nearest other
};

}  // namespace

class PostiNumeri::Dati {
 public:
  Dati(std::vector<ForoNumerato> fori, double larghezza, double altezza)
      : fori_(std::move(fori)),
        larghezza_(larghezza),
        altezza_(altezza),
        spazio_(altezza / 4),
        raggioMax_(RaggioMassimo(fori_)),
        fori_griglia_(LatoGriglia()),
        numeri_griglia_(LatoGriglia()) {
    for (std::size_t k = 0; k < fori_.size(); ++k) {
      fori_griglia_.Aggiungi(fori_[k].centro, static_cast<int>(k));
    }
  }

  void Evita(const Riquadro& b) {
    numeri_.push_back(b);
    numeri_griglia_.Aggiungi({b.minX, b.minY}, static_cast<int>(numeri_.size() - 1));
    larghezzaMax_ = std::max(larghezzaMax_, b.maxX - b.minX);
    altezzaMax_ = std::max(altezzaMax_, b.maxY - b.minY);
  }

  Punto Posto(std::size_t proprio, std::size_t caratteri) {
    const double w = static_cast<double>(caratteri) * larghezza_;
    const Riquadro scelto = Scegli(proprio, w);
    Evita(scelto);
    return {scelto.minX, scelto.minY};
  }

 private:
  static double RaggioMassimo(const std::vector<ForoNumerato>& fori) {
    double r = 0;
    for (const ForoNumerato& f : fori) r = std::max(r, f.raggio);
    return r;
  }
  // About what one search reaches, so that it meets a few cells.
  double LatoGriglia() const { return 8 * altezza_ + 4 * larghezza_ + 2 * raggioMax_; }

  // The first place that is near its own hole only and clear of the numbers before; failing
  // that, the first near its own hole only; failing that, the one clear of the other holes that
  // is the most nearly its own's.
  Riquadro Scegli(std::size_t proprio, double w) const {
    const ForoNumerato& foro = fori_[proprio];
    const Riquadro* primo = nullptr;
    const Riquadro* vicino = nullptr;
    const Riquadro* libero = nullptr;
    double scartoMigliore = std::numeric_limits<double>::lowest();
    std::vector<Riquadro> prove;
    prove.reserve(std::size(kAnelli) * std::size(kDirezioni));
    for (const double anello : kAnelli) {
      for (const double gradi : kDirezioni) {
        prove.push_back(
            BoxInDirezione(foro.centro, foro.raggio + anello * spazio_, gradi, w, altezza_));
      }
    }
    for (const Riquadro& b : prove) {
      const Esame e = Esamina(proprio, b);
      if (e.vicino && !SopraUnNumero(b)) return b;
      if (primo == nullptr) primo = &b;
      if (e.vicino && vicino == nullptr) vicino = &b;
      if (e.libero && e.scarto > scartoMigliore) {
        scartoMigliore = e.scarto;
        libero = &b;
      }
    }
    if (vicino != nullptr) return *vicino;
    return libero != nullptr ? *libero : *primo;
  }

  Esame Esamina(std::size_t proprio, const Riquadro& b) const {
    const ForoNumerato& foro = fori_[proprio];
    const double mio = DistanzaDaRiquadro(b, foro.centro) - foro.raggio;
    // Only a hole whose edge comes within this reach can be nearer than the own one; farther
    // holes leave the box clear and nearest its own by more than the reach.
    const double portata = 2 * mio + spazio_;
    double altro = mio + portata;
    fori_griglia_.Vicini(b, portata + raggioMax_, [&](int k) {
      if (static_cast<std::size_t>(k) == proprio) return;
      const ForoNumerato& f = fori_[static_cast<std::size_t>(k)];
      altro = std::min(altro, DistanzaDaRiquadro(b, f.centro) - f.raggio);
    });
    return {altro >= 2 * mio, altro >= spazio_, altro - mio};
  }

  bool SopraUnNumero(const Riquadro& b) const {
    bool sopra = false;
    numeri_griglia_.Vicini(b, larghezzaMax_ + altezzaMax_, [&](int k) {
      sopra = sopra || SiToccano(b, numeri_[static_cast<std::size_t>(k)], spazio_ / 2);
    });
    return sopra;
  }

  std::vector<ForoNumerato> fori_;
  double larghezza_, altezza_, spazio_, raggioMax_;
  double larghezzaMax_ = 0, altezzaMax_ = 0;
  Griglia fori_griglia_, numeri_griglia_;
  std::vector<Riquadro> numeri_;
};

PostiNumeri::PostiNumeri(std::vector<ForoNumerato> fori, double larghezzaCarattere, double altezza)
    : dati_(std::make_unique<Dati>(std::move(fori), larghezzaCarattere, altezza)) {}

PostiNumeri::~PostiNumeri() = default;

void PostiNumeri::Evita(const Riquadro& b) {
  dati_->Evita(b);
}

Punto PostiNumeri::Posto(std::size_t foro, std::size_t caratteri) {
  return dati_->Posto(foro, caratteri);
}

}  // namespace qf17
