#pragma once

#include <string>

namespace qf17 {

struct Sessione;

// The loaded node as readable text (UTF-8, LF): sections with their library data, angles in
// degrees, gusset, bolts per group, materials and load sets, in the node's stored units.
std::string DescrizioneNodo(const Sessione& sessione);

}  // namespace qf17
