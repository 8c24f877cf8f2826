#include <cmath>
#include <cstdint>
#include <string>

#include "librerie/numeri.h"
#include "librerie/token.h"
#include "nodo/nodo_default.h"
#include "nodo/sessione.h"
#include "verifica/comuni.h"
#include "verifica/relazioni/relazione_slu_parti.h"
#include "verifica/relazioni/relazione_ta.h"
#include "verifica/saldatura.h"

namespace qf17 {
namespace {

using namespace colonne_slu;

constexpr char kRigaTrattini[] =
    "--------------------------------------------------------------------------------";
static_assert(sizeof kRigaTrattini == 81);

// The bolts' columns are fixed: number 3, forces 7, ratios 4, verdict 3.
constexpr int kNumBullone = 3;
constexpr int kForza = 7;
constexpr int kRapporto = 4;

bool Saldato(const Nodo& n) {
  return n.Corrente.Tipo == static_cast<std::int16_t>(TipoProfilo::DoppioT);
}

// The fillet weld's coefficients by the grade found anywhere in the steel's name, so that
// "S235JR" and "S 235 (FE 360)" both take those of grade 235. A name with none of the grades has
// no coefficients: the weld cannot be checked.
struct CoefficientiSaldaturaSLU {
  double b1 = 0;
  double b2 = 0;
  bool noti = false;
};

CoefficientiSaldaturaSLU CoefficientiSaldatura(const std::string& acciaio) {
  const std::string nome = Maiuscolo(acciaio);
  auto contiene = [&nome](const char* grado) { return nome.find(grado) != std::string::npos; };
  if (contiene("235")) return {0.85, 1.0, true};
  if (contiene("275") || contiene("355")) return {0.7, 0.85, true};
  if (contiene("420") || contiene("450") || contiene("460")) return {0.62, 0.75, true};
  return {};
}

// One load set being written. Each check prints its figures and its verdict "SI'" or "NO"; a
// "NO" takes the set's verdict down.
class SetSLU {
 public:
  SetSLU(Sessione& s, int j, TestoRelazione& r)
      : s_(s),
        n_(s.nodo),
        ris_(s.Risultati()),
        c_(r, s.piattaforma),
        j_(j),
        fatTens_(s.unita.FatTensioni),
        fd_((n_.Fz_s <= 40 ? n_.acciaio.fy : n_.acciaio.fy40) / n_.acciaio.gM),
        si_(FormatoColonna(std::string("SI'"), kEsito, true, "R", s.piattaforma)),
        no_(FormatoColonna(std::string("NO"), kEsito, true, "R", s.piattaforma)),
        trattino_(FormatoColonna(std::string("-"), kRapporto, true, "R", s.piattaforma)) {}

  void Intestazione();
  void Bulloni();
  void Diffusione();
  void SottoCorrente();
  void Saldatura(VerdettiRelazione& verdetti);
  void Profili();
  bool Verdetto();

 private:
  bool Presente(int g) const { return n_.Ast_flag[g] == 1; }
  void Esito(bool ok) {
    c_.r() << (ok ? si_ : no_) << kFine;
    if (!ok) setOk_ = false;
  }
  void IntestazioneTensioni(const char* etichetta);
  void RigaTensione(const std::string& etichetta, double tensione, std::int16_t ok);
  void GruppoBulloni(int g, const std::string& titolo);
  double Forza(double f) const { return ArrotondaPari(s_.unita.FatForze * f, s_.unita.DecForze); }

