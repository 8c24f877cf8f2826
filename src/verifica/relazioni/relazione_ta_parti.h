#pragma once

#include <cstddef>

#include "verifica/relazioni/testo_relazione.h"

namespace qf17 {

struct Sessione;
struct Nodo;
struct UnitaLavoro;
struct VerdettiRelazione;

// A stress as the report shows it: times the job's stress factor, then rounded to the job's
// decimals of stresses, halves to the even neighbour.
class TensioneLavoro {
 public:
  explicit TensioneLavoro(const UnitaLavoro& unita);
  double operator()(double tensione) const;

 private:
  double fattore_;
  int decimali_;
};

// The units, the node, the gusset, the bolts and the materials, up to the title of the loads.
void ScriviTestataTA(Sessione& sessione, TestoRelazione& r);
// One load set j: its checks, its verdict line. Rounds and stores back the stresses the report
// shows. True when nothing printed in it has failed.
bool ScriviSetTA(Sessione& sessione, int j, TestoRelazione& r, VerdettiRelazione& verdetti);

}  // namespace qf17
