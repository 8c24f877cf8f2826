#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "piattaforma/piattaforma.h"

namespace qf17 {

// A platform that records every call and answers from scripts: the tests' window on what the
// user would have seen.
class PiattaformaRegistrata : public Piattaforma {
 public:
  struct MessaggioVisto {
    std::string testo;
    std::string titolo;
    Icona icona;
    Pulsanti pulsanti;
  };
  struct FinestraCercata {
    std::string titolo;
    std::string tasti;
  };
  struct AvvioVisto {
    std::string programma;
    std::string argomenti;
    bool attendi;
  };

  Risposta MostraMessaggio(const std::string& testo, const std::string& titolo, Icona icona,
                           Pulsanti pulsanti) override;
  std::optional<FileScelto> ScegliFileDaAprire(const RichiestaFile& richiesta) override;
  std::optional<FileScelto> ScegliFileDaSalvare(const RichiestaFile& richiesta) override;
  bool Avvia(const std::string& programma, const std::string& argomenti, bool attendi) override;
  bool Mostra(Vista vista, const std::string& file) override;
  void Occupato(bool acceso) override;
  bool AttivaFinestra(const std::string& titolo, const std::string& tasti) override;

  // Scripted answers, used in order; when a script runs dry, boxes answer OK, dialogs cancel and
  // programs start.
  std::deque<Risposta> risposte;
  std::deque<std::optional<FileScelto>> fileScelti;
  std::deque<bool> esitiAvvio;
  // Whether each window looked for is running; when the script runs dry, none is.
  std::deque<bool> finestreAperte;
  // Called when a program is "started", so a test can play the started tool.
  std::function<void(const AvvioVisto&)> suAvvio;

  std::vector<MessaggioVisto> messaggi;
  std::vector<RichiestaFile> richiesteFile;
  std::vector<AvvioVisto> avvii;
  std::vector<std::pair<Vista, std::string>> viste;  // files shown, answered as esitiAvvio
  // A drawing viewer of its own; without one a drawing goes to the family's viewer.
  bool mostraDisegni = false;
  // Answers of the built-in unit converter, used in order; dry, it is cancelled.
  std::deque<std::optional<std::string>> conversioni;
  std::optional<std::string> ConvertiForza(const std::string& valore, const std::string& unita,
                                           double g) override;
  std::vector<FinestraCercata> finestreCercate;
  int cambiOccupato = 0;
  bool occupato = false;
};

}  // namespace qf17
