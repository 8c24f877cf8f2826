// Hole positions of the gusset in its own frame, and their numbers in the coordinate table.

#include <cmath>

#include "disegno/esecutivo/fazzoletto_disegno.h"
#include "disegno/esecutivo/profili_disegno.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "nodo/sessione.h"

namespace qf17 {
namespace {

bool Saldato(const Profilo& corrente) {
  return corrente.Tipo == static_cast<std::int16_t>(TipoProfilo::DoppioT);
}

// Height of the chord's gravity axis in the bolt group's own frame, whose y = 0 is the inner
// face of the lower flange (channel) or the free edge of the leg (angle).
double AsseBaricentrico(const Profilo& p) {
  switch (static_cast<TipoProfilo>(p.Tipo)) {
    case TipoProfilo::Canale:
      return p.h / 2 - p.e;
    case TipoProfilo::Angolare:
      return p.h - p.dBarX;
    default:
      return 0;
  }
}

// A chord bolt in the chord's frame, read straight from the group's axes: from the gusset's
// left end along the chord, from the gravity axis across it towards the gusset's side.
Punto ForoCorrente(const Nodo& n, int k) {
  return {n.xBull(0, k) - (n.Fz_a + n.Fz_b),
          (n.yBull(0, k) - AsseBaricentrico(n.Corrente)) * -n.PosFazzoletto};
}

}  // namespace

std::vector<int> GruppiForiFazzoletto(const Sessione& s) {
  const Nodo& n = s.nodo;
  std::vector<int> gruppi;
  if (!Saldato(n.Corrente)) gruppi.push_back(0);
  for (int i = 1; i <= kMaxAste; ++i) {
    if (n.Ast_flag[i] != 1) continue;
    gruppi.push_back(i);
    if (n.Ast_modo[i] == static_cast<std::int16_t>(AstModo::Opposta)) gruppi.push_back(i + 3);
  }
  return gruppi;
}

void CoordinateFori(const Sessione& s, StatoEsecutivo& stato, int gruppo, double segno) {
  const Nodo& n = s.nodo;
  const int riga = segno < 0 ? gruppo + 3 : gruppo;
  // Back from the node's plane into the chord's frame.
  const double c = n.Cor_teta;
  for (int k = 1; k <= n.nBull[gruppo]; ++k) {
    Punto q;
    if (gruppo == 0) {
      q = ForoCorrente(n, k);
    } else {
      const Punto p = CentroBulloneNodo(s, gruppo, k, segno < 0);
      q = RuotaPunto(p.x, p.y, 0, 0, -c);
    }
    stato.ForoX(riga, k) = q.x;
    stato.ForoY(riga, k) = q.y;
  }
}

void NumeraFori(const Sessione& s, StatoEsecutivo& stato) {
  std::int32_t numero = 0;
  for (const int g : GruppiForiFazzoletto(s)) {
    const int gruppo = GruppoBulloni(g);
    CoordinateFori(s, stato, gruppo, g > 3 ? -1 : 1);
    for (int k = 1; k <= s.nodo.nBull[gruppo]; ++k) stato.ForoNumero(g, k) = ++numero;
  }
}

}  // namespace qf17
