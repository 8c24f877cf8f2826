#include <string>
#include <vector>

#include "librerie/materiali.h"
#include "librerie/numeri.h"
#include "librerie/token.h"
#include "piattaforma/errori.h"
#include "piattaforma/file_testo.h"

// The reader of MaterialiNTC08.tx1: titled tables among free lines.
namespace qf17 {
namespace {

constexpr std::string_view kApertiTitolo = "[ACCIAIO_DA_CARPENTERIA_SEZIONI_APERTE]";
constexpr std::string_view kChiusiTitolo = "[ACCIAIO_DA_CARPENTERIA_SEZIONI_CHIUSE]";
constexpr std::string_view kVitiTitolo = "[VITI]";
constexpr std::string_view kCalcestruzziTitolo = "[CALCESTRUZZI]";
constexpr std::string_view kAcciaiCATitolo = "[ACCIAIO_DA_CA]";

// Any malformed table: the whole file is not valid. `motivo` says where, when it is known.
struct FileNonValido {
  std::string motivo;
};

// Walks the lines; a table that ends before its rows makes the file not valid.
class Righe {
 public:
  explicit Righe(const std::vector<std::string>& righe) : righe_(righe) {}
  bool Finite() const { return prossima_ >= righe_.size(); }
  const std::string& Prossima() {
    if (Finite()) throw FileNonValido{};
    return righe_[prossima_++];
  }
  // A reader of the same lines from where this one stands, to look ahead.
  Righe Sbircia() const { return *this; }
  // 1-based number of the line read last.
  std::size_t Numero() const { return prossima_; }

