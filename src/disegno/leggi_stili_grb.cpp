#include "disegno/leggi_stili_grb.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "librerie/numeri.h"
#include "piattaforma/errori.h"
#include "piattaforma/file_testo.h"

namespace qf17 {
namespace {

constexpr int kMaxStili = 100;

struct FineInattesa {};

// Reads the template as the family's editor writes it: values of a list are separated by
// blanks or commas and may run over several lines; a skipped line is the rest of the current
// one, and a list that ends its line moves on to the next.
class LettoreLista {
 public:
  explicit LettoreLista(std::vector<std::string> righe) : righe_(std::move(righe)) {}

  void SaltaRiga() {
    if (riga_ >= righe_.size()) throw FineInattesa{};
    ++riga_;
    colonna_ = 0;
  }

  // The next value by the leading-number rule; an empty field between commas is 0.
  double Valore() {
    SaltaBlanchi();
    while (colonna_ >= Corrente().size()) {
      SaltaRiga();
      SaltaBlanchi();
    }
    const std::string& r = Corrente();
    std::size_t inizio = colonna_;
    while (colonna_ < r.size() && r[colonna_] != ',' && !Blank(r[colonna_])) ++colonna_;
    std::string campo = r.substr(inizio, colonna_ - inizio);
    SaltaBlanchi();
    if (colonna_ < r.size() && r[colonna_] == ',') ++colonna_;
    if (colonna_ >= r.size()) SaltaRiga();
    return NumeroIniziale(campo);
  }

 private:
  static bool Blank(char c) { return c == ' ' || c == '\t'; }
  const std::string& Corrente() const {
    if (riga_ >= righe_.size()) throw FineInattesa{};
    return righe_[riga_];
  }
  void SaltaBlanchi() {
    const std::string& r = Corrente();
    while (colonna_ < r.size() && Blank(r[colonna_])) ++colonna_;
  }

  std::vector<std::string> righe_;
  std::size_t riga_ = 0;
  std::size_t colonna_ = 0;
};

double InUnitaDisegno(double valore, std::int16_t codiceUnita, double scala) {
  if (codiceUnita == 0) valore /= 1000;
  if (codiceUnita == 1) valore /= 10;
  double risultato = valore * scala;
  if (!std::isfinite(risultato)) throw ErroreFatale("Overflow: dimensione di stile GRB");
  return risultato;
}

// Throws FineInattesa or ErroreFatale (a number beyond its type) on a damaged template.
StiliGRB Leggi(std::vector<std::string> righe) {
  LettoreLista lettore(std::move(righe));
  StiliGRB stili;
  lettore.SaltaRiga();
  stili.Scala = lettore.Valore();
  stili.CodiceUnita = InI16(lettore.Valore());
  lettore.Valore();  // the editor's own, of no use to the sheet
  int numero = InI16(lettore.Valore());
  stili.NumStili = std::clamp(numero, 0, kMaxStili);
  for (int i = 1; i <= stili.NumStili; ++i) {
    lettore.SaltaRiga();
    double altezza = lettore.Valore();
    double larghezza = lettore.Valore();
    stili.GRBCarattere[i] = InI16(lettore.Valore());
    lettore.Valore();
    lettore.SaltaRiga();
    stili.GRBAltezza[i] = InUnitaDisegno(altezza, stili.CodiceUnita, stili.Scala);
    stili.GRBLarghezza[i] = InUnitaDisegno(larghezza, stili.CodiceUnita, stili.Scala);
  }
  stili.Letti = true;
  return stili;
}

}  // namespace

void LeggiStiliGRB(StiliGRB& stili, const std::filesystem::path& file, Piattaforma& piattaforma) {
  const std::string coda = "- verranno usati i parametri disegno della versione autonoma.";
  auto righe = LeggiRighe(file);
  if (!righe) {
    stili = StiliGRB{};
    piattaforma.Messaggio("Errore in apertura del file " + file.string() + coda, "QF17",
                          Icona::Critica, Pulsanti::Ok);
    return;
  }
  try {
    stili = Leggi(std::move(*righe));
  } catch (const FineInattesa&) {
    stili = StiliGRB{};
  } catch (const ErroreFatale&) {
    stili = StiliGRB{};
  }
  if (!stili.Letti) {
    piattaforma.Messaggio("Errore in lettura del file " + file.string() + coda, "QF17",
                          Icona::Critica, Pulsanti::Ok);
  }
}

}  // namespace qf17
