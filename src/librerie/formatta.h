#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "piattaforma/piattaforma.h"

namespace qf17 {

// The family's number formatter, driven by commands in round brackets such as "(DV_02)(NP_1)":
// (cu_a_b) unit conversion, (cs_nn) significant digits, (dv_nn) decimals relative to the scale
// and the unit, (cd_nn) exact decimals, (zr_x) filling character, (fd_nn) and (fs_nn) right and
// left aligned fields, (np_1) no dangling point, (sc_text) suffix. Commands are found anywhere,
// in any case, and run in that fixed order; a command's number is read from at most three
// characters. Errors go up to the user under the program title and give an empty text.
std::string Formatta(double valore, std::string_view comandi, double& scala,
                     Piattaforma& piattaforma);

// Converts in place by the first "(cu_a_b)" of the family's table found in the string; false
// (with the message) for an unknown key. `spostamento` gets the row's decimal shift. "(cu_||)"
// and a bare "(cu_" closing the string convert nothing, with shift 0.
bool ConvertiUnita(double& valore, std::string_view comandi, int& spostamento,
                   Piattaforma& piattaforma);

// Rounded to `cifre` significant digits.
double CifreSignificative(double valore, int cifre);
// Position (1-based) of the decimal point, adding one at the end when missing; -1 for exponent
// notation.
int PuntoDecimale(std::string& testo);
// Appends the text of "(sc_text)", up to its ")".
void AggiungiSuffisso(std::string& testo, std::string_view comandi);
// 1-based position of the last occurrence, 0 if none.
int UltimaPosizione(std::string_view testo, std::string_view cercato);

// A report column cell of `larghezza` characters, right aligned for "R": numbers through
// Formatta (integers without their point), texts cut or padded; `separatore` ends it with "|".
using ValoreColonna = std::variant<double, long long, std::string>;
std::string FormatoColonna(const ValoreColonna& valore, int larghezza, bool separatore,
                           std::string_view allineamento, Piattaforma& piattaforma);
// The same cell of a number, written into `cella` (kCellaBreve characters) without a string,
// for the common cells: right aligned when `destra`, without the point when `senzaPunto`. The
// length written; 0 when the number needs FormatoColonna's other steps.
inline constexpr std::size_t kCellaBreve = 64;
std::size_t CellaNumeroBreve(double x, int larghezza, bool destra, bool separatore, bool senzaPunto,
                             char* cella);

}  // namespace qf17
