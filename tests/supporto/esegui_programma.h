#pragma once

#include <filesystem>
#include <string>

namespace qf17::prova {

// What a run of a program left: its exit status (-1 when it did not exit normally), standard
// output and standard error.
struct Esito {
  int stato = -1;
  std::string uscita;
  std::string errori;
};

// Runs `programma` with the shell-quoted `argomenti` in the folder `cartella`, collecting its
// output in files of that folder.
Esito EseguiProgramma(const std::filesystem::path& cartella, const std::string& programma,
                      const std::string& argomenti);

}  // namespace qf17::prova
