// PROVVISORIO: replaced by the gusset detail module.
#include "disegno/esecutivo/fazzoletto_disegno.h"

namespace qf17 {
void CoordinateFori(Tavola&, StatoEsecutivo&, int, int, double) {}
void NumeraFori(Tavola&, StatoEsecutivo&) {}
void DettaglioFazzoletto(Tavola&, StatoEsecutivo&) {}
}  // namespace qf17
