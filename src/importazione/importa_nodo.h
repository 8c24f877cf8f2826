#pragma once

#include <array>

namespace qf17 {

struct InsDati;
struct Sessione;

// The node's sections and angles from the model's node `nodo` (struttur.str and sezioni_ of the
// job folder): members A, B, C and the chord D are the model's members of the name numbers in
// `richiesti` (below 1 for none). It acts on the panel as the user would: a member not asked
// for is taken out, each found section is chosen in its combo (the chord's among all sections,
// a member's among channels and angles) with the mode its model name implies, and every angle
// is typed into its box. A section the library lacks keeps the member's previous one and says
// so; its angle is set all the same.
void ImportaNodo3D(InsDati& pannello, Sessione& sessione, int nodo,
                   const std::array<int, 4>& richiesti);

}  // namespace qf17
