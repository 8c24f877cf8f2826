#pragma once

#include <QMainWindow>

class QPlainTextEdit;
class QLineEdit;

namespace qf17 {

// A report as a text editor shows it: fixed-width font, tabs every eight characters, find, print
// and save as PDF. One window per report file; opening the same file again reloads it.
class FinestraRelazione : public QMainWindow {
  Q_OBJECT

 public:
  // Shows `file` in its window (made on first use, kept by the application). False when the
  // file cannot be read.
  static bool Apri(const QString& file, QWidget* vicina);
  bool Carica(const QString& file);
  QPlainTextEdit* Testo() const { return testo_; }

 private:
  explicit FinestraRelazione(QWidget* genitore = nullptr);
  void Trova();
  void SalvaPdf();
  void Stampa();

  QPlainTextEdit* testo_;
  QLineEdit* cerca_;
  QString file_;
};

}  // namespace qf17
