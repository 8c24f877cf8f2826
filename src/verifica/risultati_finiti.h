#pragma once

#include <string>

#include "nodo/nodo.h"
#include "verifica/risultati.h"

namespace qf17 {

// The first figure of a run that the reports or the JSON would print and that is not a finite
// number, named as the user reads it ("FvRd del bullone 2 dell'asta A, combinazione 3"); empty
// when every figure is finite. `statiLimite` chooses the bolt tables of that method.
std::string PrimoRisultatoNonFinito(const Nodo& nodo, const RisultatiVerifica& r, bool statiLimite);

}  // namespace qf17
