// PROVVISORIO: replaced by the sheet composition module.
#include "disegno/esecutivo/composizione.h"

namespace qf17 {
void ComponiEsecutivo(Tavola&) {}
std::string TitoloEsecutivo(const Sessione&) {
  return {};
}
std::vector<std::pair<std::string, int>> ListaProfili(const Sessione&) {
  return {};
}
std::vector<std::pair<double, int>> ListaFori(const Sessione&) {
  return {};
}
void DisegnaDistinta(Tavola&, StatoEsecutivo&) {}
void GrigliaTabella(Tavola&, double, double, double, int, const std::vector<double>&) {}
}  // namespace qf17
