#include "verifica/verifica.h"

#include <cmath>
#include <optional>
#include <string>

#include "nodo/nodo_default.h"
#include "nodo/sessione.h"
#include "verifica/bulloni_slu.h"
#include "verifica/bulloni_ta.h"
#include "verifica/comuni.h"
#include "verifica/fazzoletto.h"
#include "verifica/geometria.h"
#include "verifica/profili.h"
#include "verifica/relazioni/relazione_slu.h"
#include "verifica/relazioni/relazione_ta.h"
#include "verifica/risultati_finiti.h"
#include "verifica/sezioni_cache.h"

namespace qf17 {
namespace {

void Avviso(Sessione& s, const std::string& testo) {
  s.piattaforma.Messaggio(testo, "ATTENZIONE", Icona::Attenzione, Pulsanti::Ok);
}

// A gusset without thickness or without length along the chord has no section: every stress
// would be a division by zero, so the run stops before any figure is made.
bool FazzolettoValido(Sessione& s) {
  const Nodo& n = s.nodo;
  if (!(n.Fz_s > 0) || !std::isfinite(n.Fz_s)) {
    Avviso(s, "Spessore del fazzoletto nullo: impossibile procedere alla verifica");
    return false;
  }
  double lf = n.Fz_a + n.Fz_b + n.Fz_c + n.Fz_d;
  if (!(std::abs(lf) > 0.0001) || !std::isfinite(lf)) {
    Avviso(s,
           "Lunghezza del fazzoletto lungo il corrente nulla: impossibile procedere alla "
           "verifica");
    return false;
  }
  return true;
}

// The limit-state figures divide by the partial factors and by the steel's ft: a zero there
// (a materials row written so) would print endless resistances.
bool DivisoriMaterialiValidi(Sessione& s) {
  const Nodo& n = s.nodo;
  struct Divisore {
    const char* nome;
    const std::string& materiale;
    double valore;
  };
  const Divisore divisori[] = {
      {"gM dell'acciaio ", n.acciaio.Nome, n.acciaio.gM},
      {"ft dell'acciaio ", n.acciaio.Nome, n.acciaio.ft},
      {"gM della classe di viti ", n.vite.Nome, n.vite.gMViti},
  };
  for (const Divisore& d : divisori) {
    if (d.valore > 0 && std::isfinite(d.valore)) continue;
    Avviso(s, "Valore " + std::string(d.nome) + d.materiale +
                  " nullo nei materiali: impossibile procedere alla verifica");
    return false;
  }
  return true;
}

// Data that would turn a stress into a division by zero: a missing section, a weld without
// leg, a bolt without diameter. The family's program would print infinities; this one stops.
bool DatiValidi(Sessione& s) {
  const Nodo& n = s.nodo;
  auto sezione = [&](const Profilo& p, const std::string& chi) {
    if (p.Area > 0 && p.a > 0 && p.h > 0) return true;
    Avviso(s, "Sezione " + (p.Nome.empty() ? std::string("mancante") : p.Nome) + " " + chi +
                  " senza dati nel profilario: impossibile procedere alla verifica");
    return false;
  };
  if (!sezione(n.Corrente, "del corrente")) return false;
  for (int i = 1; i <= kMaxAste; ++i) {
    if (n.Ast_flag[i] == 1 && !sezione(n.Aste[i], "dell'asta " + LetteraAsta(i))) return false;
  }
  if (n.Corrente.Tipo == 2 && !(n.Lato_Sald > 0)) {
    Avviso(s, "Lato della saldatura nullo: impossibile procedere alla verifica");
    return false;
  }
  if (n.TipoVer == 1 && !DivisoriMaterialiValidi(s)) return false;
  const char* gruppi[] = {"del corrente", "dell'asta A", "dell'asta B", "dell'asta C"};
  for (int g = 0; g <= 3; ++g) {
    for (int k = 1; k <= n.nBull[g]; ++k) {
      if (n.FiBull(g, k) > 0) continue;
      Avviso(s, "Bullone " + std::to_string(k) + " " + gruppi[g] +
                    " senza diametro: impossibile procedere alla verifica");
      return false;
    }
  }
  return true;
}

// The last guard before the report: no figure of the run may be infinite or not a number.
bool RisultatiFiniti(Sessione& s) {
  const std::string nome = PrimoRisultatoNonFinito(s.nodo, s.Risultati(), s.nodo.TipoVer == 1);
  if (nome.empty()) return true;
  Avviso(s, "Risultato non numerico (" + nome +
                "): controllare i dati del nodo e dei materiali. Relazione non scritta");
  return false;
}

// The member's angle reduced to a half turn equals the chord's: no node can be formed.
bool ParallelaAlCorrente(const Nodo& n, int i) {
  double a = n.Cor_teta - std::floor(n.Cor_teta / kPiGreco) * kPiGreco;
  double b = n.Ast_teta[i] - std::floor(n.Ast_teta[i] / kPiGreco) * kPiGreco;
  return std::abs(b - a) < 0.0001;
}

bool StatiLimite(const Nodo& n) {
  return n.TipoVer == 1;
}

// The force on a bolt group by the node's method; under limit states also each bolt's ratio
// (the chord's only when it is bolted).
void ForzeGruppo(Sessione& s, int g, int j, double Fx, double Fy, double xP) {
  const Nodo& n = s.nodo;
  if (!StatiLimite(n)) {
    BulloniTA(s, g, j, Fx, Fy, xP);
    return;
  }
  ForzeBulloniSLU(s, g, j, Fx, Fy, xP);
  if (g == 1 && n.Corrente.Tipo == 2) return;
  for (int k = 1; k <= n.nBull[g - 1]; ++k) RapportoBullone(s, g - 1, k, j);
}

// Under limit states the layout of each bolted group is checked, and its resistances found,
// once per run; a Cancel here counts only through the load sets that follow.
void BulloniPerIlRun(Sessione& s) {
  const Nodo& n = s.nodo;
  for (int g = 1; g <= 4; ++g) {
    bool gruppo = g == 1 ? n.Corrente.Tipo != 2 : n.Ast_flag[g - 1] == 1;
    if (!gruppo) continue;
    ControlliBulloniSLU(s, g);
    ResistenzeBulloniSLU(s, g);
  }
}

// Members of set j: bolts of each present member, and the resultants on the chord.
// False when the run must end (a member parallel to the chord, or Interrompi).
bool Aste(Sessione& s, int j, FineVerifica& fine) {
  Nodo& n = s.nodo;
  RisultatiVerifica& r = s.Risultati();
  for (int i = 1; i <= kMaxAste; ++i) {
    if (n.Ast_flag[i] != 1) continue;
    if (ParallelaAlCorrente(n, i)) {
      Avviso(s, "Asta " + LetteraAsta(i) +
                    " paralella al corrente: impossibile procedere alla verifica");
      fine = FineVerifica::Messaggio;
      return false;
    }
    // Each profile of a double or opposed member carries its own row of the group.
    double N = n.SforzoNormale(i, j);
    if (n.Ast_modo[i] != 0) N /= 2;
    ForzeGruppo(s, i + 1, j, N, 0, 0);
    if (r.Interrompi == 1) {
      fine = FineVerifica::Interrotta;
      return false;
    }
    N = n.SforzoNormale(i, j);
    double d = n.Ast_teta[i] - n.Cor_teta;
    r.SommaV = r.SommaV + N * (-n.PosFazzoletto) * std::sin(d);
    r.SommaH = r.SommaH - N * std::cos(d);
  }
  return true;
}

// Section of the gusset under the chord, a rectangle Lf by Fz_s; and the chord weld.
void SezioneSottoCorrente(Sessione& s, int j) {
  Nodo& n = s.nodo;
  RisultatiVerifica& r = s.Risultati();
  if (n.Corrente.Tipo == 1) {
    r.MomF = -r.SommaH * (n.Corrente.h - n.Corrente.dBarX) - r.SommaV * r.EccF;
  } else {
    r.MomF = (-r.SommaH * n.Corrente.h) / 2 - r.SommaV * r.EccF;
  }
  const double lf = r.Lf, sp = n.Fz_s;
  double s1 = r.SommaV / lf / sp - (r.MomF / (lf * lf) / sp) * 6;
  double s2 = r.SommaV / lf / sp + (r.MomF / (lf * lf) / sp) * 6;
  double sigma = MaxAss(s2, s1);
  double tau = (3.0 / 2.0) * r.SommaH / lf / sp;
  r.SigSotto[j] = kF2 * std::sqrt(sigma * sigma + 3 * tau * tau);

  if (n.Corrente.Tipo != 2) return;
  // Two weld lines, each taking half of the forces.
  const double a = n.Lato_Sald, r2 = std::sqrt(2.0);
  Saldatura& sald = n.Saldature(4, 1);
  sald.TauPar[j] = kF2 * ((r.SommaH / 2) / lf / a) * r2;
  double w1 = ((r.SommaV / 2) / lf / a) * r2 - (((r.MomF / 2) / (lf * lf) / a) * r2) * 6;
  double w2 = ((r.SommaV / 2) / lf / a) * r2 + (((r.MomF / 2) / (lf * lf) / a) * r2) * 6;
  sald.SigPerp[j] = kF2 * MaxAss(w2, w1);
}

// One load set; false when the run must end.
bool SetDiCarico(Sessione& s, int j, CacheSezioni& sezioni, FineVerifica& fine) {
  Nodo& n = s.nodo;
  RisultatiVerifica& r = s.Risultati();
  r.SommaH = 0;
  r.SommaV = 0;
  r.MomF = 0;
  if (j > 1) r.ControlloGeometricoTA = 0;
  if (!Aste(s, j, fine)) return false;
  SezioneSottoCorrente(s, j);
  // The chord takes half of the resultants, applied where the node's point lies on the gusset.
  ForzeGruppo(s, 1, j, r.SommaH / 2, r.SommaV / 2, n.Fz_a + n.Fz_b);
  if (r.Interrompi == 1) {
    fine = FineVerifica::Interrotta;
    return false;
  }
  VerificaProfili(s, j, sezioni);
  VerificaFazzoletto(s, j, sezioni);
  return true;
}

}  // namespace

void AvvisoBulloniMancanti(Sessione& s) {
  const Nodo& n = s.nodo;
  std::string frammenti[4] = {" sul corrente, ", " sull'asta A, ", " sull'asta B, ",
                              " sull'asta C "};
  if (n.nBull[0] > 0 || n.Corrente.Tipo == 2) frammenti[0].clear();
  for (int i = 1; i <= kMaxAste; ++i) {
    if (n.nBull[i] > 0 || n.Ast_flag[i] == 0) {
      frammenti[i].clear();
      // Only the blank goes: the comma stays.
      if (!frammenti[i - 1].empty()) frammenti[i - 1].pop_back();
    }
  }
  std::string testo;
  for (const auto& f : frammenti) testo += f;
  if (testo.empty()) return;
  s.piattaforma.Messaggio("Nessun bullone definito" + testo, "ATTENZIONE", Icona::Attenzione,
                          Pulsanti::Ok);
}

EsitoVerifica EseguiVerifica(Sessione& s,
                             const std::function<void(const Sessione&)>& primaDellaRelazione) {
  EsitoVerifica esito;
  // Every box of the run goes into the report too; a caller may have opened the collection
  // already, to keep the boxes that come before the run.
  std::optional<RaccoltaMessaggi> raccolta;
  if (s.piattaforma.Raccolta() == nullptr) raccolta.emplace(s.piattaforma);
  s.piattaforma.Occupato(true);
  struct Ripristino {
    Piattaforma& p;
    ~Ripristino() { p.Occupato(false); }
  } ripristino{s.piattaforma};

  if (!FazzolettoValido(s) || !DatiValidi(s)) return esito;
  GeometriaNodo(s);
  if (!GeometriaFinita(s.nodo, s.geometria)) {
    Avviso(s,
           "Geometria del nodo non calcolabile: controllare le dimensioni del fazzoletto, "
           "degli angoli e delle aste");
    return esito;
  }
  Nodo& n = s.nodo;
  RisultatiVerifica& r = s.Risultati();
  r.Lf = n.Fz_a + n.Fz_b + n.Fz_c + n.Fz_d;
  r.EccF = -n.Fz_a - n.Fz_b + r.Lf / 2;

  if (StatiLimite(n)) BulloniPerIlRun(s);
  // What the net and diffusion sections owe to the bolts alone is worked out once for all sets.
  CacheSezioni sezioni;
  for (int j = 1; j <= n.nSollAg; ++j) {
    if (!SetDiCarico(s, j, sezioni, esito.fine)) return esito;
  }
  const bool slu = StatiLimite(n);
  if (slu) {
    EsitoSLU(s);
  } else {
    EsitoTA(s);
  }
  if (!RisultatiFiniti(s)) return esito;
  if (primaDellaRelazione) primaDellaRelazione(s);
  if (!(slu ? RelazioneSLU(s, esito.verdetti) : RelazioneTA(s, esito.verdetti))) return esito;
  esito.fine = FineVerifica::Relazione;
  esito.relazione = NomeRelazione(n, slu ? "SLU" : "TA");
  esito.nodoVerificato = !esito.verdetti.NodoKo;
  return esito;
}

}  // namespace qf17
