#include <cstdint>
#include <cstring>
#include <string>

#include "librerie/formatta.h"
#include "piattaforma/piattaforma_registrata.h"

// Format commands come from the family's files and reports: any string with any value and scale
// must give a text (or a message), never a crash or an endless loop.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
  if (n < 17) return 0;
  double valore = 0;
  double scala = 0;
  std::memcpy(&valore, dati, sizeof valore);
  std::memcpy(&scala, dati + 8, sizeof scala);
  const int larghezza = static_cast<int>(dati[16]) - 28;
  const std::string comandi(reinterpret_cast<const char*>(dati + 17), n - 17);

  qf17::PiattaformaRegistrata piattaforma;
  qf17::Formatta(valore, comandi, scala, piattaforma);
  int spostamento = 0;
  double convertito = valore;
  qf17::ConvertiUnita(convertito, comandi, spostamento, piattaforma);
  qf17::FormatoColonna(valore, larghezza, true, "R", piattaforma);
  qf17::FormatoColonna(static_cast<long long>(larghezza) * 1000003, larghezza, false, "L",
                       piattaforma);
  qf17::FormatoColonna(comandi, larghezza, true, "L", piattaforma);
  return 0;
}
