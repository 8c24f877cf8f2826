#pragma once

#include <vector>

namespace qf17 {

struct Sessione;

// Layout rules of group g (1 chord, 2..4 members A, B, C) under limit states, with their
// OK/Cancel messages; sets Interrompi (0 at each call, 1 after a Cancel).
void ControlliBulloniSLU(Sessione& sessione, int g);
// Shear and bearing resistance of every bolt of group g: FvRd, FbRd.
void ResistenzeBulloniSLU(Sessione& sessione, int g);
// The two coefficients of the bearing resistance of each bolt of group g (bolt k at k - 1):
// kRes across the force, aRes along it, each from where the bolt stands in its fan.
struct CoefficientiRifollamento {
  double kRes = 0;
  double aRes = 0;
};
std::vector<CoefficientiRifollamento> CoefficientiRifollamentoSLU(const Sessione& sessione, int g);
// The force of each bolt of group g under set j: FedBull.
void ForzeBulloniSLU(Sessione& sessione, int g, int j, double Fx, double Fy, double xP);
// Ratio of bolt k of group index gruppo (0 chord, 1..3 members) under set j: RapportoBull.
void RapportoBullone(Sessione& sessione, int gruppo, int k, int j);
// The pass flags of every load set under limit states.
void EsitoSLU(Sessione& sessione);

}  // namespace qf17
