// PROVVISORIO: replaced by the dimensioning module.
#include "disegno/esecutivo/tavola_dis.h"

namespace qf17 {
double TavolaDis::Larghezza(ClasseTesto) const {
  return 10;
}
double TavolaDis::Altezza(ClasseTesto) const {
  return 10;
}
void TavolaDis::Quota(const std::string&, double, double, double, double, double, double) {}
void TavolaDis::TestoCentrato(const std::string&, double, double, double, double, double,
                              ClasseTesto, std::int16_t) {}
void TavolaDis::Testo(const std::string&, double, double, std::int16_t, ClasseTesto, std::int16_t) {
}
}  // namespace qf17
