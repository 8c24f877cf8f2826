#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// The one place where numbers become text and text becomes numbers, so that every file and
// report of the program writes and reads them the same way, whatever the desktop's locale.
namespace qf17 {

// The permissive reading of a typed or stored number: the longest valid number at the start of
// the text (blanks before it are skipped), 0 when there is none. "12abc" gives 12, "12,5" gives 12.
double NumeroIniziale(std::string_view testo);

// Rounds half to even at `decimali` decimals (negative: tens, hundreds...).
double ArrotondaPari(double valore, int decimali = 0);

// Rounds half to even into a signed 16-bit counter; beyond its range it is an ErroreFatale.
std::int16_t InI16(double valore);

// A strict integer conversion: the whole text (trimmed) must be a number, otherwise ErroreFatale;
// the number is rounded half to even into 16 bits.
std::int16_t InteroStretto(std::string_view testo);

// The plain text of a number: the shortest form with at most 15 significant digits, a point as
// decimal mark, no blanks; integral values as plain digits; exponent form ("1E+20", "1E-07")
// outside the range that plain digits show.
std::string TestoNumero(double valore);
std::string TestoNumero(long long valore);
// The same plain form computed the obvious way (15 digits in the %g style); TestoNumero is a
// faster road to the identical text, and the tests hold the two together.
std::string TestoNumeroRiferimento(double valore);
// TestoNumero's text of a value with at most six decimals between 1E-4 and 1E+9 (what rounded
// figures are), written into `testo`, which holds kCifreBrevi characters; the length written, 0
// for any other value.
inline constexpr std::size_t kCifreBrevi = 32;
std::size_t CifreBrevi(double valore, char* testo);

// The list-print form of the family's drawing files: a non-negative number gets one leading
// blank, every number one trailing blank.
std::string TestoLista(double valore);
std::string TestoLista(long long valore);

}  // namespace qf17
