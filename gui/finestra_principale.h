#pragma once

#include <QMainWindow>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "bulloni/form_bulloni.h"
#include "nodo/panel/ins_dati.h"

class QComboBox;
class QGridLayout;
class QLineEdit;
class QWidget;

namespace qf17 {

struct Sessione;
class VistaPrimitive;

// The main panel InsDati: every control of the panel's logic as a widget under its name,
// painted from InsDati after each event; events go to the panel's functions.
class FinestraPrincipale : public QMainWindow {
  Q_OBJECT

 public:
  explicit FinestraPrincipale(Sessione& sessione, QWidget* genitore = nullptr);
  // The panel refreshed from the session, then painted, as after start-up or a load.
  void Aggiorna();
  InsDati& Pannello() { return p_; }
  // The widget of a control of the panel, by name and index; null when it has none.
  QWidget* Widget(const std::string& nome, int indice = -1) const;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;

 private:
  void Dipingi();
  void Registra(QWidget* w, const std::string& nome, int indice = -1);
  QLineEdit* NuovaCasella(FamigliaCasella famiglia, int indice);
  QWidget* PaginaSezioni();
  QWidget* PaginaMateriali();
  QWidget* PaginaSollecitazioni();
  QWidget* Comandi();
  void Menu();
  void ApriEditor(std::optional<FormBulloni> form);
  void Verifica();

  Sessione& s_;
  InsDati p_;
  std::unordered_map<std::string, QWidget*> widget_;
  std::unordered_map<QObject*, qf17::Casella> caselle_;
  // The items each combo shows, to fill it again only when its list changed.
  std::unordered_map<QWidget*, std::vector<std::string>> vociMostrate_;
  VistaPrimitive* schema_ = nullptr;
};

}  // namespace qf17
