#include "librerie/token.h"

#include <algorithm>

namespace qf17 {
namespace {

bool Blank(char c) {
  return c == ' ' || c == '\t';
}

}  // namespace

std::string ProssimoToken(std::string& testo, char separatore) {
  if (separatore == ' ') {
    std::size_t inizio = 0;
    while (inizio < testo.size() && Blank(testo[inizio])) ++inizio;
    std::size_t fine = inizio;
    while (fine < testo.size() && !Blank(testo[fine])) ++fine;
    std::string campo = testo.substr(inizio, fine - inizio);
    while (fine < testo.size() && Blank(testo[fine])) ++fine;
    testo.erase(0, fine);
    return campo;
  }
  std::size_t fine = testo.find(separatore);
  std::string campo = testo.substr(0, fine);
  testo.erase(0, fine == std::string::npos ? testo.size() : fine + 1);
  return campo;
}

int ContaToken(std::string_view testo) {
  int n = 0;
  std::size_t i = 0;
  while (i < testo.size() && n < 50) {
    while (i < testo.size() && Blank(testo[i])) ++i;
    if (i >= testo.size()) break;
    ++n;
    while (i < testo.size() && !Blank(testo[i])) ++i;
  }
  return n;
}

std::string Rifila(std::string_view testo) {
  while (!testo.empty() && Blank(testo.front())) testo.remove_prefix(1);
  while (!testo.empty() && Blank(testo.back())) testo.remove_suffix(1);
  return std::string(testo);
}

std::string Minuscolo(std::string_view testo) {
  std::string s(testo);
  std::transform(s.begin(), s.end(), s.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return s;
}

std::string Maiuscolo(std::string_view testo) {
  std::string s(testo);
  std::transform(s.begin(), s.end(), s.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
  return s;
}

}  // namespace qf17
