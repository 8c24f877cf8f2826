#include <cmath>
#include <cstdint>

#include "nodo/nodo_default.h"
#include "nodo/sessione.h"
#include "verifica/comuni.h"
#include "verifica/relazioni/relazione_ta.h"
#include "verifica/relazioni/relazione_ta_parti.h"
#include "verifica/saldatura.h"

namespace qf17 {
namespace {

constexpr char kT = kTab;
constexpr char kRigaTrattini[] =
    "--------------------------------------------------------------------------------";
static_assert(sizeof kRigaTrattini == 81);

bool Saldato(const Nodo& n) {
  return n.Corrente.Tipo == static_cast<std::int16_t>(TipoProfilo::DoppioT);
}

// One load set being written. Each check prints its figure and, when its flag is down, the
// failure line, which also takes the set's verdict down.
class SetTA {
 public:
  SetTA(Sessione& s, int j, TestoRelazione& r)
      : s_(s),
        n_(s.nodo),
        ris_(s.Risultati()),
        r_(r),
        tens_(s.unita),
        j_(j),
        c_(n_.CasoCarico[j] != 0 ? 1.125 : 1.0) {}

  void Intestazione();
  void Diffusione();
  void SottoCorrente();
  void Saldatura(VerdettiRelazione& verdetti);
  void Rifollamento();
  void Bulloni();
  void Profili();
  bool Verdetto();

 private:
  void Esito(std::int16_t ok) {
    if (ok == 0) Fallita();
  }
  void Fallita() {
    r_ << kT << "Tensione NON VERIFICATA" << kFine;
    setOk_ = false;
  }
  bool Presente(int g) const { return n_.Ast_flag[g] == 1; }
  void RifollamentoGruppo(int g);
  void TauGruppo(int g);

