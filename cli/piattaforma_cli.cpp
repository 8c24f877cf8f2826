#include "piattaforma_cli.h"

#include <iostream>

namespace qf17 {

Risposta PiattaformaCli::Messaggio(const std::string& testo, const std::string& titolo, Icona,
                                   Pulsanti pulsanti) {
  std::cerr << titolo << ": " << testo << std::endl;
  if (pulsanti == Pulsanti::OkAnnulla && annulla_) return Risposta::Annulla;
  return Risposta::Ok;
}

std::optional<FileScelto> PiattaformaCli::ScegliFileDaAprire(const RichiestaFile&) {
  return std::nullopt;
}

std::optional<FileScelto> PiattaformaCli::ScegliFileDaSalvare(const RichiestaFile&) {
  return std::nullopt;
}

// A viewer handed a file is the command's own business: it prints the file's path instead.
// A tool whose answer the caller waits for cannot be started from here.
bool PiattaformaCli::Avvia(const std::string&, const std::string&, bool attendi) {
  return !attendi;
}

}  // namespace qf17
