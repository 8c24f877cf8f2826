// The strip details of the chord and of the members: the connected leg or web seen flat, with
// its holes, their chains and the notes of the diameters.

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "disegno/esecutivo/profili_comuni.h"
#include "disegno/esecutivo/profili_disegno.h"
#include "disegno/esecutivo/quote.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "disegno/esecutivo/tavola.h"
#include "librerie/numeri.h"
#include "nodo/sessione.h"
#include "verifica/comuni.h"

namespace qf17 {

namespace {

using profili::Colore;

// The stations of a chain, sorted, each once.
std::vector<double> Stazioni(std::vector<double> valori) {
  std::sort(valori.begin(), valori.end());
  std::vector<double> uniche;
  for (double v : valori) {
    if (uniche.empty() || v - uniche.back() > 1e-6) uniche.push_back(v);
  }
  return uniche;
}

std::string NotaDiametri(const Sessione& s, int gruppo, const std::string& testa, bool fori) {
  const Nodo& n = s.nodo;
  std::string testo;
  for (int k = 1; k <= n.nBull[gruppo]; ++k) {
    const double fi = n.FiBull(gruppo, k);
    const std::string valore = TestoNumero(Arrot1(fori ? DiamForo(s.opzioni, fi) : fi));
    // A repeat is found by looking for the value anywhere in the text built so far.
    if (k == 1) {
      testo = testa + valore;
    } else if (testo.find(valore) == std::string::npos) {
      testo += ", ]" + valore;
    }
  }
  return testo;
}

// Across the strip, from its outer edge (y = 0): where a bolt's y starts, and the inner edges.
double OrigineTrasversale(const Profilo& p) {
  return p.Tipo == static_cast<std::int16_t>(TipoProfilo::Canale) ? p.e : 0;
}

std::vector<double> SpigoliStriscia(const Profilo& p) {
  if (p.Tipo == static_cast<std::int16_t>(TipoProfilo::Angolare)) return {p.h - p.e};
  return {p.e, p.h - p.e};
}

double AltezzaAsse(const Profilo& p, double scala) {
  const double larghezza = p.h * scala;
  if (p.Tipo == static_cast<std::int16_t>(TipoProfilo::DoppioT)) {
    return (larghezza - 2 * p.a * scala) / 2;
  }
  return larghezza - p.dBarX * scala;
}

void Catene(Tavola& t, int gruppo, const Profilo& p, double lunghezza, double inizio, double fine) {
  Sessione& s = t.S();
  const Nodo& n = s.nodo;
  const double k = s.opzioni[21];
  const double larghezza = p.h * k;
  const double oy = OrigineTrasversale(p) * k;
  const double distacco = s.opzioni[22];
  std::vector<double> lungo{0, lunghezza};
  std::vector<double> attraverso{0, larghezza};
  for (int b = 1; b <= n.nBull[gruppo]; ++b) {
    lungo.push_back(n.xBull(gruppo, b) * k);
    attraverso.push_back(oy + n.yBull(gruppo, b) * k);
  }
  std::vector<Punto> punti;
  for (double x : Stazioni(lungo)) punti.push_back({x, -distacco});
  QuotaCatena(t, punti, 1 / k);
  punti.clear();
  for (double y : Stazioni(attraverso)) punti.push_back({inizio - distacco, y});
  QuotaCatena(t, punti, 1 / k);
  t.Quota("", fine + distacco, fine + distacco, 0, larghezza, s.opzioni[13], 1 / k);
}

void Striscia(Tavola& t, StatoEsecutivo& stato, int gruppo, const Profilo& p,
              const std::string& titolo) {
  Sessione& s = t.S();
  const Nodo& n = s.nodo;
  const double k = s.opzioni[21];
  const double lunghezza = LunghezzaStriscia(s, gruppo);
  const double larghezza = p.h * k;
  const double inizio = -std::abs(0.15 * lunghezza);
  const double fine = lunghezza + std::abs(0.15 * lunghezza);
  const double distacco = s.opzioni[22];

  // The section beside the strip of an opposed pair stands its second profile above the first:
  // the title goes over both.
  const bool opposta =
      gruppo != 0 && n.Ast_modo[gruppo] == static_cast<std::int16_t>(AstModo::Opposta);
  const double cima = opposta ? 2 * larghezza + n.Fz_s * k : larghezza;
  t.Testo(titolo, 0, cima + distacco, 0, ClasseTesto::Testi, Colore(s, 5));

  const double yAsse = AltezzaAsse(p, k);
  profili::Linea(s, {inizio, yAsse}, {fine, yAsse}, Colore(s, 1), profili::kTrattoPunto);
  s.disegno.ColoreCorrente = Colore(s, 0);
  s.disegno.StileLinea = profili::kContinua;
  std::vector<double> linee{0, larghezza};
  for (double y : SpigoliStriscia(p)) linee.push_back(y * k);
  for (double y : linee) profili::Linea(s, {inizio, y}, {fine, y}, Colore(s, 0));
  profili::Rottura(s, {inizio, 0}, {inizio, larghezza}, {-1, 0}, Colore(s, 0));
  profili::Rottura(s, {fine, 0}, {fine, larghezza}, {1, 0}, Colore(s, 0));

  DisegnaFori(t, gruppo, 0, OrigineTrasversale(p) * k, 1, k);

  const double testi = s.opzioni[9];
  const double yNota = -distacco - s.opzioni[13] - s.opzioni[7] - 1.5 * testi;
  stato.LargF = fine + distacco - (inizio - distacco - s.opzioni[13] - s.opzioni[7]);
  stato.AltF = cima + distacco + testi - (yNota - 1.5 * testi);
  if (n.nBull[gruppo] < 1) return;
  if (s.opzioni[24] == 1) Catene(t, gruppo, p, lunghezza, inizio, fine);
  t.Testo(NotaFori(s, gruppo), inizio, yNota, 0, ClasseTesto::Testi, Colore(s, 5));
  t.Testo(NotaBulloni(s, gruppo), inizio, yNota - 1.5 * testi, 0, ClasseTesto::Testi, Colore(s, 5));
}

}  // namespace

double LunghezzaStriscia(const Sessione& s, int asta) {
  const Nodo& n = s.nodo;
  const double k = s.opzioni[21];
  if (asta == 0) return (n.Fz_a + n.Fz_b + n.Fz_c + n.Fz_d) * k;
  if (n.nBull[asta] < 1) return n.Ast_ins[asta] * k;
  double massimo = n.xBull(asta, 1);
  for (int b = 2; b <= n.nBull[asta]; ++b) massimo = std::max(massimo, n.xBull(asta, b));
  return massimo * k;
}

std::string NotaFori(const Sessione& s, int gruppo) {
  return NotaDiametri(s, gruppo, "Fori ]", true);
}

std::string NotaBulloni(const Sessione& s, int gruppo) {
  return NotaDiametri(s, gruppo, "Bull. M", false);
}

void DettaglioForiCorrente(Tavola& t, StatoEsecutivo& stato) {
  Striscia(t, stato, 0, t.S().nodo.Corrente, "PARTICOLARE FORATURA DEL CORRENTE");
}

void DettaglioForiAsta(Tavola& t, StatoEsecutivo& stato, int asta) {
  const std::string lettera(1, static_cast<char>('A' + asta - 1));
  Striscia(t, stato, asta, t.S().nodo.Aste[asta], "PARTICOLARE FORATURA DELL'ASTA " + lettera);
}

}  // namespace qf17
