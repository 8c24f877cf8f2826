#pragma once

#include <array>
#include <utility>
#include <vector>

#include "disegno/primitive_schermo.h"

namespace qf17 {

struct Nodo;

// The sketch of member m's section (0 the chord) as the panel shows it in Pic(m), in mm of the
// section: the gusset as a plate standing at x from 0 to its thickness, the profiles against it
// on the side the node says, two of them for a double or an opposed member.
DisegnoSchermo SchizzoSezione(const Nodo& nodo, int m);

// A closed outline of the schema, in its own units (the schema is 400 x 300, y upwards).
using Poligono = std::vector<std::pair<double, double>>;
bool PuntoInterno(double x, double y, const Poligono& poligono);

// The fixed schema of the node: chord along the bottom, gusset, members A, B, C to the left,
// top and right, with their letters; and the four hot areas, chord first.
struct SchemaNodo {
  DisegnoSchermo disegno;
  std::array<Poligono, 4> aree;
};
const SchemaNodo& Schema();

}  // namespace qf17
