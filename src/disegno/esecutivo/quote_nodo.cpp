#include <cmath>
#include <numbers>
#include <vector>

#include "disegno/esecutivo/quote.h"
#include "disegno/esecutivo/tavola.h"
#include "nodo/sessione.h"

namespace qf17 {

namespace {

constexpr double kPi = std::numbers::pi;

// The station at distance d from (bx, by) in direction u (angles grow clockwise).
Punto Stazione(double bx, double by, double u, double d) {
  return {bx + d * std::cos(u), by - d * std::sin(u)};
}

// Stations along u from the base, sorted along the chain and dimensioned in one row.
void CatenaStazioni(Tavola& t, double bx, double by, double u,
                    const std::vector<double>& stazioni) {
  std::vector<Punto> punti;
  punti.reserve(stazioni.size());
  for (const double d : stazioni) punti.push_back(Stazione(bx, by, u, d));
  // A chain nearer the vertical is sorted on Y: its X hardly changes.
  OrdinaPunti(punti, std::abs(std::cos(u)) >= std::abs(std::sin(u)) ? Asse::X : Asse::Y);
  QuotaCatena(t, punti);
}

// Where the gusset starts across the chord: its edge on the gusset's side, or under an angle
// the toe of the leg, where the outline's side 6 lies.
double BordoCorrente(const Nodo& n) {
  const double p = n.PosFazzoletto;
  const double h = n.Corrente.h;
  if (n.Corrente.Tipo == static_cast<std::int16_t>(TipoProfilo::Angolare)) {
    return p * (h - n.Corrente.dBarX);
  }
  return p * h / 2;
}

}  // namespace

void QuotaAltezzeSx(Tavola& t, double bx, double by) {
  const Nodo& n = t.S().nodo;
  const double p = n.PosFazzoletto;
  const double d0 = BordoCorrente(n);
  std::vector<double> stazioni{d0, d0 + p * n.Fz_e, d0 + p * (n.Fz_e + n.Fz_f)};
  if (n.Fz_e + n.Fz_f < n.Fz_g + n.Fz_h) stazioni.push_back(d0 + p * (n.Fz_g + n.Fz_h));
  CatenaStazioni(t, bx, by, n.Cor_teta - kPi / 2, stazioni);
}

void QuotaAltezzeDx(Tavola& t, double bx, double by) {
  const Nodo& n = t.S().nodo;
  const double p = n.PosFazzoletto;
  const double h2 = n.Corrente.h / 2;
  std::vector<double> stazioni{p * h2, p * (h2 + n.Fz_g), p * (h2 + n.Fz_g + n.Fz_h), -p * h2};
  if (n.Fz_e + n.Fz_f > n.Fz_g + n.Fz_h) stazioni.push_back(p * (h2 + n.Fz_e + n.Fz_f));
  CatenaStazioni(t, bx, by, n.Cor_teta - kPi / 2, stazioni);
}

void QuotaLunghezze(Tavola& t, double bx, double by) {
  const Nodo& n = t.S().nodo;
  const double teta = n.Cor_teta;
  const double sinistra = -n.Fz_a - n.Fz_b;
  const double destra = n.Fz_c + n.Fz_d;
  CatenaStazioni(t, bx, by, teta, {sinistra, -n.Fz_b, 0, n.Fz_c, destra});
  if (n.Fz_f == 0 && n.Fz_h == 0) return;

  std::vector<double> contorno{sinistra};
  if (n.Fz_f != 0) contorno.push_back(-n.Fz_b);
  if (n.Fz_h != 0) contorno.push_back(n.Fz_c);
  contorno.push_back(destra);
  // One row further from the gusset, clear of both rows' texts on either side.
  const double altezza = t.Altezza(ClasseTesto::Quote);
  const double passo = -n.PosFazzoletto * (2 * (t.S().opzioni[13] + altezza) + altezza / 2);
  const Punto normale = Normale(teta);
  CatenaStazioni(t, bx + passo * normale.x, by + passo * normale.y, teta, contorno);
}

void QuotaCorrente(Tavola& t, double bx, double by) {
  const Nodo& n = t.S().nodo;
  const double b2 = n.Corrente.b / 2;
  CatenaStazioni(t, bx, by, n.Cor_teta, {-b2, b2});
}

}  // namespace qf17
