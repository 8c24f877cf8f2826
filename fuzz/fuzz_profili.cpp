// The section library: both passes, every layout through a filter that accepts every family,
// then the post-processing and the lookups over whatever was read. The tables are kept from one
// input to the next (allocating them is most of the time of a run): the reader must cope with
// rows left by an earlier library as well.
#include <cstddef>
#include <cstdint>

#include "file_temporaneo.h"
#include "librerie/libreria_profili.h"
#include "piattaforma/piattaforma_registrata.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
  const auto file = FileDaDati(dati, n, "Prof_pro");
  qf17::PiattaformaRegistrata piattaforma;
  static auto* lib = new qf17::LibreriaProfili;
  qf17::LeggiProfili(*lib, file);
  qf17::CompletaProfili(*lib);
  qf17::ProfiloDaNome(*lib, "IPE140", piattaforma);
  const auto aste = qf17::ListaAste(*lib);
  qf17::ProfiloInLista(*lib, "LU60x6", aste, piattaforma);
  qf17::ProfiloInLista(*lib, "UPN120", qf17::ListaCorrente(*lib), piattaforma);

  static auto* tutte = new qf17::LibreriaProfili;
  const int lette = qf17::LeggiProfilario(
      file, 1, *tutte, 1, 10, " UPN LU LD LLU T.QUAD TUBO INP IPE HEA HEB HEM UB UC M W XYZ ");
  tutte->NumProfili1 = lette / 2;
  tutte->NumProfiliTot = lette;
  qf17::CompletaProfili(*tutte);
  return 0;
}
