#include "piattaforma/file_testo.h"

#include <array>
#include <fstream>
#include <sstream>
#include <system_error>

#include "piattaforma/file_sicuro.h"

namespace qf17 {
namespace {

// Code points of bytes 0x80..0x9F in Windows-1252; 0 where the code page has no character.
constexpr std::array<char32_t, 32> kAlti = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

void AggiungiUtf8(std::string& s, char32_t c) {
  if (c < 0x80) {
    s += static_cast<char>(c);
  } else if (c < 0x800) {
    s += static_cast<char>(0xC0 | (c >> 6));
    s += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    s += static_cast<char>(0xE0 | (c >> 12));
    s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    s += static_cast<char>(0x80 | (c & 0x3F));
  }
}

// Decodes one UTF-8 character at `i`, advancing it; malformed bytes decode as themselves
// (Latin-1), so text that is not UTF-8 still survives a round trip.
char32_t ProssimoCarattere(std::string_view t, std::size_t& i) {
  auto b = static_cast<unsigned char>(t[i]);
  int seguito = b >= 0xF0 ? 3 : b >= 0xE0 ? 2 : b >= 0xC0 ? 1 : 0;
  if (seguito == 0 || i + seguito >= t.size()) {
    ++i;
    return b;
  }
  char32_t c = b & (0x3F >> seguito);
  for (int k = 1; k <= seguito; ++k) {
    auto s = static_cast<unsigned char>(t[i + k]);
    if ((s & 0xC0) != 0x80) {
      ++i;
      return b;
    }
    c = (c << 6) | (s & 0x3F);
  }
  i += seguito + 1;
  return c;
}

}  // namespace

std::string Cp1252InUtf8(std::string_view byte) {
  std::string s;
  s.reserve(byte.size());
  for (char ch : byte) {
    auto b = static_cast<unsigned char>(ch);
    char32_t c = b;
    if (b >= 0x80 && b <= 0x9F) c = kAlti[b - 0x80] ? kAlti[b - 0x80] : b;
    AggiungiUtf8(s, c);
  }
  return s;
}

std::string Utf8InCp1252(std::string_view testo) {
  std::string s;
  s.reserve(testo.size());
  for (std::size_t i = 0; i < testo.size();) {
    char32_t c = ProssimoCarattere(testo, i);
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
      s += static_cast<char>(c);
      continue;
    }
    char sostituto = '?';
    for (std::size_t k = 0; k < kAlti.size(); ++k) {
      if (kAlti[k] == c) sostituto = static_cast<char>(0x80 + k);
    }
    s += sostituto;
  }
  return s;
}

std::size_t NumeroCaratteri(std::string_view testo) {
  // Plain ASCII, as every number is, has one character a byte.
  bool ascii = true;
  for (char c : testo) ascii = ascii && static_cast<unsigned char>(c) < 0x80;
  if (ascii) return testo.size();
  std::size_t n = 0;
  for (std::size_t i = 0; i < testo.size(); ++n) ProssimoCarattere(testo, i);
  return n;
}

std::string PrimiCaratteri(std::string_view testo, std::size_t n) {
  std::size_t i = 0;
  for (std::size_t k = 0; k < n && i < testo.size(); ++k) ProssimoCarattere(testo, i);
  return std::string(testo.substr(0, i));
}

std::optional<std::string> LeggiByte(const std::filesystem::path& percorso) {
  // Only a regular file (or a link to one) has an end: a device such as /dev/zero or a pipe
  // would be read until memory runs out.
  std::error_code ec;
  if (!std::filesystem::is_regular_file(percorso, ec)) return std::nullopt;
  std::ifstream in(percorso, std::ios::binary);
  if (!in) return std::nullopt;
  std::ostringstream buffer;
  buffer << in.rdbuf();
  if (in.bad()) return std::nullopt;
  return buffer.str();
}

std::optional<std::vector<std::string>> LeggiRighe(const std::filesystem::path& percorso) {
  auto byte = LeggiByte(percorso);
  if (!byte) return std::nullopt;
  std::vector<std::string> righe;
  std::size_t inizio = 0;
  const std::string& b = *byte;
  while (inizio < b.size()) {
    // CR LF, LF and a CR alone (an old Macintosh file) each end one line.
    std::size_t fine = b.find_first_of("\r\n", inizio);
    std::size_t fineRiga = fine == std::string::npos ? b.size() : fine;
    righe.push_back(Cp1252InUtf8(std::string_view(b).substr(inizio, fineRiga - inizio)));
    if (fine == std::string::npos) break;
    inizio = fine + 1;
    if (b[fine] == '\r' && inizio < b.size() && b[inizio] == '\n') ++inizio;
  }
  return righe;
}

void AggiungiRiga(std::string& contenuto, std::string_view testo) {
  contenuto += Utf8InCp1252(testo);
  contenuto += "\r\n";
}

bool ScriviFileSicuro(const std::filesystem::path& percorso, std::string_view contenuto) {
  FileSicuro file(percorso);
  file.Scrivi(contenuto);
  return file.Conferma();
}

std::filesystem::path Percorso(std::string_view testo) {
  std::string t(testo);
  for (char& c : t) {
    if (c == '\\') c = static_cast<char>(std::filesystem::path::preferred_separator);
  }
  return std::filesystem::path(t);
}

}  // namespace qf17
