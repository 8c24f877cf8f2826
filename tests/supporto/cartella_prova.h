#pragma once

#include <filesystem>
#include <string>

namespace qf17::prova {

// A fresh folder under the system's temporary folder for the running test, removed with the
// object. Its name holds the test suite, the test and the process id, so that parallel runs never
// share a folder, and a counter, so that one test may hold several.
class CartellaProva {
 public:
  CartellaProva();
  ~CartellaProva();
  CartellaProva(const CartellaProva&) = delete;
  CartellaProva& operator=(const CartellaProva&) = delete;

  const std::filesystem::path& percorso() const { return percorso_; }

  // Writes raw bytes to a file below the folder, making the folders on the way, and returns its
  // path. A file that cannot be written fails the running test.
  std::filesystem::path Scrivi(const std::filesystem::path& relativo,
                               const std::string& byte) const;

 private:
  std::filesystem::path percorso_;
};

// The raw bytes of a file; empty when it cannot be read.
std::string LeggiTutto(const std::filesystem::path& file);

}  // namespace qf17::prova
