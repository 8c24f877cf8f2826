#pragma once

#include <QDialog>

class QCheckBox;
class QGridLayout;
class QLabel;

namespace qf17 {

struct Sessione;

// PropMateriali: every strength derived from the node's steel and bolt class, in the job's
// stress unit, and the check box that takes the steel from the job's materials base.
class DialogoMateriali : public QDialog {
  Q_OBJECT

 public:
  explicit DialogoMateriali(Sessione& sessione, QWidget* genitore = nullptr);

 signals:
  void MaterialiCambiati();

 private:
  void Dipingi();

  Sessione& s_;
  QCheckBox* base_;
  QLabel *titoloAcciaio_, *titoloViti_;
  QGridLayout* valori_;
};

}  // namespace qf17
