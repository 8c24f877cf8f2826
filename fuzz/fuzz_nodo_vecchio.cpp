// The positional reader of the older node files: it fails silently and never throws.
#include <cstddef>
#include <cstdint>
#include <memory>

#include "file_temporaneo.h"
#include "nodo/file_nodo.h"
#include "piattaforma/piattaforma_registrata.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
  auto nodo = std::make_unique<qf17::Nodo>();
  if (!qf17::LeggiNodoVecchio(*nodo, FileDaDati(dati, n, "vecchio.qf7"))) return 0;
  qf17::PiattaformaRegistrata piattaforma;
  qf17::ScriviNodo(*nodo, FileDaDati(nullptr, 0, "scritto.qf7"), piattaforma);
  return 0;
}