  Sessione& s_;
  const Nodo& n_;
  RisultatiVerifica& ris_;
  RigheColonne c_;
  int j_;
  double fatTens_;
  double fd_;  // design strength of the gusset by its thickness, daN/cm2
  bool setOk_ = true;
  // Cells that every bolt row repeats, made once.
  const std::string si_, no_, trattino_;
};

void SetSLU::Intestazione() {
  c_.r() << "Combinazione di sollecitazioni agenti " << PulisciNome(n_.NomeSa[j_]) << kFine;
  c_.r() << std::string_view(kRigaTrattini, 80) << kFine;
  for (int g = 1; g <= kMaxAste; ++g) {
    if (!Presente(g)) continue;
    c_.Testo("ASTA " + LetteraAsta(g), kEtichetta).Testo(PulisciSezione(n_.Aste[g].Nome), kNome);
    c_.Testo("N: " + TestoNumero(s_.unita.FatForze * n_.SforzoNormale(g, j_)), kNome).Fine();
  }
}

// The ratio is shown, and kept, to two decimals, and the verdict follows the shown figure: a
// ratio of 1.004 passes here whatever the bolt flags say.
void SetSLU::GruppoBulloni(int g, const std::string& titolo) {
  c_.r() << titolo << kFine;
  c_.Testo("Num", kNumBullone, "R");
  for (const char* t : {"Fv,Ed", "Fv,Rd", "Fb,Rd"}) c_.Testo(t, kForza, "R");
  c_.Testo("Co-1", kRapporto, "R").Testo("Co-2", kRapporto, "R").Testo("Ver", kEsito, "R");
  c_.Fine();
  for (int k = 1; k <= n_.nBull[g]; ++k) {
    double& rapporto = ris_.RapportoBull(g, k, j_);
    rapporto = ArrotondaPari(rapporto, 2);
    c_.Cella(static_cast<long long>(k), kNumBullone).Cella(Forza(ris_.FedBull(g, k, j_)), kForza);
    c_.Cella(Forza(ris_.FvRd(g, k)), kForza).Cella(Forza(ris_.FbRd(g, k)), kForza);
    c_.Cella(rapporto, kRapporto);
    c_.r() << trattino_;
    Esito(rapporto <= 1);
  }
}

void SetSLU::Bulloni() {
  c_.r() << kFine << "Verifica Bulloni" << kFine;
  c_.r() << "Co-1, Co-2: NTC 2008, 4.2.8.1.1 formula (4.2.65)" << kFine;
  for (int g = 1; g <= kMaxAste; ++g) {
    if (Presente(g)) GruppoBulloni(g, "Bulloni asta " + LetteraAsta(g));
  }
  if (!Saldato(n_)) GruppoBulloni(0, "Bulloni corrente");
}

void SetSLU::IntestazioneTensioni(const char* etichetta) {
  if (etichetta != nullptr) c_.Testo(etichetta, kEtichetta);
  c_.Testo("Sig", kTensione, "R").Testo("fd", kTensione, "R").Testo("Ver", kEsito, "R").Fine();
}

// A stress against the gusset's design strength, both in the job's unit as they stand.
void SetSLU::RigaTensione(const std::string& etichetta, double tensione, std::int16_t ok) {
  if (!etichetta.empty()) c_.Testo(etichetta, kEtichetta);
  c_.Cella(fatTens_ * tensione, kTensione).Cella(fatTens_ * fd_, kTensione);
  Esito(ok != 0);
}

void SetSLU::Diffusione() {
  c_.r() << kFine << "Diffusione sforzi nel fazzoletto:" << kFine;
  IntestazioneTensioni("ASTA");
  for (int g = 1; g <= kMaxAste; ++g) {
    if (Presente(g))
      RigaTensione("ASTA " + LetteraAsta(g), ris_.SigDiff(g, j_), ris_.OkDiff(g, j_));
  }
}

void SetSLU::SottoCorrente() {
  c_.r() << kFine << "Sezione sotto corrente:" << kFine;
  IntestazioneTensioni(nullptr);
  RigaTensione("", ris_.SigSotto[j_], ris_.OkSotto[j_]);
}

// The equivalent stresses against the steel's yield strength by the weld coefficients, whatever
// the gusset's thickness. A steel of no known grade leaves the weld unchecked: the line says so
// and the set fails.
void SetSLU::Saldatura(VerdettiRelazione& verdetti) {
  if (!Saldato(n_)) return;
  c_.r() << kFine << "Saldatura corrente" << kFine;
  c_.r() << "SEq-1, SLim-1: NTC 2008, 4.2.8.2.4 formula (4.2.78)" << kFine;
  c_.r() << "SEq-2, SLim-2: NTC 2008, 4.2.8.2.4 formula (4.2.79)" << kFine;
  TensioniEqSaldatura(s_, j_, 4, 1);
  const qf17::Saldatura& w = n_.Saldature(4, 1);
  c_.Testo("Nome", kNome);
  for (const char* t : {"S_prp", "Tau_pa", "Tau_pe", "SEq-1", "SEq-2", "SLim-1", "SLim-2"}) {
    c_.Testo(t, kTensione, "R");
  }
  c_.Testo("Ver", kEsito, "R").Fine();
  c_.Testo(w.Nome, kNome);
  for (double t : {w.SigPerp[j_], w.TauPar[j_], w.TauPerp[j_], w.SEq1[j_], w.SEq2[j_]}) {
    c_.Cella(fatTens_ * t, kTensione);
  }
  const CoefficientiSaldaturaSLU coeff = CoefficientiSaldatura(n_.acciaio.Nome);
  verdetti.SaldaturaVerificabile[j_] = coeff.noti;
  if (!coeff.noti) {
    c_.Testo("-", kTensione, "R").Testo("-", kTensione, "R").Testo("NO", kEsito, "R");
    c_.r() << " Saldatura non verificabile: acciaio " << n_.acciaio.Nome
           << " sconosciuto alla regola delle saldature";
    c_.Fine();
    setOk_ = false;
    return;
  }
  const double lim1 = coeff.b1 * n_.acciaio.fy;
  const double lim2 = coeff.b2 * n_.acciaio.fy;
  if (lim1 > 0 && lim2 > 0)
    verdetti.RapportoSaldatura[j_] = MaxDi(w.SEq1[j_] / lim1, w.SEq2[j_] / lim2);
  c_.Cella(fatTens_ * lim1, kTensione).Cella(fatTens_ * lim2, kTensione);
  Esito(!(w.SEq1[j_] > lim1 || w.SEq2[j_] > lim2));
}

// The members' stress as it stands, the chord's the ideal one of its net section; neither is
// stored back.
void SetSLU::Profili() {
  c_.r() << kFine << "Verifica profili" << kFine;
  IntestazioneTensioni("Asta");
  for (int g = 1; g <= kMaxAste; ++g) {
    if (Presente(g)) {
      RigaTensione("ASTA " + LetteraAsta(g), std::abs(ris_.SigProf(g, j_)), ris_.OkProf(g, j_));
    }
  }
  const double sig = ris_.SigProf(0, j_), tau = ris_.TauCorr[j_];
  RigaTensione("CORR.", std::sqrt(sig * sig + 3 * tau * tau), ris_.OkCorr[j_]);
}

bool SetSLU::Verdetto() {
  c_.r() << kFine;
  c_.r() << (setOk_ ? "NODO VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI AGENTI "
                    : "ATTENZIONE: NODO NON VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI "
                      "AGENTI ")
         << PulisciNome(n_.NomeSa[j_]) << kFine;
  c_.r() << kFine;
  return setOk_;
}

}  // namespace

// Between the checks of a set an empty line, as in the allowable-stress report.
bool ScriviSetSLU(Sessione& sessione, int j, TestoRelazione& r, VerdettiRelazione& verdetti) {
  SetSLU set(sessione, j, r);
  set.Intestazione();
  set.Bulloni();
  set.Diffusione();
  set.SottoCorrente();
  set.Saldatura(verdetti);
  set.Profili();
  return set.Verdetto();
}

}  // namespace qf17
