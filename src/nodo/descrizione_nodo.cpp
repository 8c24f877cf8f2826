#include "nodo/descrizione_nodo.h"

#include <sstream>

#include "librerie/numeri.h"
#include "nodo/avvio.h"
#include "nodo/nodo_default.h"
#include "nodo/sessione.h"

namespace qf17 {
namespace {

constexpr double kGradiPerRadiante = 180 / 3.14159265358979;

std::string N(double v) {
  return TestoNumero(v);
}

std::string TipoSezione(const Profilo& p) {
  switch (static_cast<TipoProfilo>(p.Tipo)) {
    case TipoProfilo::Canale:
      return "canale";
    case TipoProfilo::Angolare:
      return "angolare";
    case TipoProfilo::DoppioT:
      return "doppio T";
  }
  return "tipo " + std::to_string(p.Tipo);
}

void Sezione(std::ostringstream& o, const Profilo& p) {
  if (p.Nome.empty()) {
    o << "    (sezione assente dal profilario)\n";
    return;
  }
  o << "    " << TipoSezione(p) << ": h " << N(p.h) << "  b " << N(p.b) << "  a " << N(p.a)
    << "  e " << N(p.e) << "  r1 " << N(p.r1) << "  r2 " << N(p.r2) << " mm\n"
    << "    Area " << N(p.Area) << " mm2  dBarX " << N(p.dBarX) << "  dBarY " << N(p.dBarY)
    << " mm  I1 " << N(p.I1) << "  I2 " << N(p.I2) << "  I3 " << N(p.I3) << " mm4";
  if (p.Tipo == 0) o << "  eAnima " << N(p.eAnima) << "  eBordo " << N(p.eBordo) << " mm";
  o << "\n";
}

void ScriviAste(std::ostringstream& o, const Nodo& n) {
  for (int i = 1; i <= kMaxAste; ++i) {
    o << "Asta " << LetteraAsta(i) << ": " << n.Aste[i].Nome
      << (n.Ast_flag[i] == 1 ? "" : "  (assente)") << "  " << ParolaModo(n.Ast_modo[i]) << "  lato "
      << n.Ast_lato[i] << "  teta " << N(n.Ast_teta[i] * kGradiPerRadiante) << "°  coeff. Beff "
      << N(n.Ast_coeff[i]) << "  inserimento " << N(n.Ast_ins[i]) << " mm  Sld_L "
      << N(n.Saldature(i, 1).Sld_L) << " / " << N(n.Saldature(i, 2).Sld_L) << " mm\n";
    Sezione(o, n.Aste[i]);
  }
}

void ScriviBulloni(std::ostringstream& o, const Nodo& n) {
  const char* gruppi[] = {"corrente", "asta A", "asta B", "asta C"};
  for (int g = 0; g <= 3; ++g) {
    o << "Bulloni " << gruppi[g] << ": " << n.nBull[g] << "\n";
    for (int k = 1; k <= n.nBull[g]; ++k) {
      o << "    " << k << "  x " << N(n.xBull(g, k)) << "  y " << N(n.yBull(g, k)) << "  fi "
        << N(n.FiBull(g, k)) << "\n";
    }
  }
}

void ScriviMateriali(std::ostringstream& o, const Nodo& n) {
  const Acciaio& a = n.acciaio;
  o << "Acciaio: " << a.Nome << (a.Norma.empty() ? "" : "  (" + a.Norma + ")") << "\n"
    << "    SAmm " << N(a.SAmm) << "  SAmm40 " << N(a.SAmm40) << "  fy " << N(a.fy) << "  fy40 "
    << N(a.fy40) << "  ft " << N(a.ft) << "  ft40 " << N(a.ft40) << " daN/cm2  gM " << N(a.gM)
    << "  gMT " << N(a.gMT) << "\n";
  const Vite& v = n.vite;
  o << "Classe viti: " << v.Nome << "\n"
    << "    SAmm " << N(v.SAmmViti) << "  TauAmm " << N(v.TauAmmViti) << "  fy " << N(v.fyViti)
    << "  ft " << N(v.ftViti) << "  fd " << N(v.fdVit) << " daN/cm2  gM " << N(v.gMViti) << "\n";
  int e = n.Esposizione;
  o << "Esposizione: " << (e >= 0 && e <= 2 ? kVociEsposizione[e] : std::to_string(e)) << "\n";
}

void ScriviSollecitazioni(std::ostringstream& o, const Nodo& n) {
  o << "Sollecitazioni [daN]: " << n.nSollAg << "\n";
  for (int j = 1; j <= n.nSollAg; ++j) {
    o << "    " << j << "  A " << N(n.SforzoNormale(1, j)) << "  B " << N(n.SforzoNormale(2, j))
      << "  C " << N(n.SforzoNormale(3, j)) << (n.CasoCarico[j] == 1 ? "  C.c. II" : "") << "  "
      << n.NomeSa[j] << "\n";
  }
  if (n.NumNodi > 0) {
    o << "Nodi del modello:";
    for (int k = 1; k <= n.NumNodi; ++k) o << " " << n.NomeNodi[k];
    o << "\n";
  }
}

}  // namespace

std::string DescrizioneNodo(const Sessione& s) {
  const Nodo& n = s.nodo;
  std::ostringstream o;
  o << "Nodo: " << n.NomeFileNodo << "\n"
    << "Verifica: "
    << (n.TipoVer == 1 ? "stati limite NTC 2008 (SLU)" : "tensioni ammissibili CNR 10011/88 (TA)")
    << "\n"
    << "Corrente D: " << n.Corrente.Nome << "  teta " << N(n.Cor_teta * kGradiPerRadiante) << "°\n";
  Sezione(o, n.Corrente);
  ScriviAste(o, n);
  o << "Fazzoletto: a " << N(n.Fz_a) << "  b " << N(n.Fz_b) << "  c " << N(n.Fz_c) << "  d "
    << N(n.Fz_d) << "  e " << N(n.Fz_e) << "  f " << N(n.Fz_f) << "  g " << N(n.Fz_g) << "  h "
    << N(n.Fz_h) << "  spessore " << N(n.Fz_s) << " mm\n"
    << "Lato saldatura: " << N(n.Lato_Sald) << " mm\n";
  ScriviBulloni(o, n);
  ScriviMateriali(o, n);
  ScriviSollecitazioni(o, n);
  return o.str();
}

}  // namespace qf17
