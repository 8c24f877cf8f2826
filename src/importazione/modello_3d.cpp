#include "importazione/modello_3d.h"

#include <bit>
#include <cstdint>
#include <stdexcept>
#include <type_traits>
#include <utility>

#include "librerie/numeri.h"
#include "librerie/token.h"
#include "piattaforma/errori.h"
#include "piattaforma/file_testo.h"
#include "piattaforma/piattaforma.h"

namespace qf17 {
namespace {

constexpr std::size_t kRecord = 56;
constexpr std::size_t kMaxCombinazioni = 200;

// The values of a line: each ends at a comma, a blank or the line's end; a quoted value runs to
// its closing quote.
std::vector<std::string> Valori(std::string_view riga) {
  std::vector<std::string> v;
  std::size_t i = 0;
  while (i < riga.size()) {
    while (i < riga.size() && (riga[i] == ' ' || riga[i] == '\t' || riga[i] == ',')) ++i;
    if (i >= riga.size()) break;
    std::size_t fine;
    if (riga[i] == '"') {
      fine = riga.find('"', i + 1);
      if (fine == std::string_view::npos) fine = riga.size();
      v.emplace_back(riga.substr(i + 1, fine - i - 1));
      i = fine + 1;
      continue;
    }
    fine = riga.find_first_of(" \t,", i);
    if (fine == std::string_view::npos) fine = riga.size();
    v.emplace_back(riga.substr(i, fine - i));
    i = fine;
  }
  return v;
}

struct FileGuasto {};

// The lines of a text file of the model, one after the other.
class Righe {
 public:
  explicit Righe(std::vector<std::string> righe) : righe_(std::move(righe)) {}
  const std::string& Prossima() {
    if (prossima_ >= righe_.size()) throw FileGuasto{};
    return righe_[prossima_++];
  }
  std::vector<std::string> ProssimiValori() { return Valori(Prossima()); }
  // The first value of the next line, as a count.
  int Conteggio() {
    const auto v = ProssimiValori();
    if (v.empty()) throw FileGuasto{};
    const double n = NumeroIniziale(v[0]);
    if (n < 0 || n > 1e6) throw FileGuasto{};
    return static_cast<int>(n);
  }
  void Salta(int quante) {
    for (int k = 0; k < quante; ++k) Prossima();
  }

 private:
  std::vector<std::string> righe_;
  std::size_t prossima_ = 0;
};

// The values of all the lines, one after the other, for the files read value by value.
class ValoriFile {
 public:
  explicit ValoriFile(const std::vector<std::string>& righe) {
    for (const std::string& r : righe) {
      for (std::string& v : Valori(r)) valori_.push_back(std::move(v));
      fineRiga_.push_back(valori_.size());
    }
  }
  const std::string& Testo() {
    if (prossimo_ >= valori_.size()) throw FileGuasto{};
    return valori_[prossimo_++];
  }
  std::int16_t Intero() { return InI16(NumeroIniziale(Testo())); }
  // Steps over the `quante` lines that follow the line of the last value read.
  void SaltaRighe(int quante) {
    std::size_t riga = 0;
    while (riga < fineRiga_.size() && fineRiga_[riga] < prossimo_) ++riga;
    const std::size_t dopo = riga + static_cast<std::size_t>(quante);
    prossimo_ = dopo < fineRiga_.size() ? fineRiga_[dopo] : valori_.size();
  }

