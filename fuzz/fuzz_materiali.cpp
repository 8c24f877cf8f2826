// The reader of the family's materials file, then the list logic over whatever it read.
#include <cstddef>
#include <cstdint>

#include "file_temporaneo.h"
#include "librerie/materiali.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
  static qf17::PiattaformaRegistrata piattaforma;
  static qf17::Sessione sessione(piattaforma);
  piattaforma.messaggi.clear();
  sessione.materiali = qf17::Materiali{};
  const auto file = FileDaDati(dati, n, "MaterialiNTC08.tx1");
  if (!qf17::LeggiMateriali(sessione.materiali, file).errore.empty()) return 0;
  for (std::int16_t metodo = 0; metodo <= 1; ++metodo) {
    sessione.nodo.TipoVer = metodo;
    qf17::MaterialiDefault(sessione);
    qf17::ControllaMateriali(sessione);
    qf17::RiempiListaAcciai(sessione, "S 275");
    qf17::SceltaAcciaio(sessione, static_cast<int>(sessione.materiali.ListaAcciai.size()) - 1);
    qf17::SettaMateriali(sessione);
  }
  return 0;
}
