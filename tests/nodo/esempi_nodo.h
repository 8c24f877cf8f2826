#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "nodo/sessione.h"

namespace qf17::prova {

// The sample nodes of the installation's job "esempi", built on a default node of `sessione`
// (which must hold the installation's libraries).
struct EsempioNodo {
  std::string file;  // name in installazione/lavori/esempi
  Nodo nodo;
};
std::vector<EsempioNodo> EsempiNodo(Sessione& sessione);

// The save time written into the samples.
std::chrono::system_clock::time_point OraEsempi();

// Fills the session's tables from the installation's library files; false when one is missing.
bool CaricaLibrerieInstallazione(Sessione& sessione);

std::filesystem::path CartellaEsempi();

}  // namespace qf17::prova
