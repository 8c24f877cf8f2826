#include "piattaforma/file_sicuro.h"

#include <system_error>
#include <utility>

namespace qf17 {

FileSicuro::FileSicuro(std::filesystem::path percorso)
    : percorso_(std::move(percorso)), temporaneo_(percorso_) {
  temporaneo_ += ".tmp~";
  std::error_code ec;
  // A folder of the target's name would take the temporary's rename; refuse before writing.
  if (std::filesystem::is_directory(percorso_, ec)) {
    riuscito_ = false;
    return;
  }
  file_ = std::fopen(temporaneo_.c_str(), "wb");
  riuscito_ = file_ != nullptr;
}

FileSicuro::~FileSicuro() {
  if (file_ != nullptr) Abbandona();
}

void FileSicuro::Scrivi(std::string_view pezzo) {
  if (!riuscito_ || pezzo.empty()) return;
  if (std::fwrite(pezzo.data(), 1, pezzo.size(), file_) != pezzo.size()) riuscito_ = false;
}

bool FileSicuro::Conferma() {
  if (file_ == nullptr) return false;
  if (std::fflush(file_) != 0) riuscito_ = false;
  if (!riuscito_) {
    Abbandona();
    return false;
  }
  const bool chiuso = std::fclose(file_) == 0;
  file_ = nullptr;
  std::error_code ec;
  if (chiuso) std::filesystem::rename(temporaneo_, percorso_, ec);
  if (!chiuso || ec) {
    std::filesystem::remove(temporaneo_, ec);
    return false;
  }
  return true;
}

void FileSicuro::Abbandona() {
  std::fclose(file_);
  file_ = nullptr;
  riuscito_ = false;
  std::error_code ec;
  std::filesystem::remove(temporaneo_, ec);
}

}  // namespace qf17
