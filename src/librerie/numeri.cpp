#include "librerie/numeri.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <system_error>

#include "piattaforma/errori.h"

namespace qf17 {
namespace {

bool Cifra(char c) {
  return c >= '0' && c <= '9';
}

// Length of the longest valid number at the start of `t` (which has no leading blanks).
std::size_t LunghezzaNumero(std::string_view t) {
  std::size_t i = 0;
  if (i < t.size() && (t[i] == '+' || t[i] == '-')) ++i;
  std::size_t cifre = 0;
  while (i < t.size() && Cifra(t[i])) ++i, ++cifre;
  if (i < t.size() && t[i] == '.') {
    ++i;
    while (i < t.size() && Cifra(t[i])) ++i, ++cifre;
  }
  if (cifre == 0) return 0;
  std::size_t fine = i;
  if (i < t.size() && (t[i] == 'e' || t[i] == 'E')) {
    std::size_t j = i + 1;
    if (j < t.size() && (t[j] == '+' || t[j] == '-')) ++j;
    std::size_t k = j;
    while (k < t.size() && Cifra(t[k])) ++k;
    if (k > j) fine = k;
  }
  return fine;
}

double Converti(std::string_view numero) {
  if (!numero.empty() && numero.front() == '+') numero.remove_prefix(1);
  // A lone point after the digits ("12.") is valid here and not for from_chars.
  std::string testo(numero);
  if (auto p = testo.find('.');
      p != std::string::npos && (p + 1 == testo.size() || !Cifra(testo[p + 1]))) {
    testo.insert(p + 1, "0");
  }
  if (testo.front() == '.' || (testo.size() > 1 && testo[0] == '-' && testo[1] == '.')) {
    testo.insert(testo.front() == '-' ? 1 : 0, "0");
  }
  double valore = 0;
  auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
  if (errore == std::errc::result_out_of_range) {
    // Underflow reads as zero; overflow is an error the user must see. Which of the two it was
    // shows in the sign of the exponent, since no mantissa of ours reaches 1E+308 by itself.
    auto e = testo.find_first_of("eE");
    bool piccolo = e != std::string::npos ? e + 1 < testo.size() && testo[e + 1] == '-'
                                          : testo.find_first_not_of("-0") == testo.find('.');
    if (piccolo) return 0.0;
    throw ErroreFatale("Overflow: numero troppo grande (" + testo + ")");
  }
  (void)fine;
  return valore;
}

std::string_view SenzaBlanchi(std::string_view t) {
  auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
  while (!t.empty() && blank(t.front())) t.remove_prefix(1);
  while (!t.empty() && blank(t.back())) t.remove_suffix(1);
  return t;
}

}  // namespace

double NumeroIniziale(std::string_view testo) {
  while (!testo.empty() && (testo.front() == ' ' || testo.front() == '\t')) testo.remove_prefix(1);
  std::size_t n = LunghezzaNumero(testo);
  return n == 0 ? 0.0 : Converti(testo.substr(0, n));
}

double ArrotondaPari(double valore, int decimali) {
  if (decimali == 0) return std::nearbyint(valore);
  // Powers of ten up to 1E22 are exact doubles, the very values pow gives.
  static constexpr double kPotenze[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                        1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                        1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  double scala = decimali > 0 && decimali <= 22 ? kPotenze[decimali] : std::pow(10.0, decimali);
  return std::nearbyint(valore * scala) / scala;
}

std::int16_t InI16(double valore) {
  double r = std::nearbyint(valore);
  if (!(r >= -32768.0 && r <= 32767.0)) {
    throw ErroreFatale("Overflow: " + TestoNumero(valore) + " non sta in un intero a 16 bit");
  }
  return static_cast<std::int16_t>(r);
}

std::int16_t InteroStretto(std::string_view testo) {
  std::string_view t = SenzaBlanchi(testo);
  std::size_t n = LunghezzaNumero(t);
  if (n == 0 || n != t.size()) {
    throw ErroreFatale("Tipo non corrispondente: \"" + std::string(testo) +
                       "\" non è un numero intero");
  }
  return InI16(Converti(t));
}

// Most numbers a report prints were rounded to a few decimals: such a value is an integer m over
// 10^k, and its text is m's digits with the point put back, for the least k that reads back.
// m / 10^k divides two exact doubles, so it rounds correctly: equal to the value, it proves the
// text reads back to it. Below 1E+9 with at most six decimals no two texts of one k read back
// to the same double, and the product's error cannot move m to a wrong integer.
std::size_t CifreBrevi(double valore, char* testo) {
  constexpr double kPotenze[] = {1, 10, 100, 1e3, 1e4, 1e5, 1e6};
  const double assoluto = std::fabs(valore);
  if (!(assoluto >= 1e-4 && assoluto < 1e9)) return 0;
  for (int k = 0; k <= 6; ++k) {
    // Below 1E+15 the sum is exact enough: a tie never reads back, so how it rounds is moot.
    const auto m = static_cast<unsigned long long>(assoluto * kPotenze[k] + 0.5);
    if (static_cast<double>(m) / kPotenze[k] != assoluto) continue;
    char cifre[kCifreBrevi];
    char* fine = cifre + sizeof cifre;
    char* c = fine;
    unsigned long long resto = m;
    for (int cifra = 0; resto != 0 || cifra <= k; ++cifra) {
      if (cifra == k && k > 0) *--c = '.';
      *--c = static_cast<char>('0' + resto % 10);
      resto /= 10;
    }
    if (valore < 0) *--c = '-';
    const auto n = static_cast<std::size_t>(fine - c);
    std::memcpy(testo, c, n);
    return n;
  }
  return 0;
}

namespace {

// The reference form: 15 significant digits in the %g style, trailing zeros dropped.
std::string TestoQuindiciCifre(double valore) {
  char buffer[40];
  auto fine =
      std::to_chars(buffer, buffer + sizeof buffer, valore, std::chars_format::general, 15).ptr;
  return std::string(buffer, fine);
}

// The same text, found faster: when the shortest round-trip form of a normal double has at
// most 15 significant digits, those are exactly the digits of the 15-digit form, so only the layout
// (plain digits for exponents -4..14, exponent form otherwise) must follow the %g rule.
std::string TestoBreve(double valore) {
  // Below the normal range a double holds fewer than 15 digits and the rule does not hold.
  if (std::fpclassify(valore) != FP_NORMAL) return TestoQuindiciCifre(valore);
  char breve[kCifreBrevi];
  if (const std::size_t n = CifreBrevi(valore, breve); n > 0) return std::string(breve, n);
  // Most numbers lie where the plain digits are the form: one conversion is enough there.
  const double assoluto = std::fabs(valore);
  if (assoluto >= 1e-4 && assoluto < 1e15) {
    char fisso[40];
    auto fine = std::to_chars(fisso, fisso + sizeof fisso, valore, std::chars_format::fixed).ptr;
    int cifre = 0;
    bool iniziato = false;
    for (const char* c = fisso; c != fine; ++c) {
      if (!Cifra(*c) || (!iniziato && *c == '0')) continue;
      iniziato = true;
      ++cifre;
    }
    if (cifre <= 15) return std::string(fisso, fine);
    return TestoQuindiciCifre(valore);
  }
  char buffer[40];
  auto fine =
      std::to_chars(buffer, buffer + sizeof buffer, valore, std::chars_format::scientific).ptr;
  std::string_view scientifico(buffer, static_cast<std::size_t>(fine - buffer));
  std::size_t e = scientifico.find('e');
  int cifre = 0;
  for (std::size_t i = 0; i < e; ++i) cifre += Cifra(scientifico[i]) ? 1 : 0;
  if (cifre > 15) return TestoQuindiciCifre(valore);
  int esponente = 0;
  std::from_chars(scientifico.data() + e + (scientifico[e + 1] == '+' ? 2 : 1),
                  scientifico.data() + scientifico.size(), esponente);
  if (esponente < -4 || esponente >= 15) return std::string(scientifico);
  char fisso[40];
  auto fineFisso = std::to_chars(fisso, fisso + sizeof fisso, valore, std::chars_format::fixed).ptr;
  return std::string(fisso, fineFisso);
}

}  // namespace

std::string TestoNumero(double valore) {
  if (valore == 0 || std::isnan(valore)) return "0";
  if (std::isinf(valore)) return valore > 0 ? "1.#INF" : "-1.#INF";
  std::string testo = TestoBreve(valore);
  for (char& c : testo) {
    if (c == 'e') c = 'E';
  }
  return testo;
}

std::string TestoNumeroRiferimento(double valore) {
  if (valore == 0 || std::isnan(valore)) return "0";
  if (std::isinf(valore)) return valore > 0 ? "1.#INF" : "-1.#INF";
  std::string testo = TestoQuindiciCifre(valore);
  for (char& c : testo) {
    if (c == 'e') c = 'E';
  }
  return testo;
}

std::string TestoNumero(long long valore) {
  return std::to_string(valore);
}

std::string TestoLista(double valore) {
  std::string t = TestoNumero(valore);
  return (t.front() == '-' ? "" : " ") + t + " ";
}

std::string TestoLista(long long valore) {
  return (valore < 0 ? "" : " ") + std::to_string(valore) + " ";
}

}  // namespace qf17
