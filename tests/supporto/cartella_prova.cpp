#include "supporto/cartella_prova.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <fstream>
#include <sstream>

namespace qf17::prova {
namespace {

namespace fs = std::filesystem;

// Parameterised tests put '/' in their names: keep only what is safe in a file name.
std::string PerNomeDiFile(const std::string& testo) {
  std::string nome;
  for (char c : testo) {
    const bool sicuro = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    nome += sicuro ? c : '_';
  }
  return nome;
}

std::string NomeDelTest() {
  const ::testing::TestInfo* info = ::testing::UnitTest::GetInstance()->current_test_info();
  if (info == nullptr) return "fuori";
  return PerNomeDiFile(info->test_suite_name()) + "-" + PerNomeDiFile(info->name());
}

}  // namespace

CartellaProva::CartellaProva() {
  static std::atomic<int> contatore{0};
  percorso_ =
      fs::temp_directory_path() / ("qf17-" + NomeDelTest() + "-" + std::to_string(::getpid()) +
                                   "-" + std::to_string(++contatore));
  // A process that died before cleaning up may have left a folder of the same name.
  fs::remove_all(percorso_);
  fs::create_directories(percorso_);
}

CartellaProva::~CartellaProva() {
  std::error_code ec;
  fs::remove_all(percorso_, ec);
}

fs::path CartellaProva::Scrivi(const fs::path& relativo, const std::string& byte) const {
  const fs::path file = percorso_ / relativo;
  fs::create_directories(file.parent_path());
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out << byte;
  out.close();
  if (!out) ADD_FAILURE() << "cannot write " << file;
  return file;
}

std::string LeggiTutto(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream byte;
  if (in) byte << in.rdbuf();
  return byte.str();
}

}  // namespace qf17::prova
