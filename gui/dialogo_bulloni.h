#pragma once

#include <QDialog>
#include <QTimer>
#include <array>

#include "bulloni/form_bulloni.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;

namespace qf17 {

struct Sessione;
class VistaPrimitive;

// The bolt layout editor, modal: paints a FormBulloni and forwards its events.
class DialogoBulloni : public QDialog {
  Q_OBJECT

 public:
  DialogoBulloni(FormBulloni form, Sessione& sessione, QWidget* genitore = nullptr);
  const FormBulloni& Form() const { return form_; }

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void Dipingi();
  QLineEdit* Casella(const QString& tooltip = {});

  FormBulloni form_;
  Sessione& s_;
  QLabel* tolleranza_;
  std::array<QLineEdit*, 2> passo_{}, fi3_{};
  struct Riga {
    QPushButton* numero;
    QLineEdit *x, *y, *fi;
  };
  std::array<Riga, 5> righe_{};
  QScrollBar* scroll_;
  std::array<QLineEdit*, 3> mbp_{};
  QLineEdit *margSx_, *margDx_, *margSu_, *margIn_;
  VistaPrimitive* anteprima_;
  QLabel* help_;
  QTimer timer_;
  std::vector<std::pair<QWidget*, ControlloConSuggerimento>> suggerimenti_;
};

}  // namespace qf17
