#pragma once

#include <string>
#include <vector>

#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "verifica/risultati.h"

namespace qf17::prova {

// A session whose node the engine's tests build by hand, with the recorded messages.
struct SessioneVerifica {
  // Adds a bolt to group 0..3.
  void Bullone(int gruppo, double x, double y, double d) {
    const int k = ++nodo.nBull[gruppo];
    nodo.xBull(gruppo, k) = x;
    nodo.yBull(gruppo, k) = y;
    nodo.FiBull(gruppo, k) = d;
  }

  std::vector<std::string> Testi() const {
    std::vector<std::string> testi;
    for (const auto& m : piattaforma.messaggi) testi.push_back(m.testo);
    return testi;
  }

  PiattaformaRegistrata piattaforma;
  Sessione sessione{piattaforma};
  Nodo& nodo = sessione.nodo;
  RisultatiVerifica& r = sessione.Risultati();
};

}  // namespace qf17::prova
