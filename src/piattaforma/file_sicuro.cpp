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
  file_.open(temporaneo_, std::ios::binary | std::ios::trunc);
  aperto_ = file_.is_open();
  riuscito_ = aperto_;
}

FileSicuro::~FileSicuro() {
  if (aperto_) Abbandona();
}

void FileSicuro::Scrivi(std::string_view pezzo) {
  if (!riuscito_ || pezzo.empty()) return;
  file_.write(pezzo.data(), static_cast<std::streamsize>(pezzo.size()));
  if (!file_) riuscito_ = false;
}

bool FileSicuro::Conferma() {
  if (!aperto_) return false;
  file_.flush();
  if (!file_) riuscito_ = false;
  if (!riuscito_) {
    Abbandona();
    return false;
  }
  file_.close();
  aperto_ = false;
  const bool chiuso = !file_.fail();
  std::error_code ec;
  if (chiuso) std::filesystem::rename(temporaneo_, percorso_, ec);
  if (!chiuso || ec) {
    std::filesystem::remove(temporaneo_, ec);
    return false;
  }
  return true;
}

void FileSicuro::Abbandona() {
  file_.close();
  aperto_ = false;
  riuscito_ = false;
  std::error_code ec;
  std::filesystem::remove(temporaneo_, ec);
}

}  // namespace qf17
