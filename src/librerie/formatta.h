#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "piattaforma/piattaforma.h"

namespace qf17 {

// The family's number formatter, driven by commands in round brackets such as "(DV_02)(NP_1)".
// Errors go up to the user under the program title and give an empty text.
std::string Formatta(double valore, std::string_view comandi, double& scala,
                     Piattaforma& piattaforma);

// Converts in place by the first "(cu_a_b)" key found; false (with the message) for an unknown
// key. `spostamento` gets the row's decimal shift.
bool ConvertiUnita(double& valore, std::string_view comandi, int& spostamento,
                   Piattaforma& piattaforma);

double CifreSignificative(double valore, int cifre);
// Position (1-based) of the decimal point, adding one at the end when missing; -1 for exponent
// notation.
int PuntoDecimale(std::string& testo);
void AggiungiSuffisso(std::string& testo, std::string_view comandi);
// 1-based position of the last occurrence, 0 if none.
int UltimaPosizione(std::string_view testo, std::string_view cercato);

// A report column cell: numbers through Formatta, texts cut or padded.
using ValoreColonna = std::variant<double, long long, std::string>;
std::string FormatoColonna(const ValoreColonna& valore, int larghezza, bool separatore,
                           std::string_view allineamento, Piattaforma& piattaforma);

}  // namespace qf17
