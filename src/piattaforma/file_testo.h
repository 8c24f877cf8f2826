#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Files of the family are single-byte Windows-1252 text with CR LF line ends; inside the program
// every string is UTF-8. These helpers are the only crossing between the two.
namespace qf17 {

std::string Cp1252InUtf8(std::string_view byte);
// Characters that Windows-1252 cannot hold become "?".
std::string Utf8InCp1252(std::string_view testo);
// Characters (code points), not bytes: column widths of the family's files count these.
std::size_t NumeroCaratteri(std::string_view testo);
// The first `n` characters of a UTF-8 text.
std::string PrimiCaratteri(std::string_view testo, std::size_t n);

// Whole file as raw bytes; no value when it cannot be opened or is not a regular file.
std::optional<std::string> LeggiByte(const std::filesystem::path& percorso);
// The lines of a family file, decoded; CR LF, LF and CR alone each end a line, a last line
// without an end still counts. No value when the file cannot be opened.
std::optional<std::vector<std::string>> LeggiRighe(const std::filesystem::path& percorso);

// Appends a line to a family file's content: encoded in Windows-1252, ended by CR LF.
void AggiungiRiga(std::string& contenuto, std::string_view testo);

// Writes the whole content to a temporary file beside the target and renames it over the
// target, so the target is either the old file or the complete new one. False on failure,
// with the temporary file removed.
bool ScriviFileSicuro(const std::filesystem::path& percorso, std::string_view contenuto);

// The family's paths are written with "\" and on this platform use its own separator.
std::filesystem::path Percorso(std::string_view testo);

}  // namespace qf17
