#pragma once

#include <QPointer>
#include <QWidget>

#include "piattaforma/piattaforma.h"

namespace qf17 {

// The desktop's platform: message boxes with the family's titles, icons and buttons; the open
// and save dialogs with the family's filter lists; other programs through QProcess; reports in
// the report window and the help in the desktop's viewer; the busy pointer.
class PiattaformaQt : public Piattaforma {
 public:
  explicit PiattaformaQt(QWidget* finestra = nullptr) : finestra_(finestra) {}
  void ImpostaFinestra(QWidget* finestra) { finestra_ = finestra; }

  std::optional<FileScelto> ScegliFileDaAprire(const RichiestaFile& richiesta) override;
  std::optional<FileScelto> ScegliFileDaSalvare(const RichiestaFile& richiesta) override;
  bool Avvia(const std::string& programma, const std::string& argomenti, bool attendi) override;
  bool Mostra(Vista vista, const std::string& file) override;
  void Occupato(bool acceso) override;
  std::optional<std::string> ConvertiForza(const std::string& valore, const std::string& unita,
                                           double g) override;

  // "Text|*.ext|Text|*.ext" of the family as Qt's "Text (*.ext);;Text (*.ext)".
  static QString FiltroQt(const std::string& filtro);

 protected:
  Risposta MostraMessaggio(const std::string& testo, const std::string& titolo, Icona icona,
                           Pulsanti pulsanti) override;

 private:
  QPointer<QWidget> finestra_;
};

}  // namespace qf17
