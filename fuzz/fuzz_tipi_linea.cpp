// The reader of the dash patterns for the DXF break-up.
#include <cstddef>
#include <cstdint>
#include <string>

#include "disegno/formati/salva_dxf_tipi_linea.h"
#include "file_temporaneo.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
  qf17::TipiLinea tipi;
  const std::string errore = qf17::LegTipLin(tipi, FileDaDati(dati, n, "TipiLineaQf7.txt"));
  for (int t = 0; t <= qf17::kUltimoTipoLinea; ++t) {
    const int pezzi = tipi.TipoNumTratti[t];
    // A file told wrong keeps nothing; a pattern kept has 1 to 11 pieces, each positive and
    // bounded, summing to its length.
    if (!errore.empty() && pezzi != 0) __builtin_trap();
    if (pezzi < 0 || pezzi > qf17::kUltimoTratto + 1) __builtin_trap();
    double somma = 0;
    for (int i = 0; i < pezzi; ++i) {
      const double pezzo = tipi.TipoTratti(t, i);
      if (!(pezzo > 0 && pezzo <= qf17::kMassimoTratto)) __builtin_trap();
      somma += pezzo;
    }
    if (somma != tipi.TipoLunghezza[t]) __builtin_trap();
  }
  return 0;
}
