#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "disegno/primitive_schermo.h"
#include "librerie/profilo.h"

namespace qf17 {

struct Nodo;

// The bolt-able area of a group and the picture's coordinate window: one scale on both axes, so
// that a circle stays a circle, the window centred and moved down by AreaOffsetY.
struct AreaEditor {
  double AreaLarghezza = 0, AreaAltezza = 0, AreaOffsetY = 0;
  double AreaXMin = 0, AreaYMin = 0;
  double H = 0, t = 0, e = 0;  // the section's height, thickness and gravity distance
  std::int16_t tipo = 0;       // the section's kind: 0 channel, otherwise an angle
  bool opposta = false;        // an angle whose second profile is opposed
  double scala = 1;            // picture units per mm
  double sinistra = 0, destra = 0, alto = 0, basso = 0;
};

// The lengths the panel's boxes show, read by Val: FzTxt(0..3) the gusset along the chord,
// FzTxt(8..10) the members' insertions.
struct CaselleLunghezze {
  std::string FzTxt[11];
};
// The boxes as the panel fills them from the node, in plain number form.
CaselleLunghezze CaselleDalNodo(const Nodo& nodo);

// The area of group `gruppo` (1 chord, 2..4 members A..C) for a picture of the given size.
AreaEditor ImpostaScalaPicture(const Nodo& nodo, std::int16_t gruppo,
                               const CaselleLunghezze& caselle, double larghezzaPicture,
                               double altezzaPicture);
// The axis, the section's outline, the dashed area, the local axes with their labels, the
// second profile of an opposed angle and the two dimensions.
std::vector<PrimitivaAnteprima> DisegnaAreaBullonata(const AreaEditor& area);
// A green circle of the nominal diameter for each of the first `numero` bolts of the group.
std::vector<PrimitivaAnteprima> DisegnaBulloni(const Nodo& nodo, std::int16_t gruppo,
                                               std::int16_t numero);

// The preview as an SVG picture of the window, y upwards as the form shows it; numbers in the
// C locale.
std::string AnteprimaSvg(const AreaEditor& area, const std::vector<PrimitivaAnteprima>& cose,
                         double larghezzaPicture, double altezzaPicture);

}  // namespace qf17
