#include <cstdint>

#include "file_temporaneo.h"
#include "librerie/unita_lavoro.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"

// The job's parametrilavoro: read as a file of its own and through the start-up's reader, which
// falls back to the default units when the file is wrong.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
  const auto file = FileDaDati(dati, n, "parametrilavoro");
  qf17::UnitaLavoro unita;
  if (qf17::LeggiParametriLavoro(file, unita)) qf17::ParUni(unita);

  qf17::PiattaformaRegistrata piattaforma;
  qf17::Sessione sessione(piattaforma);
  sessione.nodo.DirLavoro = file.parent_path().string();
  qf17::LeggiUnitaLavoro(sessione);
  return 0;
}
