// The keyed node reader, then the writer on what it read: a fatal error of the file (an index
// beyond its table, a number beyond 16 bits) is an exception; anything else must not happen.
#include <cstddef>
#include <cstdint>
#include <memory>

#include "file_temporaneo.h"
#include "nodo/file_nodo.h"
#include "piattaforma/errori.h"
#include "piattaforma/piattaforma_registrata.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
  qf17::PiattaformaRegistrata piattaforma;
  auto nodo = std::make_unique<qf17::Nodo>();
  try {
    if (!qf17::LeggiNodo(*nodo, FileDaDati(dati, n, "nodo.qf7"), piattaforma)) return 0;
  } catch (const qf17::ErroreFatale&) {
    return 0;
  }
  // Whatever was read must be writable: the counts never exceed their tables.
  qf17::ScriviNodo(*nodo, FileDaDati(nullptr, 0, "scritto.qf7"), piattaforma);
  return 0;
}
