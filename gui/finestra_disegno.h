#pragma once

#include <QMainWindow>
#include <QPointF>
#include <QSvgRenderer>
#include <QWidget>

namespace qf17 {

// The sheet as a picture: zoom on the wheel round the pointer, pan by dragging, fit to the window.
class VistaFoglio : public QWidget {
  Q_OBJECT

 public:
  explicit VistaFoglio(QWidget* genitore = nullptr);
  bool Carica(const QString& file);
  void Adatta();
  QSvgRenderer& Disegno() { return disegno_; }
  double Scala() const { return scala_; }

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void wheelEvent(QWheelEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  QSvgRenderer disegno_;
  double scala_ = 1;  // pixels per unit of the sheet
  QPointF origine_;   // where the sheet's top left corner stands on the widget
  QPointF presa_;     // the pointer where a drag began
  bool adattata_ = true;
};

// The executive sheet shown by the program itself: the preview of what nodo.dis holds, with
// fit, zoom, print and save as PDF. One window, reloaded at each showing.
class FinestraDisegno : public QMainWindow {
  Q_OBJECT

 public:
  static bool Apri(const QString& file, QWidget* vicina);
  VistaFoglio* Vista() const { return vista_; }

 private:
  explicit FinestraDisegno(QWidget* genitore = nullptr);
  void Stampa(bool pdf);

  VistaFoglio* vista_;
  QString file_;
};

}  // namespace qf17