  Sessione& s_;
  const Nodo& n_;
  RisultatiVerifica& ris_;
  TestoRelazione& r_;
  TensioneLavoro tens_;
  int j_;
  double c_;
  bool setOk_ = true;
};

void SetTA::Intestazione() {
  r_ << kFine << "Combinazione di sollecitazioni agenti " << PulisciNome(n_.NomeSa[j_]) << kFine;
  r_ << std::string_view(kRigaTrattini, 80) << kFine;
  r_ << "Combinazione di carico tipo " << (n_.CasoCarico[j_] != 0 ? "II" : "I") << kFine;
  double sAdm = Arrot1(n_.Fz_s <= 40 ? n_.acciaio.SAmm * c_ : n_.acciaio.SAmm40 * c_);
  r_ << kT << "S_adm fazzoletto: " << kT << Numero{tens_(sAdm)} << kFine;
}

void SetTA::Diffusione() {
  for (int g = 1; g <= kMaxAste; ++g) {
    if (!Presente(g)) continue;
    r_ << kFine << kT << "ASTA " << LetteraAsta(g) << kT << PulisciSezione(n_.Aste[g].Nome) << kT
       << ModoAsta(n_, g) << kFine;
    r_ << kT << "N: " << Numero{s_.unita.FatForze * n_.SforzoNormale(g, j_)} << kFine;
    double& sig = ris_.SigDiff(g, j_);
    sig = Arrot1(sig);
    r_ << kT << "Diffusione sforzi, Sigma fazzoletto: " << Numero{tens_(sig)} << kFine;
    Esito(ris_.OkDiff(g, j_));
  }
}

void SetTA::SottoCorrente() {
  double& sig = ris_.SigSotto[j_];
  sig = Arrot1(sig);
  r_ << kFine << kT << "Sezione sotto corrente, Sigma fazzoletto: " << Numero{tens_(sig)} << kFine;
  Esito(ris_.OkSotto[j_]);
}

// The weld takes the allowable stress of thin plates whatever the gusset's thickness. Over the
// limit the set fails without a failure line of its own; a steel the weld rule does not know
// leaves the weld unchecked, and that is said and counted as a failure.
void SetTA::Saldatura(VerdettiRelazione& verdetti) {
  if (!Saldato(n_)) return;
  r_ << kFine << kT << "Saldatura corrente" << kFine;
  r_ << kT << "Nome" << kT << "S_prp" << kT << "Tau_pa" << kT << "Tau_pe" << kT << "% su adm"
     << kFine;
  std::int16_t ok = 1;
  EsitoSaldatura e = VerificaSaldatura(s_, j_, 4, 1, c_ * n_.acciaio.SAmm, ok);
  verdetti.RapportoSaldatura[j_] = e.Rapporto;
  verdetti.SaldaturaVerificabile[j_] = e.CoefficientiNoti;
  if (!e.CoefficientiNoti) {
    r_ << kT << "Saldatura non verificabile: acciaio " << n_.acciaio.Nome
       << " sconosciuto alla regola delle saldature" << kFine;
    Fallita();
    return;
  }
  if (ok == 0) setOk_ = false;
  r_ << kT << n_.Saldature(4, 1).Nome << kT << Numero{tens_(e.Sig)} << kT << Numero{tens_(e.TauPar)}
     << kT << Numero{tens_(e.TauPerp)} << kT << Numero{Arrot2(e.Rapporto)} << kFine;
}

// The greatest bearing stress, signs as they stand, from the first bolt's slot on.
void SetTA::RifollamentoGruppo(int g) {
  double massima = ris_.RifBull(g, 1, j_);
  for (int k = 2; k <= n_.nBull[g]; ++k) massima = MaxDi(massima, ris_.RifBull(g, k, j_));
  r_ << kT << "Tensione massima" << kT << Numero{tens_(massima)} << kFine;
  Esito(ris_.OkRif(g, j_));
}

void SetTA::Rifollamento() {
  r_ << kFine << kT << "Verifica a rifollamento" << kFine;
  for (int g = 1; g <= kMaxAste; ++g) {
    if (!Presente(g)) continue;
    r_ << kT << "Asta " << LetteraAsta(g) << kT << kFine;
    RifollamentoGruppo(g);
  }
  if (Saldato(n_)) return;
  r_ << kT << "Corrente" << kFine;
  RifollamentoGruppo(0);
}

void SetTA::TauGruppo(int g) {
  r_ << kT << "Num." << kT << "Tau" << kFine;
  for (int k = 1; k <= n_.nBull[g]; ++k) {
    double& tau = ris_.TauBull(g, k, j_);
    tau = Arrot1(tau);
    r_ << kT << Numero{static_cast<double>(k)} << kT << Numero{tens_(tau)} << kFine;
  }
  Esito(ris_.OkTau(g, j_));
}

// The limit is printed with the factor of the load case, though the check takes none.
void SetTA::Bulloni() {
  r_ << kFine << kT << "Verifica bulloni" << kFine;
  r_ << kT << kT << "T_adm viti" << kFine;
  r_ << kT << kT << kT << Numero{tens_(n_.vite.TauAmmViti * c_)} << kFine;
  for (int g = 1; g <= kMaxAste; ++g) {
    if (!Presente(g)) continue;
    r_ << kT << "ASTA " << LetteraAsta(g) << kFine;
    TauGruppo(g);
  }
  if (Saldato(n_)) return;
  r_ << kT << "Corrente " << kFine;
  TauGruppo(0);
}

void SetTA::Profili() {
  r_ << kFine << kT << "Verifica profili" << kFine;
  for (int g = 1; g <= kMaxAste; ++g) {
    if (!Presente(g)) continue;
    r_ << kT << "ASTA " << LetteraAsta(g) << kFine;
    double& sig = ris_.SigProf(g, j_);
    sig = Arrot1(sig);
    r_ << kT << "Tensione ideale" << kT << Numero{tens_(sig)} << kFine;
    Esito(ris_.OkProf(g, j_));
  }
  r_ << kT << "Corrente" << kFine;
  double& ideale = ris_.SigProf(0, j_);
  double tau = ris_.TauCorr[j_];
  ideale = Arrot1(std::sqrt(ideale * ideale + 3 * tau * tau));
  r_ << kT << "Tensione ideale" << kT << Numero{tens_(ideale)} << kFine;
  Esito(ris_.OkCorr[j_]);
}

bool SetTA::Verdetto() {
  r_ << kFine;
  r_ << (setOk_ ? "NODO VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI AGENTI "
                : "ATTENZIONE: NODO NON VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI AGENTI ")
     << PulisciNome(n_.NomeSa[j_]) << kFine;
  r_ << kFine;
  return setOk_;
}

}  // namespace

bool ScriviSetTA(Sessione& sessione, int j, TestoRelazione& r, VerdettiRelazione& verdetti) {
  SetTA set(sessione, j, r);
  set.Intestazione();
  set.Diffusione();
  set.SottoCorrente();
  set.Saldatura(verdetti);
  set.Rifollamento();
  set.Bulloni();
  set.Profili();
  return set.Verdetto();
}

}  // namespace qf17
