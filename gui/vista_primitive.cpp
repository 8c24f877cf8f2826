#include "vista_primitive.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace qf17 {
namespace {

QColor Colore(ColoreAnteprima c, const QPalette& tavolozza) {
  switch (c) {
    case ColoreAnteprima::Asse:
      return QColor(0, 0, 192);
    case ColoreAnteprima::Sezione:
      return tavolozza.color(QPalette::ButtonText);
    case ColoreAnteprima::Area:
      return QColor(0, 0, 255);
    case ColoreAnteprima::Bullone:
      return QColor(0, 128, 0);
  }
  return Qt::black;
}

Qt::PenStyle Tratto(TrattoAnteprima t) {
  switch (t) {
    case TrattoAnteprima::Continuo:
      return Qt::SolidLine;
    case TrattoAnteprima::Tratteggiato:
      return Qt::DashLine;
    case TrattoAnteprima::TrattoPunto:
      return Qt::DashDotLine;
  }
  return Qt::SolidLine;
}

QRectF Estensione(const DisegnoSchermo& d) {
  QRectF r;
  for (const PrimitivaAnteprima& p : d) {
    const double raggio = p.tipo == PrimitivaAnteprima::Tipo::Cerchio ? p.raggio : 0;
    QRectF pezzo(
        QPointF(std::min(p.x1, p.tipo == PrimitivaAnteprima::Tipo::Linea ? p.x2 : p.x1) - raggio,
                std::min(p.y1, p.tipo == PrimitivaAnteprima::Tipo::Linea ? p.y2 : p.y1) - raggio),
        QPointF(std::max(p.x1, p.tipo == PrimitivaAnteprima::Tipo::Linea ? p.x2 : p.x1) + raggio,
                std::max(p.y1, p.tipo == PrimitivaAnteprima::Tipo::Linea ? p.y2 : p.y1) + raggio));
    r = r.isNull() ? pezzo : r.united(pezzo);
  }
  const double margine = 0.08 * std::max(r.width(), r.height());
  return r.adjusted(-margine, -margine, margine, margine);
}

}  // namespace

VistaPrimitive::VistaPrimitive(QWidget* genitore) : QWidget(genitore) {
  setMouseTracking(true);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  setMinimumSize(120, 90);
}

void VistaPrimitive::Imposta(const DisegnoSchermo& disegno, QRectF finestra) {
  disegno_ = disegno;
  finestra_ = finestra.isEmpty() ? Estensione(disegno_) : finestra;
  update();
}

QTransform VistaPrimitive::Trasformazione() const {
  if (finestra_.isEmpty()) return {};
  const double scala = std::min(width() / finestra_.width(), height() / finestra_.height());
  QTransform t;
  t.translate(width() / 2.0, height() / 2.0);
  t.scale(scala, -scala);
  t.translate(-finestra_.center().x(), -finestra_.center().y());
  return t;
}

void VistaPrimitive::paintEvent(QPaintEvent*) {
  QPainter pittore(this);
  pittore.setRenderHint(QPainter::Antialiasing);
  const QTransform t = Trasformazione();
  for (const PrimitivaAnteprima& p : disegno_) {
    QPen penna(Colore(p.colore, palette()), 1, Tratto(p.tratto));
    pittore.setPen(penna);
    switch (p.tipo) {
      case PrimitivaAnteprima::Tipo::Linea:
        pittore.drawLine(t.map(QPointF(p.x1, p.y1)), t.map(QPointF(p.x2, p.y2)));
        break;
      case PrimitivaAnteprima::Tipo::Cerchio: {
        const QPointF centro = t.map(QPointF(p.x1, p.y1));
        const double r = p.raggio * t.m11();
        pittore.drawEllipse(centro, r, r);
        break;
      }
      case PrimitivaAnteprima::Tipo::Testo: {
        // A label stands with its top left corner on its point.
        const QPointF angolo = t.map(QPointF(p.x1, p.y1));
        pittore.drawText(QRectF(angolo, QSizeF(400, 40)), Qt::AlignLeft | Qt::AlignTop,
                         QString::fromStdString(p.testo));
        break;
      }
    }
  }
}

void VistaPrimitive::mouseMoveEvent(QMouseEvent* evento) {
  const QPointF punto = Trasformazione().inverted().map(evento->position());
  emit PuntatoreMosso(punto.x(), punto.y());
}

void VistaPrimitive::mousePressEvent(QMouseEvent* evento) {
  mouseMoveEvent(evento);
  if (evento->button() == Qt::LeftButton) emit Cliccato();
}

}  // namespace qf17
