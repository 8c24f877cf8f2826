#pragma once

#include <string>
#include <vector>

#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "sessione_verifica.h"

namespace qf17::prova {

// A session with a node built by hand for the bolt checks: member A and the chord are channels
// 120 high, flanges 10, web 6, gusset 10 thick; holes without tolerance, nominal bolt areas.
struct ProvaBulloniTA : SessioneVerifica {
  ProvaBulloniTA() {
    sessione.opzioni[25] = 0;
    sessione.opzioni[26] = 0;
    nodo.Corrente = Canale();
    for (int i = 1; i <= 3; ++i) {
      nodo.Aste[i] = Canale();
      nodo.Ast_flag[i] = 1;
      nodo.Ast_ins[i] = 120;
    }
    nodo.Fz_a = nodo.Fz_b = nodo.Fz_c = nodo.Fz_d = 30;
    nodo.Fz_s = 10;
  }

  static Profilo Canale() {
    Profilo p;
    p.Nome = "UPN120", p.Tipo = 0, p.h = 120, p.b = 55, p.e = 10, p.a = 6, p.dBarX = 60;
    return p;
  }
};

}  // namespace qf17::prova
