// The reader of the stroke font, then every character of the code page drawn with what it read.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "disegno/leggi_font.h"
#include "disegno/tratti_testo.h"
#include "file_temporaneo.h"
#include "piattaforma/file_testo.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
  static const std::string tutti = [] {
    std::string byte;
    for (int c = 1; c < 256; ++c) byte += static_cast<char>(c);
    return qf17::Cp1252InUtf8(byte);
  }();
  auto font = std::make_unique<qf17::FontTratti>();
  if (!qf17::LeggiFont(*font, FileDaDati(dati, n, "font.001"))) return 0;
  auto tratti = qf17::TrattiTesto(*font, tutti, 10, 20, 0.5, 3, 4);
  (void)tratti;
  return 0;
}
