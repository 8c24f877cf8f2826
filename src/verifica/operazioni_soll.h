#pragma once

namespace qf17 {

struct Nodo;

// Removes repeated load sets (same case, same forces of present members); true when any went.
bool RimuoviDoppie(Nodo& nodo);
// Keeps only the sets holding a present member's maximum or minimum of their case type.
void RiduciMaxMin(Nodo& nodo);
// Removes set j; the later sets move up with their names.
void RimuoviSoll(Nodo& nodo, int j);

}  // namespace qf17
