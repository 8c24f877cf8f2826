#pragma once

#include <string>
#include <vector>

#include "nodo/sessione.h"
#include "piattaforma/piattaforma.h"
#include "piattaforma/piattaforma_registrata.h"
#include "sessione_verifica.h"
#include "verifica/risultati.h"

namespace qf17::prova {

// The gusset's diffusion sections and the net sections of members and chord as plain nested
// loops over the bolts, every call from scratch: the reference the fast checks must match,
// figure for figure and message for message. Results go to `r`, messages to `p`.
void OracoloFazzoletto(const Sessione& s, int j, RisultatiVerifica& r, Piattaforma& p);
void OracoloProfili(const Sessione& s, int j, RisultatiVerifica& r, Piattaforma& p);

// A node built by hand for the section checks: gusset 10 thick, holes 1 mm over the bolt, so
// that a bolt of 20 has a hole of 21; every member an angle 60 x 6.
struct ProvaSezioni : SessioneVerifica {
  ProvaSezioni() {
    sessione.opzioni[25] = 1;
    nodo.Fz_s = 10;
    nodo.PosFazzoletto = 1;
    for (int i = 1; i <= 3; ++i) {
      nodo.Aste[i] = Angolare();
      nodo.Ast_flag[i] = 1;
      nodo.Ast_coeff[i] = 1;
    }
  }

  // h = b = 60, a = e = 6, area 691 mm2, centroid 16.9 from the back, I2 228000 mm4.
  static Profilo Angolare() {
    Profilo p;
    p.Nome = "LU60x6";
    p.Tipo = 1;
    p.h = p.b = 60;
    p.a = p.e = 6;
    p.Area = 691;
    p.dBarX = p.dBarY = 16.9;
    p.I2 = 228000;
    return p;
  }

  // Adds a bolt to group 0..3, of 20 mm unless told.
  void Bullone(int gruppo, double x, double y, double d = 20) {
    SessioneVerifica::Bullone(gruppo, x, y, d);
  }
};

}  // namespace qf17::prova
