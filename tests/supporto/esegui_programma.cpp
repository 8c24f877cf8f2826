#include "supporto/esegui_programma.h"

#include <sys/wait.h>

#include <cstdlib>

#include "supporto/cartella_prova.h"

namespace qf17::prova {

Esito EseguiProgramma(const std::filesystem::path& cartella, const std::string& programma,
                      const std::string& argomenti) {
  const std::filesystem::path out = cartella / "out.txt", err = cartella / "err.txt";
  const std::string comando = "cd '" + cartella.string() + "' && '" + programma + "' " + argomenti +
                              " >'" + out.string() + "' 2>'" + err.string() + "'";
  const int s = std::system(comando.c_str());
  return {WIFEXITED(s) ? WEXITSTATUS(s) : -1, LeggiTutto(out), LeggiTutto(err)};
}

}  // namespace qf17::prova
