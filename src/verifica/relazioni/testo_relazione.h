#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "piattaforma/file_sicuro.h"

namespace qf17 {

struct Nodo;

// A load set's name on one line: every CR becomes a blank, every LF is dropped.
std::string PulisciNome(std::string_view nome);
// A section's name with each run of blanks or tabs made one blank, as the section library cuts
// its fields, and no blanks at the ends.
std::string PulisciSezione(std::string_view nome);
// "DOPPIA" for a double member i, "OPPOSTA" for opposed profiles, "SINGOLA" for anything else.
// (The letter of a member is LetteraAsta of nodo/nodo_default.h.)
std::string ModoAsta(const Nodo& nodo, int i);

// A number as the reports print it. The reports follow the plain print of a number: the
// shortest decimal form (TestoNumero) with one leading blank when the number is not negative,
// where the minus sign would stand. After a TAB that blank stays ("\t 12.5", "\t-3"), and no
// blank follows the number: the next piece (a TAB or the line end) comes right after it.
struct Numero {
  double valore;
};

inline constexpr struct FineRiga {
} kFine{};
inline constexpr char kTab = '\t';

// The text of a report: pieces are appended, lines end with CR LF. The text stays UTF-8. Either
// kept whole here, or poured into a file a block at a time, so that the report of a large node
// (tens of megabytes) never sits whole in memory.
class TestoRelazione {
 public:
  static constexpr std::size_t kBlocco = std::size_t{1} << 20;

  explicit TestoRelazione(std::size_t riserva) { testo_.reserve(riserva); }
  explicit TestoRelazione(FileSicuro& file, std::size_t blocco = kBlocco)
      : file_(&file), blocco_(blocco) {
    testo_.reserve(blocco + blocco / 8);
  }

  TestoRelazione& operator<<(std::string_view pezzo) {
    testo_.append(pezzo);
    return *this;
  }
  TestoRelazione& operator<<(const char* pezzo) { return *this << std::string_view(pezzo); }
  TestoRelazione& operator<<(char c) {
    testo_.push_back(c);
    return *this;
  }
  TestoRelazione& operator<<(Numero n);
  TestoRelazione& operator<<(FineRiga) {
    testo_.append("\r\n");
    if (file_ != nullptr && testo_.size() >= blocco_) Versa();
    return *this;
  }

  // Pours what is held into the file, if there is one.
  void Versa();
  // The text not yet poured: all of it for a text kept here.
  const std::string& testo() const { return testo_; }

 private:
  std::string testo_;
  FileSicuro* file_ = nullptr;
  std::size_t blocco_ = 0;
};

}  // namespace qf17
