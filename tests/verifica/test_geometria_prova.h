#pragma once

#include <gtest/gtest.h>

#include <cmath>

#include "nodo/nodo.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "verifica/geometria.h"

namespace qf17::prova {

inline constexpr double kTollGeom = 1e-9;
// sqrt(2) and the 30-degree spread of an insertion of 100: 100 * tan(30) = 100 / sqrt(3).
inline const double kR2 = std::sqrt(2.0);
inline const double kW100 = 57.73502691896258;

// A hand-built node: channel chord h 100 (no offset) at angle 0, no member, and the gusset
// a 100, b 200, c 200, d 100, e f g h 100, s 10. With the gusset below the chord (P = -1) its
// corners are C1 (300, -50), C2 (300, -150), C3 (200, -250), C4 (-200, -250), C5 (-300, -150),
// C6 (-300, -50): side 1 x = 300, side 2 y = x - 450, side 3 y = -250, side 4 y = -x - 450,
// side 5 x = -300, side 6 y = -50.
struct NodoGeometria {
  NodoGeometria() {
    n.Corrente.Nome = "C100", n.Corrente.h = 100, n.Corrente.dBarX = 20, n.Corrente.Tipo = 0;
    for (int i = 0; i <= 6; ++i) n.Ast_flag[i] = 0;
    n.Fz_a = 100, n.Fz_b = 200, n.Fz_c = 200, n.Fz_d = 100;
    n.Fz_e = 100, n.Fz_f = 100, n.Fz_g = 100, n.Fz_h = 100;
    n.Fz_s = 10;
  }
  // Member i at `gradi`, section h 60 with its centroid 15 from the back, inserted 100.
  void Asta(int i, double gradi, int lato, AstModo modo = AstModo::Singola, double h = 60,
            double dx = 15) {
    n.Aste[i].Nome = "L60", n.Aste[i].h = h, n.Aste[i].dBarX = dx, n.Aste[i].Tipo = 1;
    n.Ast_flag[i] = 1, n.Ast_modo[i] = static_cast<std::int16_t>(modo);
    n.Ast_lato[i] = static_cast<std::int16_t>(lato), n.Ast_teta[i] = GradiInRadianti(gradi);
    n.Ast_coeff[i] = 1, n.Ast_ins[i] = 100;
  }
  void Esegui() { GeometriaNodo(s); }
  const LatoFazzoletto& Lato(int k) const { return s.geometria.LatiFazzoletto[k]; }

  PiattaformaRegistrata p;
  Sessione s{p};
  Nodo& n = s.nodo;
};

inline void AttesoPunto(const Saldatura& b, int k, double x, double y, const char* dove = "") {
  EXPECT_NEAR(b.XS[k], x, kTollGeom) << dove << " point " << k << " x";
  EXPECT_NEAR(b.YS[k], y, kTollGeom) << dove << " point " << k << " y";
}

}  // namespace qf17::prova
