// The plate's outline and the frame of the gusset detail.

#include <cmath>

#include "disegno/archivio_disegno_primitive.h"
#include "disegno/esecutivo/fazzoletto_interno.h"
#include "disegno/esecutivo/profili_disegno.h"
#include "disegno/esecutivo/tavola.h"
#include "nodo/sessione.h"
#include "verifica/comuni.h"

namespace qf17 {

namespace {

// The gusset's corners stand this far off the chord's axis: the chord's half height, from
// the gravity axis of an angle.
double Scostamento(const Profilo& c, double sg) {
  if (c.Tipo == static_cast<std::int16_t>(TipoProfilo::Angolare)) return (c.h / 2 - c.dBarX) * sg;
  return 0;
}

}  // namespace

double BordoCorrente(const Nodo& n) {
  const double sg = n.PosFazzoletto;
  return sg * n.Corrente.h / 2 + Scostamento(n.Corrente, sg);
}

std::array<Punto, 6> AngoliFazzoletto(const Nodo& n) {
  const double sg = n.PosFazzoletto;
  const double h2 = n.Corrente.h / 2;
  const double off = Scostamento(n.Corrente, sg);
  const bool bullonato = n.Corrente.Tipo != static_cast<std::int16_t>(TipoProfilo::DoppioT);
  const double base = BordoCorrente(n) - (bullonato ? sg * n.Corrente.h : 0);
  return {{
      {n.Fz_c + n.Fz_d, base},
      {n.Fz_c + n.Fz_d, (h2 + n.Fz_g) * sg + off},
      {n.Fz_c, (h2 + n.Fz_g + n.Fz_h) * sg + off},
      {-n.Fz_b, (h2 + n.Fz_e + n.Fz_f) * sg + off},
      {-n.Fz_a - n.Fz_b, (h2 + n.Fz_e) * sg + off},
      {-n.Fz_a - n.Fz_b, base},
  }};
}

Punto DaNodo(const Nodo& n, Punto p) {
  return RuotaPunto(p.x, p.y, 0, 0, -n.Cor_teta);
}

}  // namespace qf17
