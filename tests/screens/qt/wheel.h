// Turns the wheel over a widget, one step down.
#pragma once

#include <QApplication>
#include <QWheelEvent>
#include <QWidget>

namespace screens::qt {

// Returns whether the widget accepts the event, so that nothing else scrolls.
inline bool AcceptsWheel(QWidget& widget) {
  const QPointF over = QRectF(widget.rect()).center();
  QWheelEvent wheel(over, widget.mapToGlobal(over), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&widget, &wheel);
  return wheel.isAccepted();
}

}  // namespace screens::qt
