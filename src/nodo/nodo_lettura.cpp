#include <array>
#include <string>

#include "librerie/numeri.h"
#include "nodo/chiavi.h"
#include "nodo/file_nodo.h"
#include "piattaforma/errori.h"
#include "piattaforma/file_testo.h"

namespace qf17 {
namespace {

// The value of one keyed line with the indices found behind its key.
struct Valore {
  const std::string& testo;
  const IndiciChiave& indici;

  // Index `posizione` (0-based) of the key, which must lie in primo..ultimo.
  int Indice(int posizione, int primo, int ultimo) const {
    int i = indici[static_cast<std::size_t>(posizione)];
    if (i < primo || i > ultimo) {
      throw ErroreFatale("indice " + std::to_string(posizione + 1) + " = " + std::to_string(i) +
                         " fuori dai limiti " + std::to_string(primo) + ".." +
                         std::to_string(ultimo));
    }
    return i;
  }
  int Asta() const { return Indice(0, 0, 6); }
  int Gruppo() const { return Indice(0, 1, 4) - 1; }
  int Bullone() const { return Indice(1, 0, kMaxBulloni); }
  double Numero() const { return NumeroIniziale(testo); }
  double Radianti() const { return GradiInRadianti(Numero()); }
  std::int16_t Intero() const { return InI16(Numero()); }
  // A field that names one of a few choices: any other value would be read by the engine as
  // one of them (a mode 7 counts as double for the forces and as single in the report).
  std::int16_t Scelta(int massimo) const {
    std::int16_t n = Intero();
    if (n < 0 || n > massimo) {
      throw ErroreFatale("valore " + testo + " non ammesso (0.." + std::to_string(massimo) + ")");
    }
    return n;
  }
  // A count sizes a table: beyond it the rest of the program could not hold the rows.
  std::int16_t Conteggio(int massimo) const {
    std::int16_t n = Intero();
    if (n < 0 || n > massimo) {
      throw ErroreFatale("valore " + std::to_string(n) + " fuori dai limiti 0.." +
                         std::to_string(massimo));
    }
    return n;
  }
};

using Gestore = void (*)(Nodo&, const Valore&);
struct Voce {
  std::string_view chiave;
  Gestore gestore;
};

// Exposure and method are strict integers: a text there is not a choice at all.
std::int16_t SceltaStretta(const Valore& v, int massimo) {
  std::int16_t e = InteroStretto(v.testo);
  if (e < 0 || e > massimo) {
    throw ErroreFatale("valore " + std::to_string(e) + " fuori dai limiti 0.." +
                       std::to_string(massimo));
  }
  return e;
}

void LeggiEsposizione(Nodo& n, const Valore& v) {
  n.Esposizione = SceltaStretta(v, 2);
}

void LeggiFlag(Nodo& n, const Valore& v) {
  int i = v.Asta();
  n.Ast_flag[i] = v.Scelta(1);
  // The second profile's slot always mirrors the member's own.
  if (i >= 1 && i <= kMaxAste) n.Ast_flag[i + 3] = n.Ast_flag[i];
}

// Tried in this order; the first key that a line holds takes the line, even when the key's text
// stands in the value of another key.
const std::array<Voce, 34> kVoci = {{
    {"Cor_Nome", [](Nodo& n, const Valore& v) { n.Corrente.Nome = v.testo; }},
    {"Cor_teta", [](Nodo& n, const Valore& v) { n.Cor_teta = v.Radianti(); }},
    {"Ast_nome", [](Nodo& n, const Valore& v) { n.Aste[v.Asta()].Nome = v.testo; }},
    {"Ast_flag", LeggiFlag},
    {"Ast_modo", [](Nodo& n, const Valore& v) { n.Ast_modo[v.Asta()] = v.Scelta(2); }},
    {"Ast_lato", [](Nodo& n, const Valore& v) { n.Ast_lato[v.Asta()] = v.Scelta(1); }},
    {"Ast_teta", [](Nodo& n, const Valore& v) { n.Ast_teta[v.Asta()] = v.Radianti(); }},
    {"Ast_ins", [](Nodo& n, const Valore& v) { n.Ast_ins[v.Indice(0, 0, 3)] = v.Numero(); }},
    {"Ast_coeff", [](Nodo& n, const Valore& v) { n.Ast_coeff[v.Asta()] = v.Numero(); }},
    {"Sld_L",
     [](Nodo& n, const Valore& v) { n.Saldature(v.Asta(), v.Indice(1, 0, 2)).Sld_L = v.Numero(); }},
    {"Lato_Sald", [](Nodo& n, const Valore& v) { n.Lato_Sald = v.Numero(); }},
    {"Fz_a", [](Nodo& n, const Valore& v) { n.Fz_a = v.Numero(); }},
    {"Fz_b", [](Nodo& n, const Valore& v) { n.Fz_b = v.Numero(); }},
    {"Fz_c", [](Nodo& n, const Valore& v) { n.Fz_c = v.Numero(); }},
    {"Fz_d", [](Nodo& n, const Valore& v) { n.Fz_d = v.Numero(); }},
    {"Fz_e", [](Nodo& n, const Valore& v) { n.Fz_e = v.Numero(); }},
    {"Fz_f", [](Nodo& n, const Valore& v) { n.Fz_f = v.Numero(); }},
    {"Fz_g", [](Nodo& n, const Valore& v) { n.Fz_g = v.Numero(); }},
    {"Fz_h", [](Nodo& n, const Valore& v) { n.Fz_h = v.Numero(); }},
    {"Fz_s", [](Nodo& n, const Valore& v) { n.Fz_s = v.Numero(); }},
    {"nBull", [](Nodo& n, const Valore& v) { n.nBull[v.Gruppo()] = v.Conteggio(kMaxBulloni); }},
    {"xbull", [](Nodo& n, const Valore& v) { n.xBull(v.Gruppo(), v.Bullone()) = v.Numero(); }},
    {"ybull", [](Nodo& n, const Valore& v) { n.yBull(v.Gruppo(), v.Bullone()) = v.Numero(); }},
    {"Fibull", [](Nodo& n, const Valore& v) { n.FiBull(v.Gruppo(), v.Bullone()) = v.Numero(); }},
    {"acciaio_Nome", [](Nodo& n, const Valore& v) { n.acciaio.Nome = v.testo; }},
    {"vite_Nome", [](Nodo& n, const Valore& v) { n.vite.Nome = v.testo; }},
    {"Esposizione", LeggiEsposizione},
    {"nSollAg",
     [](Nodo& n, const Valore& v) { n.nSollAg = v.Conteggio(kMaxSollecitazioni); }},
    {"SforzoNormale",
     [](Nodo& n, const Valore& v) {
       n.SforzoNormale(v.Indice(0, 0, 4), v.Indice(1, 0, kMaxSollecitazioni)) = v.Numero();
     }},
    {"CasoCarico",
     [](Nodo& n, const Valore& v) {
       n.CasoCarico[v.Indice(0, 0, kMaxSollecitazioni)] = v.Scelta(1);
     }},
    {"NomeSa",
     [](Nodo& n, const Valore& v) { n.NomeSa[v.Indice(0, 0, kMaxSollecitazioni)] = v.testo; }},
    {"NumNodi", [](Nodo& n, const Valore& v) { n.NumNodi = v.Conteggio(kMaxNodiImportati); }},
    {"NomeNodi",
     [](Nodo& n, const Valore& v) {
       n.NomeNodi[v.Indice(0, 0, kMaxNodiImportati)] = v.Intero();
     }},
    {"TipoVer", [](Nodo& n, const Valore& v) { n.TipoVer = SceltaStretta(v, 1); }},
}};

// The indices persist from line to line: a key written without them reuses the last ones read.
// False when the line holds none of the node's keys.
bool LeggiRiga(Nodo& nodo, std::string_view riga, IndiciChiave& indici) {
  for (const Voce& voce : kVoci) {
    std::string testo;
    try {
      if (!LeggiChiave(riga, voce.chiave, testo, indici)) continue;
      voce.gestore(nodo, Valore{testo, indici});
    } catch (const ErroreFatale& e) {
      throw ErroreFatale("chiave [" + std::string(voce.chiave) + "]: " + e.what());
    }
    return true;
  }
  return false;
}

}  // namespace

bool LeggiNodo(Nodo& nodo, const std::filesystem::path& file, Piattaforma& piattaforma) {
  auto righe = LeggiRighe(file);
  if (!righe) {
    piattaforma.Messaggio("File:\n" + file.string(), std::string(kTitoloLetturaFallita),
                          Icona::Critica, Pulsanti::Ok);
    return false;
  }
  IndiciChiave indici{};
  bool chiavi = false;
  for (std::size_t r = 1; r < righe->size(); ++r) {
    try {
      chiavi = LeggiRiga(nodo, (*righe)[r], indici) || chiavi;
    } catch (const ErroreFatale& e) {
      throw ErroreFatale("File " + file.string() + ", riga " + std::to_string(r + 1) + ", " +
                         e.what());
    }
  }
  // Missing keys keep the node's values, so a text without any key would pass for the node
  // already in memory.
  if (!chiavi) {
    throw ErroreFatale("File " + file.string() +
                       ": non contiene i dati di un nodo (nessuna chiave del file nodo)");
  }
  return true;
}

}  // namespace qf17
