#pragma once

#include "piattaforma/piattaforma.h"

namespace qf17 {

// The command line's platform: every box goes to standard error as "TITOLO: testo"; questions
// are answered OK, or Cancel when the user asked so on the command line; dialogs are never
// shown (files come from the arguments) and other programs are not started: a viewer's file is
// printed by the command instead, and a tool whose answer is awaited counts as not started.
class PiattaformaCli : public Piattaforma {
 public:
  explicit PiattaformaCli(bool annulla = false) : annulla_(annulla) {}

  Risposta MostraMessaggio(const std::string& testo, const std::string& titolo, Icona icona,
                           Pulsanti pulsanti) override;
  std::optional<FileScelto> ScegliFileDaAprire(const RichiestaFile& richiesta) override;
  std::optional<FileScelto> ScegliFileDaSalvare(const RichiestaFile& richiesta) override;
  bool Avvia(const std::string& programma, const std::string& argomenti, bool attendi) override;
  // The command prints the file's path instead.
  bool Mostra(Vista, const std::string&) override { return true; }
  void Occupato(bool) override {}
  // No other program's window is ever looked for from a terminal.
  bool AttivaFinestra(const std::string&, const std::string&) override { return false; }

 private:
  bool annulla_;
};

}  // namespace qf17
