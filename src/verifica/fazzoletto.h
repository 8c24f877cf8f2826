#pragma once

#include <vector>

namespace qf17 {

struct Sessione;

// Diffusion of each member's force into the gusset: SigDiff(g, j) for g = 1..3.
void VerificaFazzoletto(Sessione& sessione, int j);
// Sorts bolt numbers by increasing x, keeping the order of equal x.
void OrdinaBulloni(std::vector<int>& ordine, std::vector<double>& x, int n);

}  // namespace qf17
