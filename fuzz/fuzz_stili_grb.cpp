// The reader of the GRB template's styles.
#include <cstddef>
#include <cstdint>

#include "disegno/leggi_stili_grb.h"
#include "file_temporaneo.h"
#include "piattaforma/piattaforma_registrata.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
  qf17::PiattaformaRegistrata piattaforma;
  qf17::StiliGRB stili;
  qf17::LeggiStiliGRB(stili, FileDaDati(dati, n, "cad2dmodello.grb"), piattaforma);
  if (stili.Letti == !piattaforma.messaggi.empty()) __builtin_trap();  // one or the other
  double somma = 0;
  for (int i = 1; i <= stili.NumStili; ++i) somma += stili.GRBAltezza[i] + stili.GRBLarghezza[i];
  (void)somma;
  return 0;
}
