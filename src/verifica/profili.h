#pragma once

namespace qf17 {

struct Sessione;
class CacheSezioni;

// Net-section stresses of each member and of the chord for load set j: SigProf, TauCorr.
// Without a cache the sections are worked out for this call alone; with one held over the
// load sets of a run, once per run (see CacheSezioni).
void VerificaProfili(Sessione& sessione, int j);
void VerificaProfili(Sessione& sessione, int j, CacheSezioni& cache);

}  // namespace qf17
