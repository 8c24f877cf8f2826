#pragma once

// Pieces of the gusset detail shared by its files and its tests.

#include <algorithm>
#include <array>
#include <limits>

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
