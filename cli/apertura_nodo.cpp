#include <filesystem>
#include <system_error>

#include "comandi.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"

namespace qf17 {

bool ApriNodoPerComando(Sessione& s, const std::filesystem::path& file) {
  if (!ApriNodoDaFile(s, file)) return false;
  if (!s.NomiMancanti) return true;
  // The panel goes on with empty rows, which the user sees there; a command would write a file
  // made from them without anyone looking.
  s.piattaforma.Messaggio("Il nodo " + file.string() +
                              " usa sezioni o materiali che le librerie non contengono: "
                              "nessun file scritto.",
                          "ERRORE", Icona::Critica, Pulsanti::Ok);
  return false;
}

bool UscitaNonSulNodo(Sessione& s, const std::filesystem::path& uscita,
                      const std::filesystem::path& nodo) {
  std::error_code ec;
  if (!std::filesystem::equivalent(uscita, nodo, ec)) return true;
  s.piattaforma.Messaggio(
      "Il file di uscita " + uscita.string() + " è il file del nodo: scegliere un altro nome.",
      "ERRORE", Icona::Critica, Pulsanti::Ok);
  return false;
}

}  // namespace qf17
