#include "piattaforma/file_sicuro.h"

#include <atomic>
#include <cstdio>
#include <random>
#include <system_error>
#include <utility>

namespace qf17 {
namespace {

// A name no other writer of the same target can pick: two runs writing one report at once
// must not share a temporary file. The suffix mixes a per-process random seed and a counter.
std::filesystem::path NomeTemporaneo(const std::filesystem::path& percorso) {
  static const std::uint64_t seme = [] {
    std::random_device casuale;
    return (static_cast<std::uint64_t>(casuale()) << 32) ^ casuale();
  }();
  static std::atomic<std::uint64_t> contatore{0};
  std::error_code ec;
  for (;;) {
    const std::uint64_t n = seme + 0x9E3779B97F4A7C15ull * ++contatore;
    char suffisso[24];
    std::snprintf(suffisso, sizeof suffisso, ".%016llx~", static_cast<unsigned long long>(n));
    std::filesystem::path temporaneo = percorso;
    temporaneo += suffisso;
    if (!std::filesystem::exists(temporaneo, ec)) return temporaneo;
  }
}

// A file without any write permission is one the user marked read-only: the rename would
// replace it regardless (even for an administrator), so it is refused as a failed write.
bool SolaLettura(const std::filesystem::file_status& stato) {
  using std::filesystem::perms;
  const perms scrittura = perms::owner_write | perms::group_write | perms::others_write;
  return (stato.permissions() & scrittura) == perms::none;
}

}  // namespace

FileSicuro::FileSicuro(std::filesystem::path percorso) : percorso_(std::move(percorso)) {
  std::error_code ec;
  const auto stato = std::filesystem::status(percorso_, ec);
  // A folder of the target's name would take the temporary's rename; refuse before writing.
  if (std::filesystem::is_directory(stato) ||
      (std::filesystem::exists(stato) &&
       (!std::filesystem::is_regular_file(stato) || SolaLettura(stato)))) {
    riuscito_ = false;
    return;
  }
  if (std::filesystem::exists(stato)) permessi_ = stato.permissions();
  temporaneo_ = NomeTemporaneo(percorso_);
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
  // The file replaced keeps its permissions; a new one gets the temporary's, from the umask.
  if (chiuso && permessi_) std::filesystem::permissions(temporaneo_, *permessi_, ec);
  if (chiuso && !ec) std::filesystem::rename(temporaneo_, percorso_, ec);
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
