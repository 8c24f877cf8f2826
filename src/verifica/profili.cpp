#include "verifica/profili.h"

#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "nodo/sessione.h"
#include "verifica/comuni.h"
#include "verifica/sezioni_cache.h"

namespace qf17 {
namespace {

using sezioni::SezioneNetta;

// A net area or second moment at or below this counts as none.
constexpr double kAreaMinima = 0.0001;

// One group's bolts in plain tables: bolt b + 1 at b.
struct BulloniGruppo {
  std::vector<double> x, d0;
  int n() const { return static_cast<int>(x.size()); }
  bool Finiti() const { return sezioni::TuttiFiniti(x) && sezioni::TuttiFiniti(d0); }
};

BulloniGruppo LeggiBulloni(const Sessione& s, int g) {
  const Nodo& nd = s.nodo;
  BulloniGruppo b;
  for (int k = 1; k <= nd.nBull[g]; ++k) {
    b.x.push_back(nd.xBull(g, k));
    b.d0.push_back(DiamForo(s.opzioni, nd.FiBull(g, k)));
  }
  return b;
}

void ImprontaBulloni(const Sessione& s, int g, sezioni::Impronta& imp) {
  const Nodo& nd = s.nodo;
  imp.Aggiungi(std::int64_t{nd.nBull[g]});
  imp.Aggiungi(s.opzioni[25]);
  for (int k = 1; k <= nd.nBull[g]; ++k) {
    imp.Aggiungi(nd.xBull(g, k));
    imp.Aggiungi(nd.FiBull(g, k));
  }
}

// Visits, by bolt number, the other bolts of the row of bolt k: those within the hole
// diameter of bolt k in x. The sorted order finds them when every number is finite; the
// visitor gets a superset and tests the row itself.
template <class Visita>
void AltriBulloniDellaFila(const BulloniGruppo& b, const sezioni::BulloniPerX* ordine, int k,
                           Visita&& visita) {
  auto prova = [&](int q) {
    if (q != k && b.d0[k] >= std::abs(b.x[k] - b.x[q])) visita(q);
  };
  if (ordine != nullptr) {
    ordine->VisitaVicini(b.x[k], b.d0[k], prova);
  } else {
    for (int q = 0; q < b.n(); ++q) prova(q);
  }
}

// Effective net area of a member in tension: a single angle or channel connected by one leg,
// or the pair of opposed ones, counts the outstanding leg in part; a double one counts twice.
double AreaEfficaceTrazione(double an, int m, double al2) {
  if (m == 0) return an + (3 * an / (3 * an + al2)) * al2;
  if (m == 1) return 2 * an;
  if (m == 2) return 2 * an + 2 * (5 * an / (5 * an + al2)) * al2;
  return an;
}

double AreaEfficaceAltro(double an, int m) {
  return m == 1 || m == 2 ? 2 * an : an;
}

// The net sections of member i through each of its bolts, for both signs of the force: only
// the connected part differs.
void SezioniAsta(const Sessione& s, int i, sezioni::NettaAsta& c) {
  const Nodo& nd = s.nodo;
  const Profilo& P = nd.Aste[i];
  const int m = nd.Ast_modo[i];
  c.impronta.Inizia();
  for (double v : {P.h, P.b, P.a, P.e, P.Area, P.dBarY, P.I2}) c.impronta.Aggiungi(v);
  c.impronta.Aggiungi(std::int64_t{m});
  ImprontaBulloni(s, i, c.impronta);
  if (!c.impronta.Cambiata()) return;

  c.sezioni.clear();
  const BulloniGruppo b = LeggiBulloni(s, i);
  if (b.n() == 0) return;
  const double al1Trazione = m != 1 ? P.h * P.a : P.Area;
  const double al2 = (P.b - P.e) * P.a;
  const double al1Altro = P.Area;
  std::optional<sezioni::BulloniPerX> ordine;
  if (b.Finiti()) ordine.emplace(b.x);
  for (int k = 0; k < b.n(); ++k) {
    const double d0 = b.d0[k];
    double anT = al1Trazione - d0 * P.a;
    double anA = al1Altro - d0 * P.a;
    double in = P.I2;
    if (m == 0) in = in - P.dBarY * P.dBarY * (d0 * P.a);
    AltriBulloniDellaFila(b, ordine ? &*ordine : nullptr, k, [&](int q) {
      anT = anT - b.d0[q] * P.a;
      anA = anA - b.d0[q] * P.a;
      if (m == 0) in = in - P.dBarY * P.dBarY * (b.d0[q] * P.a);
    });
    SezioneNetta sez;
    sez.In = in;
    sez.nullaTrazione = anT <= kAreaMinima || in <= kAreaMinima;
    sez.nullaAltro = anA <= kAreaMinima || in <= kAreaMinima;
    sez.AnTrazione = AreaEfficaceTrazione(anT, m, al2);
    sez.AnAltro = AreaEfficaceAltro(anA, m);
    c.sezioni.push_back(sez);
  }
}

// The chord's net sections; the chord of bolted types is a pair of profiles. 0 stands for a
// section with no net area.
void SezioniCorrente(const Sessione& s, sezioni::NettaCorrente& c) {
  const Profilo& C = s.nodo.Corrente;
  c.impronta.Inizia();
  c.impronta.Aggiungi(C.Area);
  c.impronta.Aggiungi(C.a);
  ImprontaBulloni(s, 0, c.impronta);
  if (!c.impronta.Cambiata()) return;

  c.An.clear();
  const BulloniGruppo b = LeggiBulloni(s, 0);
  if (b.n() == 0) return;
  std::optional<sezioni::BulloniPerX> ordine;
  if (b.Finiti()) ordine.emplace(b.x);
  for (int k = 0; k < b.n(); ++k) {
    double an = C.Area - C.a * b.d0[k];
    AltriBulloniDellaFila(b, ordine ? &*ordine : nullptr, k,
                          [&](int q) { an = an - C.a * b.d0[q]; });
    c.An.push_back(an <= kAreaMinima ? 0 : 2 * an);
  }
}

// Stress of a net section: a single profile lies off the gusset's plane and bends.
double Tensione(double N, double an, double in, const Profilo& P, int m) {
  if (m != 0) return std::abs(N / an);
  const double ecc = P.dBarY - P.a / 2;
  const double s1 = N / an + ((ecc * N) / in) * P.dBarY;
  const double s2 = N / an - ((ecc * N) / in) * (P.b - P.dBarY);
  return MaxDi(std::abs(s2), std::abs(s1));
}

void Avviso(Sessione& s, const std::string& testo) {
  s.piattaforma.Messaggio(testo, "ATTENZIONE", Icona::Attenzione, Pulsanti::Ok);
}

// Member i, whatever its presence flag: the bolts decide.
void Asta(Sessione& s, int i, int j, double N, sezioni::NettaAsta& c) {
  RisultatiVerifica& r = s.Risultati();
  r.SigProf(i, j) = 0;
  SezioniAsta(s, i, c);
  const Profilo& P = s.nodo.Aste[i];
  const int m = s.nodo.Ast_modo[i];
  const bool trazione = N > 0;
  const std::string avviso = "Area netta della sezione del profilo " + P.Nome + " nulla";
  double sig = 0;
  for (const SezioneNetta& sez : c.sezioni) {
    if (trazione ? sez.nullaTrazione : sez.nullaAltro) {
      Avviso(s, avviso);
      continue;
    }
    const double an = trazione ? sez.AnTrazione : sez.AnAltro;
    sig = Segno(N) * MaxDi(kF2 * Tensione(N, an, sez.In, P, m), std::abs(sig));
  }
  r.SigProf(i, j) = sig;
}

// The chord takes H as normal force and V as shear; the sign is that of member C's force,
// harmless since the check squares it.
void Corrente(Sessione& s, int j, double N, double H, double V, sezioni::NettaCorrente& c) {
  RisultatiVerifica& r = s.Risultati();
  r.SigProf(0, j) = 0;
  r.TauCorr[j] = 0;
  SezioniCorrente(s, c);
  const std::string avviso = "Area netta della sezione del corrente nulla";
  double sig = 0, tau = 0;
  for (double an : c.An) {
    if (an == 0) {
      Avviso(s, avviso);
      continue;
    }
    sig = Segno(N) * MaxDi(kF2 * std::abs(H / an), std::abs(sig));
    tau = MaxDi(kF2 * std::abs((3.0 / 2.0) * V / an), std::abs(tau));
  }
  r.SigProf(0, j) = sig;
  r.TauCorr[j] = tau;
}

}  // namespace

void VerificaProfili(Sessione& sessione, int j) {
  CacheSezioni cache;
  VerificaProfili(sessione, j, cache);
}

void VerificaProfili(Sessione& sessione, int j, CacheSezioni& cache) {
  const Nodo& nd = sessione.nodo;
  // The resultants again, over all three members whatever their presence flags.
  double H = 0, V = 0, N = 0;
  for (int i = 1; i <= kMaxAste; ++i) {
    N = nd.SforzoNormale(i, j);
    const double d = nd.Ast_teta[i] - nd.Cor_teta;
    V = V + N * (-nd.PosFazzoletto) * std::sin(d);
    H = H - N * std::cos(d);
    Asta(sessione, i, j, N, cache.aste[i]);
  }
  Corrente(sessione, j, N, H, V, cache.corrente);
}

}  // namespace qf17
