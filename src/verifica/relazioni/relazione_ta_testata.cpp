#include <string>

#include "librerie/numeri.h"
#include "nodo/nodo_default.h"
#include "nodo/sessione.h"
#include "verifica/comuni.h"
#include "verifica/relazioni/relazione_comune.h"
#include "verifica/relazioni/relazione_ta_parti.h"

namespace qf17 {
namespace {

constexpr char kT = kTab;

void ScriviTitolo(const Nodo& n, TestoRelazione& r) {
  ScriviTitoloVerifica(n, r);
  r << " - METODO DELLE TENSIONI AMMISSIBILI (CNR 10011/88)" << kFine;
  r << kFine << "UNITA' DI MISURA:" << kFine;
}

void ScriviUnita(const UnitaLavoro& u, TestoRelazione& r) {
  r << "FORZE:" << kT << kT << u.UniForze << kFine;
  r << "TENSIONI:" << kT << u.UniTensioni << kFine;
  r << "DIMENSIONI:" << kT << "mm" << kFine;
  r << kFine;
}

void ScriviSezione(const Profilo& p, TestoRelazione& r) {
  r << Numero{p.h} << kT << Numero{p.b} << kT << Numero{p.a} << kT << Numero{p.e} << kT;
}

void ScriviAste(Sessione& s, TestoRelazione& r) {
  const Nodo& n = s.nodo;
  r << "GEOMETRIA NODO" << kFine << kFine << "CARATTERISTICHE DELLE ASTE" << kFine;
  r << kT << "Asta" << kT << "Prof." << kT << "Spec." << kT << kT << "h" << kT << "b" << kT << "a"
    << kT << "e" << kT << "Teta" << kT << "Coeff" << kFine;
  bool saldato = n.Corrente.Tipo == static_cast<std::int16_t>(TipoProfilo::DoppioT);
  r << kT << "Corr." << kT << PulisciSezione(n.Corrente.Nome) << kT << (saldato ? "-" : "Doppio")
    << kT << kT;
  ScriviSezione(n.Corrente, r);
  r << Numero{NumeroCasellaAngolo(AngoloCasellaCorrente(n), s.piattaforma)} << kT << "-" << kFine;
  for (int i = 1; i <= kMaxAste; ++i) {
    if (n.Ast_flag[i] != 1) continue;
    r << kT << "Asta " << LetteraAsta(i) << kT << PulisciSezione(n.Aste[i].Nome) << kT
      << ModoAsta(n, i) << kT << kT;
    ScriviSezione(n.Aste[i], r);
    r << Numero{NumeroCasellaAngolo(n.Ast_teta[i], s.piattaforma)} << kT << Numero{n.Ast_coeff[i]}
      << kFine;
  }
}

void ScriviFazzoletto(const Nodo& n, TestoRelazione& r) {
  r << kFine << "FAZZOLETTO" << kFine;
  r << kT << "Num." << kT << "largh." << kT << "lungh." << kT << "s" << kFine;
  r << kT << Numero{1} << kT << Numero{MaxDi(n.Fz_e + n.Fz_f, n.Fz_g + n.Fz_h)} << kT
    << Numero{n.Fz_a + n.Fz_b + n.Fz_c + n.Fz_d} << kT << Numero{n.Fz_s} << kFine;
  if (n.Corrente.Tipo == static_cast<std::int16_t>(TipoProfilo::DoppioT)) {
    const Saldatura& sald = n.Saldature(4, 1);
    r << kFine << "SALDATURA CORRENTE" << kFine << kFine;
    r << kT << "Nome" << kT << "Lungh." << kT << "Lato" << kFine;
    r << kT << sald.Nome << kT << Numero{sald.Sld_L} << kT << Numero{n.Lato_Sald} << kFine;
  }
}

// The chord shows only its count; each present member its count and its bolts.
void ScriviBulloni(const Sessione& s, TestoRelazione& r) {
  const Nodo& n = s.nodo;
  r << "BULLONI" << kFine;
  r << "Corrente: n\u00b0" << Numero{static_cast<double>(n.nBull[0])} << kFine;
  for (int i = 1; i <= kMaxAste; ++i) {
    if (n.Ast_flag[i] != 1) continue;
    r << "Asta " << LetteraAsta(i) << ": n\u00b0" << Numero{static_cast<double>(n.nBull[i])}
      << kFine;
    r << kT << "Num." << kT << "X(loc)" << kT << "Y(loc)" << kT << "Fi" << kT << "Area" << kFine;
    for (int k = 1; k <= n.nBull[i]; ++k) {
      double d = n.FiBull(i, k);
      r << kT << Numero{static_cast<double>(k)} << kT << Numero{n.xBull(i, k)} << kT
        << Numero{n.yBull(i, k)} << kT << Numero{d} << kT
        << Numero{ArrotondaPari(AreaBullone(s.opzioni, d), 2)} << kFine;
    }
  }
}

void ScriviMateriali(const Sessione& s, TestoRelazione& r) {
  const Acciaio& acc = s.nodo.acciaio;
  const Vite& vite = s.nodo.vite;
  TensioneLavoro tens(s.unita);
  r << kFine << "MATERIALI" << kFine << kFine;
  r << kT << kT << kT << "Acciaio " << acc.Nome << ", S_adm" << kFine;
  r << kT << kT << kT << "sp <= 40mm" << kT << "sp > 40mm" << kFine;
  r << kT << "Comb. car. I" << kT << kT << kT << kT << kT << Numero{tens(acc.SAmm)} << kT
    << Numero{tens(acc.SAmm40)} << kFine;
  r << kT << "Comb. car. II" << kT << kT << kT << kT << kT << Numero{tens(acc.SAmm * 1.125)} << kT
    << Numero{tens(acc.SAmm40 * 1.125)} << kFine;
  r << kT << kT << kT << "Classe viti " << vite.Nome << kFine;
  r << kT << kT << kT << kT << kT << "S_adm" << kT << "Tau_adm" << kFine;
  r << kT << kT << kT << kT << kT << kT << kT << Numero{tens(vite.SAmmViti)} << kT
    << Numero{tens(vite.TauAmmViti)} << kFine;
  r << kFine << kFine << "SOLLECITAZIONI AGENTI E STATO TENSIONALE" << kFine << kFine;
}

}  // namespace

TensioneLavoro::TensioneLavoro(const UnitaLavoro& unita)
    : fattore_(unita.FatTensioni), decimali_(unita.DecTensioni) {}

double TensioneLavoro::operator()(double tensione) const {
  return ArrotondaPari(tensione * fattore_, decimali_);
}

void ScriviTestataTA(Sessione& sessione, TestoRelazione& r) {
  ScriviTitolo(sessione.nodo, r);
  ScriviUnita(sessione.unita, r);
  ScriviAste(sessione, r);
  ScriviFazzoletto(sessione.nodo, r);
  ScriviBulloni(sessione, r);
  ScriviMateriali(sessione, r);
}

}  // namespace qf17
