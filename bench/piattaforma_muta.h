#pragma once

#include <optional>
#include <string>

#include "piattaforma/piattaforma.h"

namespace qf17 {

// Counts the boxes and shows none, so that a benchmark measures the checks and not the user.
class PiattaformaMuta : public Piattaforma {
 public:
  Risposta MostraMessaggio(const std::string&, const std::string&, Icona, Pulsanti) override {
    ++messaggi;
    return Risposta::Ok;
  }
  std::optional<FileScelto> ScegliFileDaAprire(const RichiestaFile&) override { return {}; }
  std::optional<FileScelto> ScegliFileDaSalvare(const RichiestaFile&) override { return {}; }
  bool Avvia(const std::string&, const std::string&, bool) override { return true; }
  bool Mostra(Vista, const std::string&) override { return true; }
  void Occupato(bool) override {}
  long messaggi = 0;
};

}  // namespace qf17
