#pragma once

#include <vector>

namespace qf17 {

struct Sessione;
class CacheSezioni;

// Diffusion of each member's force into the gusset: SigDiff(g, j) for g = 1..3.
// Without a cache the sections are worked out for this call alone; with one held over the
// load sets of a run, once per run (see CacheSezioni).
void VerificaFazzoletto(Sessione& sessione, int j);
void VerificaFazzoletto(Sessione& sessione, int j, CacheSezioni& cache);

// Sorts bolt numbers by increasing x, keeping the order of equal x: exchanges of neighbours,
// passes until one exchanges nothing. Both tables count from 1 (element 0 unused) up to n.
void OrdinaBulloni(std::vector<int>& ordine, std::vector<double>& x, int n);

}  // namespace qf17
