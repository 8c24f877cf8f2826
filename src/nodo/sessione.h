#pragma once

#include <string>

#include "disegno/font.h"
#include "disegno/opzioni.h"
#include "disegno/stili_grb.h"
#include "librerie/materiale.h"
#include "librerie/profilo.h"
#include "librerie/unita.h"
#include "nodo/cartelle.h"
#include "nodo/nodo.h"
#include "piattaforma/piattaforma.h"

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
};

}  // namespace qf17
