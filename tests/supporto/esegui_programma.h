#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "supporto/cartella_prova.h"

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

// The command line's tests: the staged program of the sample installation, run in a folder of
// the test's own.
class RigaDiComandoProva : public ::testing::Test {
 protected:
  Esito Esegui(const std::string& argomenti, const std::string& programma = QF17_PROGRAMMA_STAGED) {
    return EseguiProgramma(cartella_, programma, argomenti);
  }
  // A file of the installation's sample job.
  static std::filesystem::path Esempio(const std::string& nome) {
    return std::filesystem::path(QF17_INSTALLAZIONE) / "lavori" / "esempi" / nome;
  }

  CartellaProva spazio_;
  const std::filesystem::path cartella_ = spazio_.percorso();
};

}  // namespace qf17::prova
