#pragma once

#include <filesystem>
#include <fstream>
#include <optional>
#include <string_view>

namespace qf17 {

// A file written through a temporary one beside it ("NAME.<random>~", a name of its own for
// each writer), which Conferma renames over the target: the target is either the old file or
// the complete new one, with the permissions the old one had. Dropped without Conferma (a
// failure, an exception half-way), the temporary is removed and the target stays as it was.
// A target that is read-only, a folder or not a regular file is refused: nothing is written
// and Conferma fails. A failure to open or to write is kept and reported by Conferma.
class FileSicuro {
 public:
  explicit FileSicuro(std::filesystem::path percorso);
  ~FileSicuro();
  FileSicuro(const FileSicuro&) = delete;
  FileSicuro& operator=(const FileSicuro&) = delete;

  void Scrivi(std::string_view pezzo);
  // True when every piece reached the disk and the file stands under its name.
  bool Conferma();
  const std::filesystem::path& Percorso() const { return percorso_; }

 private:
  void Abbandona();

  std::filesystem::path percorso_;
  std::filesystem::path temporaneo_;
  std::optional<std::filesystem::perms> permessi_;
  std::ofstream file_;
  bool aperto_ = false;
  bool riuscito_ = true;
};

}  // namespace qf17
