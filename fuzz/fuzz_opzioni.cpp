// The reader of the drawing options, then writing them back and the form's copying over them.
#include <cstddef>
#include <cstdint>

#include "disegno/file_opzioni.h"
#include "file_temporaneo.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
  qf17::Opzioni opzioni;
  if (!qf17::LeggiOpzioni(opzioni, FileDaDati(dati, n, "OpzioniQf7.txt"))) return 0;
  if (opzioni[22] != 20.0 || opzioni[17] != opzioni[13]) __builtin_trap();
  const auto copia = FileDaDati(nullptr, 0, "copia.txt");
  if (!qf17::ScriviOpzioni(opzioni, copia)) __builtin_trap();
  qf17::Opzioni riletto;
  if (!qf17::LeggiOpzioni(riletto, copia)) __builtin_trap();
  auto daForm = qf17::LeggiOpzioniForm(qf17::FormDaOpzioni(riletto), riletto);
  (void)daForm;
  return 0;
}
