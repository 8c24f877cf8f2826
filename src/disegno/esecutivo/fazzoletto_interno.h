#pragma once

// Pieces of the gusset detail shared by its files and its tests.

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <memory>
#include <vector>

#include "verifica/geometria.h"

namespace qf17 {

class Tavola;
struct Nodo;

// The box of what a view drew, in its own coordinates.
struct Riquadro {
  double minX = std::numeric_limits<double>::max();
  double maxX = std::numeric_limits<double>::lowest();
  double minY = std::numeric_limits<double>::max();
  double maxY = std::numeric_limits<double>::lowest();
  void Aggiungi(Punto p) {
    minX = std::min(minX, p.x);
    maxX = std::max(maxX, p.x);
    minY = std::min(minY, p.y);
    maxY = std::max(maxY, p.y);
  }
};

// A hole of the detail on the sheet, with the reach of its centre cross: what a number keeps
// clear of.
struct ForoNumerato {
  Punto centro;
  double raggio = 0;
};

// The places of the hole numbers of the detail, given one hole after the other in the order of
// the numbers. Each number goes beside its own hole, clear of every hole and at most half as far
// from its own as from any other, and clear of the numbers placed before it and of the boxes to
// avoid when such a place exists; tried at the corners of the hole first, then the axes and
// between, at growing distances from a gap (a quarter of the text's height) on.
class PostiNumeri {
 public:
  PostiNumeri(std::vector<ForoNumerato> fori, double larghezzaCarattere, double altezza);
  ~PostiNumeri();
  PostiNumeri(const PostiNumeri&) = delete;
  PostiNumeri& operator=(const PostiNumeri&) = delete;
  // A box the numbers keep clear of where they can, as of one another.
  void Evita(const Riquadro& box);
  // The left end of the baseline of the number of hole `foro`, `caratteri` characters long.
  Punto Posto(std::size_t foro, std::size_t caratteri);

 private:
  class Dati;
  std::unique_ptr<Dati> dati_;
};

// The corners of the plate as it is cut, in the chord's frame (x along the chord from the node,
// y across from the chord's gravity axis), in the order of the gusset's sides from the right
// end on the chord. A bolted chord lies on the plate over its whole height, so the two corners
// on the chord are at the chord's far edge; a welded one stands on the plate's edge.
std::array<Punto, 6> AngoliFazzoletto(const Nodo& n);

// The chord's edge that the visible gusset starts from, as y of the chord's frame.
double BordoCorrente(const Nodo& n);

// A point of the node's plane in the chord's frame.
Punto DaNodo(const Nodo& n, Punto p);

}  // namespace qf17
