#include "finestra_relazione.h"

#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHash>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QToolBar>

namespace qf17 {

FinestraRelazione::FinestraRelazione(QWidget* genitore) : QMainWindow(genitore) {
  setAttribute(Qt::WA_DeleteOnClose, false);
  testo_ = new QPlainTextEdit(this);
  testo_->setReadOnly(true);
  testo_->setLineWrapMode(QPlainTextEdit::NoWrap);
  const QFont fisso = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  testo_->setFont(fisso);
  testo_->setTabStopDistance(8 * QFontMetricsF(fisso).horizontalAdvance(QLatin1Char(' ')));
  setCentralWidget(testo_);
  QToolBar* barra = addToolBar(QStringLiteral("Relazione"));
  cerca_ = new QLineEdit(barra);
  cerca_->setPlaceholderText(QStringLiteral("Cerca nella relazione"));
  cerca_->setClearButtonEnabled(true);
  barra->addWidget(cerca_);
  connect(cerca_, &QLineEdit::returnPressed, this, &FinestraRelazione::Trova);
  QAction* trova =
      barra->addAction(QStringLiteral("Trova successivo"), this, &FinestraRelazione::Trova);
  trova->setShortcut(QKeySequence::FindNext);
  QAction* cerca = new QAction(this);
  cerca->setShortcut(QKeySequence::Find);
  connect(cerca, &QAction::triggered, cerca_, qOverload<>(&QWidget::setFocus));
  addAction(cerca);
  barra->addAction(QStringLiteral("Stampa..."), this, &FinestraRelazione::Stampa)
      ->setShortcut(QKeySequence::Print);
  barra->addAction(QStringLiteral("Salva PDF..."), this, &FinestraRelazione::SalvaPdf);
  resize(1000, 700);
}

bool FinestraRelazione::Apri(const QString& file, QWidget* vicina) {
  static QHash<QString, FinestraRelazione*> finestre;
  FinestraRelazione*& finestra = finestre[QFileInfo(file).absoluteFilePath()];
  if (finestra == nullptr) finestra = new FinestraRelazione(nullptr);
  if (!finestra->Carica(file)) return false;
  if (vicina != nullptr) finestra->move(vicina->pos() + QPoint(40, 40));
  finestra->show();
  finestra->raise();
  return true;
}

bool FinestraRelazione::Carica(const QString& file) {
  QFile f(file);
  if (!f.open(QIODevice::ReadOnly)) return false;
  file_ = file;
  QString testo = QString::fromUtf8(f.readAll());
  testo.remove(QLatin1Char('\r'));
  testo_->setPlainText(testo);
  setWindowTitle(QFileInfo(file).fileName() + QStringLiteral(" - Relazione di calcolo"));
  return true;
}

void FinestraRelazione::Trova() {
  const QString cercato = cerca_->text();
  if (cercato.isEmpty()) return;
  if (!testo_->find(cercato)) {
    testo_->moveCursor(QTextCursor::Start);
    testo_->find(cercato);
  }
}

void FinestraRelazione::SalvaPdf() {
  const QString pdf =
      QFileDialog::getSaveFileName(this, QStringLiteral("Salva la relazione in PDF"),
                                   QFileInfo(file_).absolutePath() + QStringLiteral("/") +
                                       QFileInfo(file_).baseName() + QStringLiteral(".pdf"),
                                   QStringLiteral("PDF (*.pdf)"));
  if (pdf.isEmpty()) return;
  QPrinter stampante(QPrinter::HighResolution);
  stampante.setOutputFormat(QPrinter::PdfFormat);
  stampante.setOutputFileName(pdf);
  testo_->print(&stampante);
}

void FinestraRelazione::Stampa() {
  QPrinter stampante(QPrinter::HighResolution);
  QPrintDialog dialogo(&stampante, this);
  if (dialogo.exec() == QDialog::Accepted) testo_->print(&stampante);
}

}  // namespace qf17