 private:
  std::vector<std::string> valori_;
  std::vector<std::size_t> fineRiga_;  // the number of values up to the end of each line
  std::size_t prossimo_ = 0;
};

void Mancante(const std::filesystem::path& file, Piattaforma& p) {
  p.Messaggio("Errore: file " + file.string() + " errato o mancante.", "ERRORE", Icona::Attenzione,
              Pulsanti::Ok);
}

// A little-endian value of the file, whatever the machine's order.
template <class T>
T Piccolo(const std::string& byte, std::size_t posizione) {
  using Intero = std::conditional_t<sizeof(T) == 8, std::uint64_t, std::uint32_t>;
  Intero bit = 0;
  for (std::size_t k = 0; k < sizeof(T); ++k) {
    bit |= static_cast<Intero>(static_cast<unsigned char>(byte[posizione + k])) << (8 * k);
  }
  return std::bit_cast<T>(bit);
}

// Reads a text file of the model with `lettore`; a file that cannot be opened, or that ends or
// breaks before its counts say, is the family's "errato o mancante".
template <class Lettore>
auto LeggiFileModello(const std::filesystem::path& file, Piattaforma& p, Lettore lettore)
    -> decltype(lettore(std::declval<std::vector<std::string>&>())) {
  if (auto testo = LeggiRighe(file)) {
    try {
      return lettore(*testo);
    } catch (const FileGuasto&) {
    } catch (const std::out_of_range&) {
    } catch (const ErroreFatale&) {
    }
  }
  Mancante(file, p);
  return std::nullopt;
}

}  // namespace

bool ControllaRelease(std::string_view riga, bool fine, Piattaforma& p) {
  if (Minuscolo(riga).find("release") != std::string::npos) return true;
  p.Messaggio(std::string(kMessaggioReleaseVecchia), "ATTENZIONE!", Icona::Critica, Pulsanti::Ok);
  if (fine) throw FineProgramma(std::string(kMessaggioReleaseVecchia));
  return false;
}

std::optional<StrutturaModello> LeggiStruttura(const std::filesystem::path& file, Piattaforma& p) {
  return LeggiFileModello(
      file, p, [&p](std::vector<std::string>& testo) -> std::optional<StrutturaModello> {
        Righe r(std::move(testo));
        if (!ControllaRelease(r.Prossima(), true, p)) return std::nullopt;
        StrutturaModello s;
        // The point count stands in a field of 20 characters, left or right aligned.
        const std::string& conteggio = r.Prossima();
        const int punti = static_cast<int>(NumeroIniziale(Rifila(conteggio.substr(0, 20))));
        for (int k = 0; k < punti; ++k) {
          const auto v = r.ProssimiValori();
          if (v.size() < 3) throw FileGuasto{};
          s.punti.push_back({NumeroIniziale(v[0]), NumeroIniziale(v[1]), NumeroIniziale(v[2])});
        }
        const int nodi = r.Conteggio();
        for (int k = 0; k < nodi; ++k) {
          const auto v = r.ProssimiValori();
          if (v.size() < 4) throw FileGuasto{};
          s.nodi.push_back({InI16(NumeroIniziale(v[0])), InI16(NumeroIniziale(v[3]))});
          r.Salta(1);
        }
        const int aste = r.Conteggio();
        for (int k = 0; k < aste; ++k) {
          const auto a = r.ProssimiValori();
          const auto b = r.ProssimiValori();
          if (a.size() < 4 || b.size() < 2) throw FileGuasto{};
          s.aste.push_back({InI16(NumeroIniziale(a[0])), InI16(NumeroIniziale(a[1])),
                            InI16(NumeroIniziale(a[2])), InI16(NumeroIniziale(a[3])),
                            static_cast<int>(NumeroIniziale(b[0])),
                            static_cast<int>(NumeroIniziale(b[1]))});
        }
        r.Salta(2 * r.Conteggio());
        for (int blocco = 0; blocco < 3; ++blocco) r.Salta(r.Conteggio());
        s.condizioni = r.Conteggio();
        return s;
      });
}

std::optional<std::vector<std::string>> LeggiSezioniModello(const std::filesystem::path& file,
                                                            Piattaforma& p) {
  return LeggiFileModello(
      file, p, [](std::vector<std::string>& testo) -> std::optional<std::vector<std::string>> {
        ValoriFile v(testo);
        const int numero = v.Intero();
        std::vector<std::string> nomi;
        for (int k = 0; k < numero; ++k) {
          v.Intero();
          nomi.push_back(v.Testo());
          v.Intero();
          v.SaltaRighe(4);
        }
        return nomi;
      });
}

std::string TipoCombinazione(std::string_view riga) {
  constexpr std::string_view kChiave = "TIPOVER=";
  const std::size_t inizio = riga.find(kChiave);
  if (inizio == std::string_view::npos) return {};
  const std::size_t da = inizio + kChiave.size();
  const std::size_t a = riga.find('|', da);
  return std::string(riga.substr(da, a == std::string_view::npos ? riga.size() - da : a - da));
}

std::optional<CombinazioniModello> LeggiCombinazioni(const std::filesystem::path& file,
                                                     Piattaforma& p) {
  return LeggiFileModello(
      file, p, [&p](std::vector<std::string>& testo) -> std::optional<CombinazioniModello> {
        Righe r(std::move(testo));
        const int numero = r.Conteggio();
        if (static_cast<std::size_t>(numero) > kMaxCombinazioni) {
          p.Messaggio("Errore: numero di combinazioni eccessivo", "ERRORE", Icona::Critica,
                      Pulsanti::Ok);
          return std::nullopt;
        }
        CombinazioniModello c;
        for (int k = 0; k < numero; ++k) {
          c.numeri.push_back(InI16(NumeroIniziale(r.ProssimiValori().at(0))));
          r.Salta(2);
          c.tipi.push_back(TipoCombinazione(r.Prossima()));
          // The groups that follow: a count and its triples, a count and its pairs, one a line.
          r.Salta(r.Conteggio());
          r.Salta(r.Conteggio());
        }
        return c;
      });
}

std::string NomeFileRisultati(bool caso, int numero) {
  std::string cifre = std::to_string(numero);
  if (numero >= 0 && numero < 100) cifre.insert(0, 3 - cifre.size(), '0');
  return std::string("aste") + (caso ? "c" : "_") + cifre + ".bin";
}

std::optional<RisultatiModello> RisultatiModello::Apri(const std::filesystem::path& file) {
  auto byte = LeggiByte(file);
  if (!byte || byte->size() < kRecord) return std::nullopt;
  RisultatiModello r;
  r.byte_ = std::move(*byte);
  r.aste_ = Piccolo<std::int32_t>(r.byte_, 0);
  r.stazioni_ = Piccolo<std::int32_t>(r.byte_, 4);
  r.sestetti_ = Piccolo<std::int32_t>(r.byte_, 8);
  if (r.aste_ < 0 || r.stazioni_ < 1 || r.sestetti_ < 1) return std::nullopt;
  const auto attesi = static_cast<std::uint64_t>(r.aste_) * r.stazioni_ * r.sestetti_ + 1;
  if (r.byte_.size() < attesi * kRecord) return std::nullopt;
  return r;
}

std::size_t RisultatiModello::Posizione(int asta, int stazione, int sestetto) const {
  const std::size_t record = static_cast<std::size_t>(asta) * stazioni_ * sestetti_ +
                             static_cast<std::size_t>(stazione) * sestetti_ + sestetto;
  return record * kRecord;  // record 0 is the header
}

int RisultatiModello::NomeAsta(int asta) const {
  return Piccolo<std::int32_t>(byte_, Posizione(asta, 0, 1));
}

double RisultatiModello::SforzoNormale(int asta, int stazione, int sestetto) const {
  return Piccolo<double>(byte_, Posizione(asta, stazione, sestetto) + 8);
}

}  // namespace qf17
