#pragma once

#include <string>

#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17::prova {

// A session as the installation starts it: libraries, options, the job's units from a copied
// job folder, the default node; then a sample node opened from a copy in that folder.
class EsempioInLavoro {
 protected:
  // Fails the running test when the sample does not open cleanly.
  void Prepara(const std::string& nodo);
  // One run; the report's text, empty when there is none.
  std::string Relazione(const std::string& tag, const std::string& nodo);

  PiattaformaRegistrata p;
  Sessione s{p};
  CartellaProva lavoro;
};

// The first line where two texts part, for a readable failure.
std::string PrimaDifferenza(const std::string& a, const std::string& b);

}  // namespace qf17::prova
