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

bool PiattaformaCli::Avvia(const std::string& programma, const std::string& argomenti, bool) {
  std::cerr << "(non avviato) " << programma << " " << argomenti << std::endl;
  return false;
}

}  // namespace qf17
