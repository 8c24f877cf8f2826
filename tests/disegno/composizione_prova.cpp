#include "composizione_prova.h"

namespace qf17::prova {

void NodoAMano(Sessione& s, double teta) {
  Nodo& n = s.nodo;
  n = Nodo{};
  Profilo& c = n.Corrente;
  c.Nome = "UPN160", c.h = 160, c.b = 65, c.a = 7.5, c.e = 10.5, c.dBarX = 80, c.Tipo = 0;
  Profilo& l = n.Aste[1];
  l.Nome = "LU70x7", l.h = 70, l.b = 70, l.a = 7, l.e = 7, l.dBarX = 20, l.dBarY = 20, l.Tipo = 1;
  n.Ast_flag[1] = 1, n.Ast_modo[1] = 0, n.Ast_lato[1] = 0;
  n.Ast_teta[1] = GradiInRadianti(teta);
  n.Ast_coeff[1] = 1, n.Ast_ins[1] = 120;
  n.Fz_a = 150, n.Fz_b = 250, n.Fz_c = 250, n.Fz_d = 150;
  n.Fz_e = 100, n.Fz_f = 150, n.Fz_g = 100, n.Fz_h = 150, n.Fz_s = 10;
  n.Lato_Sald = 6;
  n.vite.Nome = "8.8";
  auto bullone = [&](int g, double x, double y, double d) {
    const int k = ++n.nBull[g];
    n.xBull(g, k) = x;
    n.yBull(g, k) = y;
    n.FiBull(g, k) = d;
  };
  bullone(0, 100, 70, 20);
  bullone(0, 700, 20, 20);
  bullone(1, 40, 30, 16);
  bullone(1, 90, 30, 16);
}

}  // namespace qf17::prova
