// A control that the program paints itself: label, image, picture box, shape or line.
#pragma once

#include <QPixmap>
#include <QWidget>

#include "screens/qt/control_view.h"

namespace screens::qt {

class ControlWidget : public QWidget, public ControlView {
  Q_OBJECT

 public:
  ControlWidget(forms::Control& control, Dispatch dispatch, QWidget* parent);

  QWidget& Widget() override { return *this; }
  void Mirror() override;

  // As by the mouse.
  void Click();

 protected:
  void paintEvent(QPaintEvent*) override;
  void mouseMoveEvent(QMouseEvent*) override;
  void mousePressEvent(QMouseEvent*) override;
  void mouseReleaseEvent(QMouseEvent*) override;
  void keyPressEvent(QKeyEvent*) override;

 private:
  QRectF Body() const;  // without the margin that a shadow takes
  void PaintLine(QPainter& painter);
  void PaintBody(QPainter& painter);
  void PaintShadow(QPainter& painter);
  void PaintTile(QPainter& painter);
  void PaintRendered(QPainter& painter, const QRectF& into);
  void PaintCaption(QPainter& painter);

  forms::Properties shown_;
  QPixmap rendered_;  // the picture at the present size
};

}  // namespace screens::qt
