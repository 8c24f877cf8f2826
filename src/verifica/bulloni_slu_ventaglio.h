#pragma once

#include <vector>

namespace qf17 {

// The fan of a bolt k across a direction u (v the other coordinate): the bolts m with
// |vk - vm| <= T * |uk - um|, k itself included, T = tan(30 degrees). The bearing resistance
// reads a bolt by where it stands in its fan.
enum class PostoNelVentaglio {
  Primo,   // within 0.01 of the least u of its fan (so a bolt alone in its fan)
  Ultimo,  // within 0.01 of the greatest u, not of the least
  Interno  // between: `passo` is the least |uk - um| over the other bolts of its fan
};

struct PostoBullone {
  PostoNelVentaglio posto = PostoNelVentaglio::Primo;
  double passo = 0;  // only for Interno
};

// The place of every bolt (0-based, as u and v) in its fan. Identical to looking at every pair,
// without doing so where the layout allows; see the source for how and at what cost.
std::vector<PostoBullone> PostiNeiVentagli(const std::vector<double>& u,
                                           const std::vector<double>& v, double T);

// The same by every pair, for any input: what the fast search must equal.
std::vector<PostoBullone> PostiNeiVentagliCoppie(const std::vector<double>& u,
                                                 const std::vector<double>& v, double T);

}  // namespace qf17
