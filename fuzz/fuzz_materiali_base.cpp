// The job's materials base propmateriali.tx1, read from the job folder, then applied.
#include <cstddef>
#include <cstdint>

#include "file_temporaneo.h"
#include "librerie/materiali.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"

namespace {

void Tabelle(qf17::Materiali& m) {
  m.NumAcciai = 2;
  m.Acciai[1] = {
      "S 235 (FE 360)", "UNI EN 10025-2", 1600, 1400, 2350, 2150, 3600, 3600, 1.05, 1.25};
  m.Acciai[2] = {
      "S 275 (FE 430)", "UNI EN 10025-2", 1900, 1700, 2750, 2550, 4300, 4100, 1.05, 1.25};
  m.NumViti = 1;
  m.Viti[1] = {"8.8", 3730, 2640, 6490, 8000, 5600, 1.25};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
  static qf17::PiattaformaRegistrata piattaforma;
  static qf17::Sessione sessione(piattaforma);
  piattaforma.messaggi.clear();
  sessione.materiali = qf17::Materiali{};
  Tabelle(sessione.materiali);
  const auto file = FileDaDati(dati, n, "propmateriali.tx1");
  sessione.nodo.DirLavoro = file.parent_path().string();
  qf17::LeggiMaterialiBase(sessione);
  sessione.materiali.CheckMatBase = true;
  for (std::int16_t metodo = 0; metodo <= 1; ++metodo) {
    sessione.nodo.TipoVer = metodo;
    qf17::GestioneMaterialeBase(sessione);
    qf17::SettaMateriali(sessione);
  }
  return 0;
}
