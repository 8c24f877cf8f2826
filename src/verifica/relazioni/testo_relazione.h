#pragma once

#include <cstdint>
#include <string>
#include <string_view>

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

// The text of a report, built in one string: pieces are appended, lines end with CR LF. The
// text stays UTF-8.
class TestoRelazione {
 public:
  explicit TestoRelazione(std::size_t riserva) { testo_.reserve(riserva); }

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
    return *this;
  }

  const std::string& testo() const { return testo_; }

 private:
  std::string testo_;
};

}  // namespace qf17
