#pragma once

#include <memory>
#include <string>

#include "disegno/archivio_disegno.h"
#include "disegno/font.h"
#include "disegno/opzioni.h"
#include "disegno/stili_grb.h"
#include "librerie/materiale.h"
#include "librerie/profilo.h"
#include "librerie/unita.h"
#include "nodo/cartelle.h"
#include "nodo/nodo.h"
#include "piattaforma/errori.h"
#include "piattaforma/piattaforma.h"
#include "verifica/risultati.h"

namespace qf17 {

// Everything the program holds while it runs: the one node, the libraries read at start-up,
// the job's units, the options. One per process (one per test); passed by reference, never global.
struct Sessione {
  explicit Sessione(Piattaforma& p) : piattaforma(p) {}
  Sessione(const Sessione&) = delete;
  Sessione& operator=(const Sessione&) = delete;

  Piattaforma& piattaforma;
  std::string RigaComando;
  Cartelle cartelle;
  Nodo nodo;
  LibreriaProfili profili;
  Materiali materiali;
  UnitaLavoro unita;
  Opzioni opzioni;
  FontTratti font;
  StiliGRB stiliGrb;
  GeometriaFazzoletto geometria;
  // The node in use was opened with a section, steel or bolt class name that the libraries
  // lack: the user was told, and an empty row stands in its place. Commands that write a file
  // from such a node refuse to.
  bool NomiMancanti = false;
  ArchivioDisegno disegno;

  // The verification's tables, made on the first run (they are large) and kept, as the family
  // keeps them, from one run to the next.
  RisultatiVerifica& Risultati() {
    if (!risultati_) risultati_ = std::make_unique<RisultatiVerifica>();
    return *risultati_;
  }
  const RisultatiVerifica& Risultati() const {
    if (!risultati_) throw ErroreFatale("Nessuna verifica eseguita");
    return *risultati_;
  }
  bool HaRisultati() const { return risultati_ != nullptr; }

 private:
  std::unique_ptr<RisultatiVerifica> risultati_;
};

}  // namespace qf17