 private:
  const std::vector<std::string>& righe_;
  std::size_t prossima_ = 0;
};

// `quanti` blank-separated numbers of the next line, which must hold at least `minimi` of them
// (the ones it lacks beyond those read as 0): a missing factor would read as 0 and every
// resistance divided by it would be endless.
std::vector<double> Numeri(Righe& righe, std::size_t quanti, const std::string& nome,
                           std::size_t minimi) {
  std::string riga = righe.Prossima();
  const std::size_t campi = static_cast<std::size_t>(ContaToken(riga));
  if (campi < minimi) {
    throw FileNonValido{"riga " + std::to_string(righe.Numero()) + " (" + nome + "): " +
                        std::to_string(campi) + " valori invece di " + std::to_string(quanti)};
  }
  std::vector<double> v(quanti, 0.0);
  for (double& x : v) x = NumeroIniziale(ProssimoToken(riga));
  return v;
}

int Conteggio(Righe& righe) {
  std::string riga = righe.Prossima();
  double n = NumeroIniziale(ProssimoToken(riga));
  if (n < 0 || n > kMaxMateriali) throw FileNonValido{};
  return InI16(n);
}

void LeggiAcciai(Righe& righe, Tabella<Acciaio, 0, kMaxMateriali>& tabella, int& numero) {
  numero = Conteggio(righe);
  for (int i = 1; i <= numero; ++i) {
    Acciaio a;
    a.Nome = Rifila(righe.Prossima());
    a.Norma = Rifila(righe.Prossima());
    auto v = Numeri(righe, 8, a.Nome, 8);
    a.SAmm = v[0];
    a.SAmm40 = v[1];
    a.fy = v[2];
    a.ft = v[3];
    a.fy40 = v[4];
    a.ft40 = v[5];
    a.gM = v[6];
    a.gMT = v[7];
    tabella[i] = a;
  }
}

void LeggiViti(Righe& righe, Materiali& m) {
  m.NumViti = Conteggio(righe);
  for (int i = 1; i <= m.NumViti; ++i) {
    Vite v;
    v.Nome = Rifila(righe.Prossima());
    auto n = Numeri(righe, 6, v.Nome, 6);
    v.SAmmViti = n[0];
    v.TauAmmViti = n[1];
    v.fyViti = n[2];
    v.ftViti = n[3];
    v.fdVit = n[4];
    v.gMViti = n[5];
    m.Viti[i] = v;
  }
}

void LeggiCalcestruzzi(Righe& righe, Materiali& m) {
  m.NumCalcestruzzi = Conteggio(righe);
  for (int i = 1; i <= m.NumCalcestruzzi; ++i) {
    Calcestruzzo c;
    c.Nome = Rifila(righe.Prossima());
    auto n = Numeri(righe, 2, c.Nome, 2);
    c.Rck = n[0];
    c.Valore2 = n[1];
    m.Calcestruzzi[i] = c;
  }
}

// Five fields or more: six values. Fewer: the older four, without the second value and the
// density, which take their usual figures.
void LeggiAcciaiCA(Righe& righe, Materiali& m, bool& vecchio) {
  m.NumAcciaiCA = Conteggio(righe);
  for (int i = 1; i <= m.NumAcciaiCA; ++i) {
    AcciaioCA a;
    a.Nome = Rifila(righe.Prossima());
    Righe riga = righe.Sbircia();
    if (ContaToken(riga.Prossima()) >= 5) {
      auto n = Numeri(righe, 6, a.Nome, 5);
      for (int k = 0; k < 6; ++k) a.Valori[k] = n[k];
    } else {
      auto n = Numeri(righe, 4, a.Nome, 4);
      a.Valori[0] = n[0];
      a.Valori[1] = 5400;
      a.Valori[2] = n[1];
      a.Valori[3] = n[2];
      a.Valori[4] = n[3];
      a.Valori[5] = 2550;
      vecchio = true;
    }
    m.AcciaiCA[i] = a;
  }
}

// Fills the tables of `m`; false when a table needed by the node is missing.
bool LeggiTabelle(const std::vector<std::string>& testo, Materiali& m, bool& vecchio) {
  Righe righe(testo);
  bool acciai = false;
  bool viti = false;
  while (!righe.Finite()) {
    const std::string titolo = Maiuscolo(Rifila(righe.Prossima()));
    if (titolo == kApertiTitolo) {
      LeggiAcciai(righe, m.Acciai, m.NumAcciai);
      acciai = true;
    } else if (titolo == kChiusiTitolo) {
      LeggiAcciai(righe, m.AcciaiChiusi, m.NumAcciaiChiusi);
    } else if (titolo == kVitiTitolo) {
      LeggiViti(righe, m);
      viti = true;
    } else if (titolo == kCalcestruzziTitolo) {
      LeggiCalcestruzzi(righe, m);
    } else if (titolo == kAcciaiCATitolo) {
      LeggiAcciaiCA(righe, m, vecchio);
    }
  }
  return acciai && viti;
}

void CopiaTabelle(const Materiali& da, Materiali& a) {
  a.Acciai = da.Acciai;
  a.NumAcciai = da.NumAcciai;
  a.AcciaiChiusi = da.AcciaiChiusi;
  a.NumAcciaiChiusi = da.NumAcciaiChiusi;
  a.Viti = da.Viti;
  a.NumViti = da.NumViti;
  a.Calcestruzzi = da.Calcestruzzi;
  a.NumCalcestruzzi = da.NumCalcestruzzi;
  a.AcciaiCA = da.AcciaiCA;
  a.NumAcciaiCA = da.NumAcciaiCA;
}

}  // namespace

EsitoMateriali LeggiMateriali(Materiali& materiali, const std::filesystem::path& file) {
  EsitoMateriali esito;
  const std::string errore = "File materiali (" + file.string() + ") non trovato o non valido";
  auto righe = LeggiRighe(file);
  if (!righe) {
    esito.errore = errore;
    return esito;
  }
  // Read into fresh tables, so that a bad file leaves the current ones whole.
  Materiali letti;
  bool completo = false;
  std::string motivo;
  try {
    completo = LeggiTabelle(*righe, letti, esito.vecchio);
  } catch (const FileNonValido& e) {
    completo = false;
    motivo = e.motivo;
  } catch (const ErroreFatale&) {
    completo = false;  // a number beyond range
  }
  if (!completo) {
    esito.errore = motivo.empty() ? errore : errore + ":\n" + motivo;
    esito.vecchio = false;
    return esito;
  }
  CopiaTabelle(letti, materiali);
  return esito;
}

}  // namespace qf17
