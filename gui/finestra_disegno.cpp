#include "finestra_disegno.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMouseEvent>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QToolBar>
#include <QWheelEvent>
#include <algorithm>

namespace qf17 {

VistaFoglio::VistaFoglio(QWidget* genitore) : QWidget(genitore) {
  setAutoFillBackground(true);
  QPalette tavolozza = palette();
  tavolozza.setColor(QPalette::Window, Qt::white);
  setPalette(tavolozza);
  setMinimumSize(400, 300);
}

bool VistaFoglio::Carica(const QString& file) {
  if (!disegno_.load(file)) return false;
  Adatta();
  return true;
}

void VistaFoglio::Adatta() {
  const QSizeF foglio = disegno_.viewBoxF().size();
  if (foglio.isEmpty()) return;
  scala_ = std::min(width() / foglio.width(), height() / foglio.height());
  origine_ =
      QPointF((width() - foglio.width() * scala_) / 2, (height() - foglio.height() * scala_) / 2);
  adattata_ = true;
  update();
}

void VistaFoglio::paintEvent(QPaintEvent*) {
  QPainter pittore(this);
  pittore.setRenderHint(QPainter::Antialiasing);
  const QSizeF foglio = disegno_.viewBoxF().size();
  disegno_.render(&pittore, QRectF(origine_, foglio * scala_));
}

void VistaFoglio::wheelEvent(QWheelEvent* evento) {
  // The point under the pointer stays where it is.
  const double fattore = evento->angleDelta().y() > 0 ? 1.25 : 0.8;
  const QPointF punto = evento->position();
  origine_ = punto - (punto - origine_) * fattore;
  scala_ *= fattore;
  adattata_ = false;
  update();
}

void VistaFoglio::mousePressEvent(QMouseEvent* evento) {
  presa_ = evento->position();
}

void VistaFoglio::mouseMoveEvent(QMouseEvent* evento) {
  if (!(evento->buttons() & Qt::LeftButton)) return;
  origine_ += evento->position() - presa_;
  presa_ = evento->position();
  adattata_ = false;
  update();
}

void VistaFoglio::resizeEvent(QResizeEvent*) {
  if (adattata_) Adatta();
}

FinestraDisegno::FinestraDisegno(QWidget* genitore) : QMainWindow(genitore) {
  vista_ = new VistaFoglio(this);
  setCentralWidget(vista_);
  QToolBar* barra = addToolBar(QStringLiteral("Disegno"));
  barra->addAction(QStringLiteral("Adatta alla finestra"), vista_, &VistaFoglio::Adatta)
      ->setShortcut(QKeySequence(QStringLiteral("F")));
  barra->addAction(QStringLiteral("Stampa..."), this, [this] { Stampa(false); })
      ->setShortcut(QKeySequence::Print);
  barra->addAction(QStringLiteral("Salva PDF..."), this, [this] { Stampa(true); });
  resize(1100, 780);
}

bool FinestraDisegno::Apri(const QString& file, QWidget* vicina) {
  static FinestraDisegno* finestra = nullptr;
  if (finestra == nullptr) finestra = new FinestraDisegno(nullptr);
  if (!finestra->vista_->Carica(file)) return false;
  finestra->file_ = file;
  finestra->setWindowTitle(QStringLiteral("Disegno esecutivo"));
  if (vicina != nullptr && !finestra->isVisible()) finestra->move(vicina->pos() + QPoint(60, 60));
  finestra->show();
  finestra->raise();
  return true;
}

void FinestraDisegno::Stampa(bool pdf) {
  QPrinter stampante(QPrinter::HighResolution);
  stampante.setPageOrientation(QPageLayout::Landscape);
  if (pdf) {
    const QString nome = QFileDialog::getSaveFileName(
        this, QStringLiteral("Salva il disegno in PDF"), QString(), QStringLiteral("PDF (*.pdf)"));
    if (nome.isEmpty()) return;
    stampante.setOutputFormat(QPrinter::PdfFormat);
    stampante.setOutputFileName(nome);
  } else {
    QPrintDialog dialogo(&stampante, this);
    if (dialogo.exec() != QDialog::Accepted) return;
  }
  QPainter pittore(&stampante);
  const QRectF pagina = stampante.pageLayout().paintRectPixels(stampante.resolution());
  const QSizeF foglio = vista_->Disegno().viewBoxF().size();
  const double scala = std::min(pagina.width() / foglio.width(), pagina.height() / foglio.height());
  vista_->Disegno().render(&pittore, QRectF(QPointF(0, 0), foglio * scala));
}

}  // namespace qf17
