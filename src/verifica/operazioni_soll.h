#pragma once

namespace qf17 {

struct Nodo;

// Removes repeated load sets: same case, forces of the present members within 0.0001 (names do
// not count). Of two equal sets the later goes. True when at least one set went.
bool RimuoviDoppie(Nodo& nodo);

// Removes the repeated sets, then keeps only the sets holding a present member's maximum or
// minimum of their case type. The kept forces and cases are packed into the first rows; the
// names stay where they were and the rows beyond the new count are left as they stand.
void RiduciMaxMin(Nodo& nodo);

// Removes set j (1..nSollAg; any other j does nothing): the later sets move up by one with
// their forces, case and name, and the name of the slot left free is emptied.
void RimuoviSoll(Nodo& nodo, int j);

}  // namespace qf17
