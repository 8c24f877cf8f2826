#include <string>

#include "librerie/numeri.h"
#include "nodo/chiavi.h"
#include "nodo/file_nodo.h"
#include "piattaforma/file_testo.h"

namespace qf17 {
namespace {

constexpr std::string_view kDescrizioneQF17 =
    "Verifica e disegno di un nodo di travatura reticolare bullonata";

// The file's content, line after line, in the family's encoding.
class Righe {
 public:
  void Testo(std::string_view valore, std::string_view chiave,
             std::initializer_list<int> indici = {}) {
    AggiungiRiga(contenuto_, ScriviChiave(valore, chiave, indici));
  }
  void Numero(double valore, std::string_view chiave, std::initializer_list<int> indici = {}) {
    Testo(TestoNumero(valore), chiave, indici);
  }
  void Intero(long long valore, std::string_view chiave, std::initializer_list<int> indici = {}) {
    Testo(TestoNumero(valore), chiave, indici);
  }
  void Riga(std::string_view testo) { AggiungiRiga(contenuto_, testo); }
  const std::string& Contenuto() const { return contenuto_; }

 private:
  std::string contenuto_;
};

void ScriviAste(const Nodo& n, Righe& r) {
  for (int i = 1; i <= kMaxAste; ++i) {
    r.Testo(n.Aste[i].Nome, "Ast_nome", {i});
    r.Intero(n.Ast_flag[i], "Ast_flag", {i});
    r.Intero(n.Ast_modo[i], "Ast_modo", {i});
    r.Intero(n.Ast_lato[i], "Ast_lato", {i});
    r.Numero(RadiantiInGradi(n.Ast_teta[i]), "Ast_teta", {i});
    r.Numero(n.Ast_coeff[i], "Ast_coeff", {i});
    r.Numero(n.Ast_ins[i], "Ast_ins", {i});
    r.Numero(n.Saldature(i, 1).Sld_L, "Sld_L", {i, 1});
    r.Numero(n.Saldature(i, 2).Sld_L, "Sld_L", {i, 2});
  }
}

void ScriviBulloni(const Nodo& n, Righe& r) {
  for (int g = 1; g <= 4; ++g) {
    r.Intero(n.nBull[g - 1], "nBull", {g});
    for (int k = 1; k <= n.nBull[g - 1]; ++k) {
      r.Numero(n.xBull(g - 1, k), "xBull", {g, k});
      r.Numero(n.yBull(g - 1, k), "yBull", {g, k});
      r.Numero(n.FiBull(g - 1, k), "FiBull", {g, k});
    }
  }
}

void ScriviFazzoletto(const Nodo& n, Righe& r) {
  r.Numero(n.Fz_a, "Fz_a");
  r.Numero(n.Fz_b, "Fz_b");
  r.Numero(n.Fz_c, "Fz_c");
  r.Numero(n.Fz_d, "Fz_d");
  r.Numero(n.Fz_e, "Fz_e");
  r.Numero(n.Fz_f, "Fz_f");
  r.Numero(n.Fz_g, "Fz_g");
  r.Numero(n.Fz_h, "Fz_h");
  r.Numero(n.Fz_s, "Fz_s");
}

// Forces are the stored daN, whatever unit the job shows them in.
void ScriviSollecitazioni(const Nodo& n, Righe& r) {
  r.Intero(n.nSollAg, "nSollAg");
  for (int j = 1; j <= n.nSollAg; ++j) {
    for (int i = 1; i <= kMaxAste; ++i) r.Numero(n.SforzoNormale(i, j), "SforzoNormale", {i, j});
    r.Intero(n.CasoCarico[j], "CasoCarico", {j});
    r.Testo(n.NomeSa[j], "NomeSa", {j});
  }
  r.Intero(n.NumNodi, "NumNodi");
  for (int k = 1; k <= n.NumNodi; ++k) r.Intero(n.NomeNodi[k], "NomeNodi", {k});
}

}  // namespace

std::string NomeFileCorrente(const Nodo& nodo) {
  return nodo.NomeFileNodo + "." + std::string(kEstensioneNodo);
}

bool ScriviNodo(const Nodo& nodo, const std::filesystem::path& file, Piattaforma& piattaforma,
                std::chrono::system_clock::time_point ora) {
  Righe r;
  r.Riga(TestataRelease(kDescrizioneFileNodo, kReleaseFileNodo));
  r.Testo(kDescrizioneQF17, "DescrizioneQF17");
  r.Testo(DataOraSalvataggio(ora), "dataSalvataggio");
  r.Testo(nodo.Corrente.Nome, "Cor_Nome");
  r.Numero(RadiantiInGradi(nodo.Cor_teta), "Cor_teta");
  ScriviAste(nodo, r);
  r.Numero(nodo.Lato_Sald, "Lato_Sald");
  ScriviBulloni(nodo, r);
  ScriviFazzoletto(nodo, r);
  r.Testo(nodo.acciaio.Nome, "acciaio_Nome");
  r.Testo(nodo.vite.Nome, "vite_Nome");
  r.Intero(nodo.Esposizione, "Esposizione");
  ScriviSollecitazioni(nodo, r);
  r.Intero(nodo.TipoVer, "TipoVer");

  if (!ScriviFileSicuro(file, r.Contenuto())) {
    piattaforma.Messaggio("File:\n" + file.string(), std::string(kTitoloSalvataggioFallito),
                          Icona::Critica, Pulsanti::Ok);
    return false;
  }
  return true;
}

}  // namespace qf17
