// The keyed node reader, then the writer on what it read, then the whole allowable-stress
// verification of every node that loads, report included: a fatal error of the file (an index
// beyond its table, a number beyond 16 bits) is an exception; anything else must not happen.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>

#include "disegno/file_opzioni.h"
#include "file_temporaneo.h"
#include "librerie/libreria_profili.h"
#include "librerie/materiali.h"
#include "librerie/unita_lavoro.h"
#include "nodo/file_nodo.h"
#include "nodo/nodo_default.h"
#include "nodo/sessione.h"
#include "piattaforma/errori.h"
#include "piattaforma/piattaforma_registrata.h"
#include "verifica/verifica.h"

namespace {

using namespace qf17;

struct Ambiente {
  PiattaformaRegistrata piattaforma;
  Sessione sessione{piattaforma};
  Nodo nuovo;

  Ambiente() {
    const std::filesystem::path custom = std::filesystem::path(QF17_SORGENTI) / "installazione" /
                                         "custom";
    LeggiProfili(sessione.profili, custom / "Prof_pro");
    CompletaProfili(sessione.profili);
    LeggiMateriali(sessione.materiali, custom / "MaterialiNTC08.tx1");
    sessione.unita = UnitaPredefinite();
    sessione.opzioni = OpzioniPredefinite();
    sessione.nodo.DirLavoro = FileDaDati(nullptr, 0, "vuoto").parent_path().string();
    NodoDefault(sessione);
    nuovo = sessione.nodo;
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
  static Ambiente* ambiente = new Ambiente();
  Sessione& s = ambiente->sessione;
  ambiente->piattaforma.messaggi.clear();
  s.nodo = ambiente->nuovo;
  try {
    if (!ApriNodoDaFile(s, FileDaDati(dati, n, "nodo.qf7"))) return 0;
  } catch (const ErroreFatale&) {
    return 0;
  }
  // Whatever was read must be writable: the counts never exceed their tables.
  ScriviNodo(s.nodo, FileDaDati(nullptr, 0, "scritto.qf7"), ambiente->piattaforma);
  s.nodo.TipoVer = 0;
  AvvisoBulloniMancanti(s);
  EseguiVerifica(s);
  return 0;
}
