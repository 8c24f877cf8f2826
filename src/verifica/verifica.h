#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "verifica/relazioni/relazione_ta.h"

namespace qf17 {

struct Sessione;

enum class FineVerifica {
  Relazione,  // every stage reached, report written
  Messaggio,  // stopped with a message (a member parallel to the chord, a bad gusset)
  Interrotta  // the user cancelled on a bolt layout warning: no report, no message
};

struct EsitoVerifica {
  FineVerifica fine = FineVerifica::Messaggio;
  std::filesystem::path relazione;  // the report written, when there is one
  bool nodoVerificato = false;
  VerdettiRelazione verdetti;
};

// The warning of the verify button on groups without bolts; it stops nothing.
void AvvisoBulloniMancanti(Sessione& sessione);
// The whole run: geometry, per-set checks by the node's method, flags, report.
// `primaDellaRelazione` sees the result tables with their unrounded values and the pass flags,
// before the report rounds what it prints and stores it back.
EsitoVerifica EseguiVerifica(Sessione& sessione,
                             const std::function<void(const Sessione&)>& primaDellaRelazione = {});

}  // namespace qf17
