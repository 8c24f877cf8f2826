// PROVVISORIO: replaced by the profile drawing module.
#include "disegno/esecutivo/profili_disegno.h"

namespace qf17 {
Punto RuotaPunto(double, double, double, double, double) {
  return {};
}
void DisegnaNodo(Tavola&, StatoEsecutivo&) {}
void DisegnaSezione(Tavola&, const Profilo&, double, double, double, double, double) {}
void DisegnaFori(Tavola&, int, double, double, double, double) {}
void DettaglioForiCorrente(Tavola&, StatoEsecutivo&) {}
void DettaglioForiAsta(Tavola&, StatoEsecutivo&, int) {}
void SezioneConFori(Tavola&, StatoEsecutivo&, int) {}
void MarcaSaldatura(Tavola&, double, double, double, double, double, std::int16_t, double, double) {
}
}  // namespace qf17
