#pragma once

#include <QRectF>
#include <QWidget>

#include "disegno/primitive_schermo.h"

namespace qf17 {

// Paints a form's picture: its primitives in a window of their own coordinates (y upwards),
// at one scale on both axes so that a circle stays a circle however the widget is resized.
// Reports the pointer in the picture's coordinates.
class VistaPrimitive : public QWidget {
  Q_OBJECT

 public:
  explicit VistaPrimitive(QWidget* genitore = nullptr);
  // The primitives and the window to show; an empty window shows them all with a margin.
  void Imposta(const DisegnoSchermo& disegno, QRectF finestra = {});
  QSize sizeHint() const override { return {260, 180}; }
  // Where a point of the picture stands on the widget.
  QPointF InPixel(double x, double y) const { return Trasformazione().map(QPointF(x, y)); }

 signals:
  void PuntatoreMosso(double x, double y);
  void Cliccato();

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;

 private:
  QTransform Trasformazione() const;

  DisegnoSchermo disegno_;
  QRectF finestra_;
};

}  // namespace qf17
