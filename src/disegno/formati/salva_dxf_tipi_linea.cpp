#include "disegno/formati/salva_dxf_tipi_linea.h"

#include <optional>
#include <string>
#include <vector>

#include "librerie/numeri.h"
#include "librerie/token.h"
#include "piattaforma/file_testo.h"

namespace qf17 {
namespace {

bool Cifra(char c) {
  return c >= '0' && c <= '9';
}

// A length as the file must hold it: digits with at most one point, nothing else. Read by the
// project's number rule only once the whole field is known to be a plain number, so that a
// field like "12abc" is an error and not 12. Fields longer than any sensible length are refused
// before they are read, which also keeps the reading clear of overflow.
std::optional<double> Lunghezza(const std::string& campo) {
  if (campo.empty() || campo.size() > 12) return std::nullopt;
  int punti = 0, cifre = 0;
  for (char c : campo) {
    if (c == '.') {
      ++punti;
    } else if (Cifra(c)) {
      ++cifre;
    } else {
      return std::nullopt;
    }
  }
  if (punti > 1 || cifre == 0) return std::nullopt;
  const double valore = NumeroIniziale(campo);
  if (!(valore > 0) || valore > kMassimoTratto) return std::nullopt;
  return valore;
}

std::optional<int> Codice(const std::string& campo) {
  if (campo.size() != 1 || !Cifra(campo[0])) return std::nullopt;
  const int codice = campo[0] - '0';
  if (codice < 1 || codice > kUltimoTipoLinea) return std::nullopt;
  return codice;
}

// The reason a line is wrong, empty when it was taken into `tipi`.
std::string LeggiRiga(TipiLinea& tipi, std::string riga) {
  if (auto commento = riga.find(';'); commento != std::string::npos) riga.erase(commento);
  for (char& c : riga) {
    if (c == '\t') c = ' ';
  }
  std::vector<std::string> campi;
  for (std::string resto = Rifila(riga); !resto.empty(); resto = Rifila(resto)) {
    campi.push_back(ProssimoToken(resto));
  }
  if (campi.empty()) return {};

  const auto codice = Codice(campi[0]);
  if (!codice) return "il codice \"" + campi[0] + "\" non è un tipo di linea da 1 a 9";
  if (tipi.TipoNumTratti[*codice] > 0) return "il tipo di linea " + campi[0] + " è ripetuto";
  const std::size_t tratti = campi.size() - 1;
  if (tratti < 1 || tratti > kUltimoTratto + 1) {
    return "il tipo di linea " + campi[0] + " deve avere da 1 a 11 tratti";
  }
  double totale = 0;
  for (std::size_t i = 0; i < tratti; ++i) {
    const auto lunghezza = Lunghezza(campi[i + 1]);
    if (!lunghezza) {
      return "la lunghezza \"" + campi[i + 1] +
             "\" non è un numero maggiore di 0 e non oltre 10000 (decimi di mm)";
    }
    tipi.TipoTratti(*codice, static_cast<int>(i)) = *lunghezza;
    totale += *lunghezza;
  }
  tipi.TipoNumTratti[*codice] = static_cast<std::int16_t>(tratti);
  tipi.TipoLunghezza[*codice] = totale;
  return {};
}

}  // namespace

std::string LegTipLin(TipiLinea& tipi, const std::filesystem::path& file) {
  tipi = TipiLinea{};
  const auto righe = LeggiRighe(file);
  if (!righe) return "Errore: file " + file.string() + " errato o mancante.";
  for (std::size_t n = 0; n < righe->size(); ++n) {
    const std::string motivo = LeggiRiga(tipi, (*righe)[n]);
    if (!motivo.empty()) {
      tipi = TipiLinea{};
      return "Errore nel file " + file.string() + ", riga " + std::to_string(n + 1) + ": " +
             motivo + ".";
    }
  }
  return {};
}

}  // namespace qf17
