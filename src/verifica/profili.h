#pragma once

namespace qf17 {

struct Sessione;

// Net-section stresses of each member and of the chord for load set j: SigProf, TauCorr.
void VerificaProfili(Sessione& sessione, int j);

}  // namespace qf17
