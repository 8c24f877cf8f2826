#include "disegno/leggi_font.h"

#include <algorithm>
#include <memory>
#include <string_view>
#include <vector>

#include "librerie/numeri.h"
#include "piattaforma/errori.h"
#include "piattaforma/file_testo.h"

namespace qf17 {
namespace {

constexpr int kMaxPunti = 100;

// The raw lines of the file: the glyph character is a byte of the code page, so nothing is
// decoded here. CR LF and LF both end a line.
std::vector<std::string_view> RigheGrezze(std::string_view byte) {
  std::vector<std::string_view> righe;
  while (!byte.empty()) {
    std::size_t fine = byte.find('\n');
    std::string_view riga = byte.substr(0, fine);
    if (!riga.empty() && riga.back() == '\r') riga.remove_suffix(1);
    righe.push_back(riga);
    if (fine == std::string_view::npos) break;
    byte.remove_prefix(fine + 1);
  }
  return righe;
}

bool Cifra(char c) {
  return c >= '0' && c <= '9';
}

// A head that does not begin with a number is not a font at all (a wrong file was put there).
bool IniziaConNumero(std::string_view t) {
  while (!t.empty() && (t.front() == ' ' || t.front() == '\t')) t.remove_prefix(1);
  if (!t.empty() && (t.front() == '+' || t.front() == '-')) t.remove_prefix(1);
  if (!t.empty() && t.front() == '.') t.remove_prefix(1);
  return !t.empty() && Cifra(t.front());
}

// Two characters of a coordinate; past the end of the line they are blanks, so they read as 0.
std::int16_t Coordinata(std::string_view riga, std::size_t inizio) {
  std::string campo(2, ' ');
  for (std::size_t k = 0; k < 2; ++k) {
    if (inizio + k < riga.size()) campo[k] = riga[inizio + k];
  }
  return static_cast<std::int16_t>(ArrotondaPari(NumeroIniziale(campo)));
}

void LeggiGlifo(FontTratti& font, std::string_view riga) {
  auto c = static_cast<unsigned char>(riga.front());
  font.FontCar[c] = Cp1252InUtf8(riga.substr(0, 1));
  std::size_t n = riga.size();
  while (n > 0 && riga[n - 1] == ' ') --n;
  // Eight characters a stroke after the glyph's own; an incomplete stroke rounds half to even.
  double tratti = ArrotondaPari((static_cast<double>(n) - 1.0) / 8.0);
  int punti = std::clamp(2 * static_cast<int>(tratti), 0, kMaxPunti);
  font.FontNumPunti[c] = static_cast<std::int16_t>(punti);
  for (int i = 0; i < punti; ++i) {
    std::size_t inizio = 1 + 4 * static_cast<std::size_t>(i);
    font.FontX[c][static_cast<std::size_t>(i)] = Coordinata(riga, inizio);
    font.FontY[c][static_cast<std::size_t>(i)] = Coordinata(riga, inizio + 2);
  }
}

}  // namespace

bool LeggiFont(FontTratti& font, const std::filesystem::path& file) {
  auto byte = LeggiByte(file);
  if (!byte) return false;
  std::vector<std::string_view> righe = RigheGrezze(*byte);
  if (righe.empty() || !IniziaConNumero(righe.front())) return false;

  auto letto = std::make_unique<FontTratti>();
  try {
    double strizione = ArrotondaPari(NumeroIniziale(righe.front()));
    if (strizione < 0 || strizione > 99) return false;
    letto->FontStrizione = static_cast<std::int16_t>(strizione);
  } catch (const ErroreFatale&) {
    return false;  // a head beyond any number
  }
  letto->FontNumPunti.fill(-1);
  for (std::size_t r = 1; r < righe.size(); ++r) {
    if (!righe[r].empty()) LeggiGlifo(*letto, righe[r]);
  }
  font = *letto;
  return true;
}

}  // namespace qf17
