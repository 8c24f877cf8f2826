#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <string>

// The core must stay portable: no toolkit header may appear under src/.
TEST(NucleoPortabile, NessunIncludeQtInSrc) {
  namespace fs = std::filesystem;
  const std::regex includeQt(R"(#\s*include\s*[<"](Q[A-Za-z]+|Qt[A-Za-z]*/))");
  int esaminati = 0;
  for (const auto& voce : fs::recursive_directory_iterator(fs::path(QF17_SORGENTI) / "src")) {
    if (!voce.is_regular_file()) continue;
    std::ifstream in(voce.path());
    std::string riga;
    int numero = 0;
    while (std::getline(in, riga)) {
      ++numero;
      EXPECT_FALSE(std::regex_search(riga, includeQt))
          << voce.path() << ":" << numero << ": " << riga;
    }
    ++esaminati;
  }
  EXPECT_GT(esaminati, 10);
}
