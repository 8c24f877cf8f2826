#pragma once

#include <filesystem>
#include <fstream>
#include <string_view>

namespace qf17 {

// A file written through a temporary one beside it ("NAME.tmp~"), which Conferma renames over
// the target: the target is either the old file or the complete new one. Dropped without
// Conferma (a failure, an exception half-way), the temporary is removed and the target stays
// as it was. A failure to open or to write is kept and reported by Conferma.
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
  std::ofstream file_;
  bool aperto_ = false;
  bool riuscito_ = true;
};

}  // namespace qf17
