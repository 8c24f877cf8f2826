#include <string>

#include "librerie/numeri.h"
#include "nodo/nodo_default.h"
#include "nodo/sessione.h"
#include "verifica/comuni.h"
#include "verifica/relazioni/relazione_comune.h"
#include "verifica/relazioni/relazione_slu_parti.h"
#include "verifica/relazioni/relazione_ta_parti.h"

namespace qf17 {
namespace {

using namespace colonne_slu;

bool Saldato(const Nodo& n) {
  return n.Corrente.Tipo == static_cast<std::int16_t>(TipoProfilo::DoppioT);
}

void ScriviTitolo(const Sessione& s, TestoRelazione& r) {
  ScriviTitoloVerifica(s.nodo, r);
  r << " - METODO DEGLI STATI LIMITE (NTC 2008)" << kFine << kFine;
  r << "UNITA' DI MISURA: [" << s.unita.UniForze << "] ; [" << s.unita.UniTensioni << "] ; [mm]"
    << kFine << kFine;
}

// h, b, a, e and the angle as its box shows it.
void CelleSezione(const Profilo& p, double teta, RigheColonne& c, Piattaforma& piattaforma) {
  c.Cella(p.h, kLunghezza).Cella(p.b, kLunghezza).Cella(p.a, kLunghezza).Cella(p.e, kLunghezza);
  c.Cella(NumeroCasellaAngolo(teta, piattaforma), kLunghezza);
}

void ScriviAste(Sessione& s, RigheColonne& c) {
  const Nodo& n = s.nodo;
  c.r() << "GEOMETRIA NODO" << kFine << kFine << "CARATTERISTICHE DELLE ASTE" << kFine;
  c.Testo("Asta", kEtichetta).Testo("Prof.", kNome).Testo("Spec.", kModo);
  for (const char* t : {"h", "b", "a", "e", "Teta", "Coeff"}) c.Testo(t, kLunghezza, "R");
  c.Fine();
  c.Testo("Corr.", kEtichetta).Testo(PulisciSezione(n.Corrente.Nome), kNome);
  c.Testo(Saldato(n) ? "-" : "Doppio", kModo);
  CelleSezione(n.Corrente, AngoloCasellaCorrente(n), c, s.piattaforma);
  c.Testo("-", kLunghezza, "R").Fine();
  for (int i = 1; i <= kMaxAste; ++i) {
    if (n.Ast_flag[i] != 1) continue;
    c.Testo("Asta " + LetteraAsta(i), kEtichetta).Testo(PulisciSezione(n.Aste[i].Nome), kNome);
    c.Testo(ModoAsta(n, i), kModo);
    CelleSezione(n.Aste[i], n.Ast_teta[i], c, s.piattaforma);
    c.Cella(n.Ast_coeff[i], kLunghezza).Fine();
  }
}

void ScriviFazzoletto(const Nodo& n, RigheColonne& c) {
  c.r() << kFine << "FAZZOLETTO" << kFine;
  c.Testo("Num", kContatore, "R").Testo("Largh", kLunghezza, "R");
  c.Testo("Lungh", kLunghezza, "R").Testo("Sp", kLunghezza, "R").Fine();
  c.Cella(1LL, kContatore).Cella(MaxDi(n.Fz_e + n.Fz_f, n.Fz_g + n.Fz_h), kLunghezza);
  c.Cella(n.Fz_a + n.Fz_b + n.Fz_c + n.Fz_d, kLunghezza).Cella(n.Fz_s, kLunghezza).Fine();
  if (!Saldato(n)) return;
  const Saldatura& sald = n.Saldature(4, 1);
  c.r() << kFine << "SALDATURA CORRENTE (n\u00b0 1)" << kFine;
  c.Testo("Nome", kNome).Testo("Lungh", kLunghezza, "R").Testo("Lato", kLunghezza, "R").Fine();
  c.Testo(sald.Nome, kNome).Cella(sald.Sld_L, kLunghezza).Cella(n.Lato_Sald, kLunghezza).Fine();
}

void ScriviGruppo(const Sessione& s, int g, const std::string& titolo, RigheColonne& c) {
  const Nodo& n = s.nodo;
  c.r() << titolo << " (n\u00b0 " << TestoNumero(static_cast<long long>(n.nBull[g])) << ")"
        << kFine;
  c.Testo("Num", kContatore, "R");
  for (const char* t : {"X(loc)", "Y(loc)", "Fi", "Area"}) c.Testo(t, kLunghezza, "R");
  c.Fine();
  for (int k = 1; k <= n.nBull[g]; ++k) {
    double d = n.FiBull(g, k);
    c.Cella(static_cast<long long>(k), kContatore).Cella(n.xBull(g, k), kLunghezza);
    c.Cella(n.yBull(g, k), kLunghezza).Cella(d, kLunghezza);
    c.Cella(ArrotondaPari(AreaBullone(s.opzioni, d), 2), kLunghezza).Fine();
  }
}

// Every group the checks below take: the chord unless it is welded, and the present members.
void ScriviBulloni(const Sessione& s, RigheColonne& c) {
  const Nodo& n = s.nodo;
  c.r() << kFine << "BULLONI" << kFine;
  if (!Saldato(n)) ScriviGruppo(s, 0, "Corrente", c);
  for (int i = 1; i <= kMaxAste; ++i) {
    if (n.Ast_flag[i] == 1) ScriviGruppo(s, i, "Asta " + LetteraAsta(i), c);
  }
}

// Three lines of left-aligned cells, the last cell of each without its bar: the design strengths
// of the plate up to and over 40 mm and of the bolts, in the job's unit and decimals.
void ScriviMateriali(const Sessione& s, RigheColonne& c) {
  const Acciaio& acc = s.nodo.acciaio;
  const Vite& vite = s.nodo.vite;
  TensioneLavoro tens(s.unita);
  c.r() << kFine << "MATERIALI" << kFine << kFine;
  c.Testo("Acciaio " + acc.Nome, 41).Testo("Classe viti " + vite.Nome, 40, "L", false).Fine();
  c.Testo("fd s<40mm", 20).Testo("fd 40mm<s<80mm", 20).Testo("fd", 40, "L", false).Fine();
  c.Cella(tens(acc.fy / acc.gM), 20, "L").Cella(tens(acc.fy40 / acc.gM), 20, "L");
  c.Cella(tens(vite.ftViti / vite.gMViti), 40, "L", false).Fine();
  c.r() << kFine << kFine << "SOLLECITAZIONI AGENTI E STATO TENSIONALE" << kFine << kFine;
}

}  // namespace

// Between the blocks of the heading an empty line, as in the allowable-stress report.
void ScriviTestataSLU(Sessione& sessione, TestoRelazione& r) {
  RigheColonne c(r, sessione.piattaforma);
  ScriviTitolo(sessione, r);
  ScriviAste(sessione, c);
  ScriviFazzoletto(sessione.nodo, c);
  ScriviBulloni(sessione, c);
  ScriviMateriali(sessione, c);
}

}  // namespace qf17
