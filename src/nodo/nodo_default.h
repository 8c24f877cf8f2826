#pragma once

#include <string>

namespace qf17 {

struct Sessione;

// The node of a new job: sections by library name, the default geometry, no bolts, no loads.
void NodoDefault(Sessione& sessione);

// "SINGOLA", "DOPPIA", "OPPOSTA" for the reports.
std::string ParolaModo(int astModo);
// "A", "B", "C" for members 1..3.
std::string LetteraAsta(int asta);

}  // namespace qf17
