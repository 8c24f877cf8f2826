#pragma once

#include <QDialog>
#include <array>

#include "disegno/opzioni.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QRadioButton;

namespace qf17 {

struct Sessione;

// The drawing options form Op_Nodo: paints a FormOpzioni and forwards its events.
class DialogoOpzioni : public QDialog {
  Q_OBJECT

 public:
  explicit DialogoOpzioni(Sessione& sessione, QWidget* genitore = nullptr);
  const FormOpzioni& Form() const { return form_; }

 private:
  void Dipingi();
  void Leggi();

  Sessione& s_;
  FormOpzioni form_;
  std::array<QLineEdit*, 30> caselle_{};
  QCheckBox *quote_, *quoteSaldature_, *distinta_, *areaBulloni_;
  QRadioButton *disegnaQuote_, *tabellaCoordinate_;
  QComboBox* indicatore_;
  QLineEdit* nota_;
};

}  // namespace qf17
