// PROVVISORIO: replaced by the dimensioning module.
#include "disegno/esecutivo/quote.h"

namespace qf17 {
void Quota(Sessione&, const std::string&, double, double, double, double, std::int16_t,
           std::int16_t, double, double, double, double) {}
void OrdinaPunti(std::vector<Punto>&, Asse) {}
void QuotaCatena(Tavola&, const std::vector<Punto>&, double) {}
void QuotaAltezzeSx(Tavola&, double, double) {}
void QuotaAltezzeDx(Tavola&, double, double) {}
void QuotaLunghezze(Tavola&, double, double) {}
void QuotaCorrente(Tavola&, double, double) {}
void QuotaAstaAltezza(Tavola&, int, double, double) {}
void QuotaAstaLarghezza(Tavola&, int, double, double) {}
void QuotaSaldatura(Tavola&, int, int) {}
void QuoteNodo(Tavola&, const StatoEsecutivo&) {}
}  // namespace qf17
