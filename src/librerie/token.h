#pragma once

#include <string>
#include <string_view>

namespace qf17 {

// Cuts the next field off the front of `testo` and returns it. With the blank as separator any
// run of blanks or tabs counts as one; with another separator each occurrence ends a field.
std::string ProssimoToken(std::string& testo, char separatore = ' ');

// Counts the blank-separated fields of a line, at most 50.
int ContaToken(std::string_view testo);

// Blanks and tabs removed at both ends (the family's Trim).
std::string Rifila(std::string_view testo);
// ASCII lower case: keys and family names are ASCII.
std::string Minuscolo(std::string_view testo);
std::string Maiuscolo(std::string_view testo);

}  // namespace qf17
