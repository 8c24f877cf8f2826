#include <deque>
#include <string>
#include <vector>

#include "librerie/numeri.h"
#include "librerie/token.h"
#include "nodo/file_nodo.h"
#include "piattaforma/errori.h"
#include "piattaforma/file_testo.h"

// The older positional node files: one item after the other, separated by commas or line ends,
// strings possibly in double quotes. Two generations: the second marks line 1 with "VERNTC" and
// stores the exposure; the first stores two strengths beside each material name.
namespace qf17 {
namespace {

// Any failure of the positional reader: it ends the reading without a word.
struct LetturaFallita {};

// Splits a line into its items. A quoted item runs to the next quote; what follows it up to
// the comma is dropped.
void AggiungiVoci(std::string_view riga, std::deque<std::string>& voci) {
  if (Rifila(riga).empty()) return;
  std::size_t i = 0;
  while (true) {
    while (i < riga.size() && (riga[i] == ' ' || riga[i] == '\t')) ++i;
    std::size_t virgola;
    if (i < riga.size() && riga[i] == '"') {
      std::size_t chiusa = riga.find('"', i + 1);
      std::size_t fine = chiusa == std::string_view::npos ? riga.size() : chiusa;
      voci.emplace_back(riga.substr(i + 1, fine - i - 1));
      virgola = riga.find(',', fine);
    } else {
      virgola = riga.find(',', i);
      std::size_t fine = virgola == std::string_view::npos ? riga.size() : virgola;
      voci.push_back(Rifila(riga.substr(i, fine - i)));
    }
    if (virgola == std::string_view::npos) return;
    i = virgola + 1;
  }
}

class Voci {
 public:
  Voci(const std::vector<std::string>& righe, std::size_t prima) {
    for (std::size_t r = prima; r < righe.size(); ++r) AggiungiVoci(righe[r], voci_);
  }
  std::string Testo() {
    if (voci_.empty()) throw LetturaFallita{};
    std::string v = std::move(voci_.front());
    voci_.pop_front();
    return v;
  }
  double Numero() { return NumeroIniziale(Testo()); }
  std::int16_t Intero() { return InI16(Numero()); }
  std::int16_t Compreso(int primo, int ultimo) {
    std::int16_t n = Intero();
    if (n < primo || n > ultimo) throw LetturaFallita{};
    return n;
  }
  double Gradi() { return GradiInRadianti(Intero()); }

 private:
  std::deque<std::string> voci_;
};

void LeggiAste(Nodo& n, Voci& v) {
  for (int i = 1; i <= kMaxAste; ++i) {
    n.Aste[i].Nome = v.Testo();
    n.Ast_flag[i] = v.Compreso(0, 1);
    n.Ast_flag[i + 3] = n.Ast_flag[i];
    n.Aste[i].Tipo = v.Compreso(0, 2);
    n.Ast_modo[i] = v.Compreso(0, 2);
    n.Ast_lato[i] = v.Compreso(0, 1);
    n.Ast_ins[i] = v.Numero();
    n.Ast_teta[i] = v.Gradi();
    n.Saldature(i, 1).Sld_L = v.Numero();
    n.Saldature(i, 2).Sld_L = v.Numero();
  }
}

void LeggiFazzoletto(Nodo& n, Voci& v) {
  for (double* campo :
       {&n.Fz_a, &n.Fz_b, &n.Fz_c, &n.Fz_d, &n.Fz_e, &n.Fz_f, &n.Fz_g, &n.Fz_h, &n.Fz_s}) {
    *campo = v.Numero();
  }
  v.Intero();  // a datum of the old program that the node no longer has
}

void LeggiBulloni(Nodo& n, Voci& v) {
  for (int g = 0; g <= 3; ++g) {
    n.nBull[g] = v.Compreso(0, kMaxBulloni);
    for (int k = 1; k <= n.nBull[g]; ++k) {
      n.xBull(g, k) = v.Numero();
      n.yBull(g, k) = v.Numero();
      n.FiBull(g, k) = v.Numero();
    }
  }
}

void LeggiMateriali(Nodo& n, Voci& v, bool secondaGenerazione) {
  if (secondaGenerazione) {
    n.acciaio.Nome = v.Testo();
    n.vite.Nome = v.Testo();
    n.Esposizione = static_cast<std::int16_t>(v.Compreso(1, 3) - 1);
    return;
  }
  // The first generation carried its own strengths; the load takes the tables' by name after.
  n.acciaio.Nome = v.Testo();
  n.acciaio.SAmm = v.Numero();
  n.acciaio.SAmm40 = v.Numero();
  n.vite.Nome = v.Testo();
  n.vite.SAmmViti = v.Numero();
  n.vite.TauAmmViti = v.Numero();
}

void LeggiSollecitazioni(Nodo& n, Voci& v) {
  n.nSollAg = v.Compreso(0, kMaxSollecitazioni);
  for (int j = 1; j <= n.nSollAg; ++j) {
    for (int i = 1; i <= kMaxAste; ++i) n.SforzoNormale(i, j) = v.Numero();
    n.CasoCarico[j] = v.Compreso(0, 1);
    n.NomeSa[j] = v.Testo();
  }
  n.NumNodi = v.Compreso(0, kMaxNodiImportati);
  for (int k = 1; k <= n.NumNodi; ++k) n.NomeNodi[k] = v.Intero();
}

}  // namespace

bool LeggiNodoVecchio(Nodo& nodo, const std::filesystem::path& file) {
  auto righe = LeggiRighe(file);
  if (!righe || righe->empty()) return false;
  try {
    const bool seconda = (*righe)[0].find("VERNTC") != std::string::npos;
    Voci v(*righe, 1);
    nodo.Corrente.Nome = seconda ? v.Testo() : Rifila((*righe)[0]);
    nodo.Cor_teta = v.Gradi();
    nodo.Lato_Sald = v.Intero();
    LeggiAste(nodo, v);
    LeggiFazzoletto(nodo, v);
    LeggiBulloni(nodo, v);
    LeggiMateriali(nodo, v, seconda);
    LeggiSollecitazioni(nodo, v);
    for (int i = 1; i <= kMaxAste; ++i) nodo.Ast_coeff[i] = v.Numero();
    // The method is the index of an option pair: only 0 and 1 exist.
    nodo.TipoVer = v.Compreso(0, 1);
  } catch (const LetturaFallita&) {
    return false;
  } catch (const ErroreFatale&) {
    return false;
  }
  return true;
}

}  // namespace qf17
