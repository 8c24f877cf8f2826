#pragma once

namespace qf17 {

struct Sessione;

// Shares the force (Fx, Fy) applied at xP among the bolts of group g (1 chord, 2..4 members A,
// B, C) as a rigid pattern, and writes TauBull and RifBull of set j.
void BulloniTA(Sessione& sessione, int g, int j, double Fx, double Fy, double xP);
// The pass flags of every load set under allowable stresses.
void EsitoTA(Sessione& sessione);

}  // namespace qf17
