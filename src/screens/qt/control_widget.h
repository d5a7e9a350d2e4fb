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

  // Does what a mouse click does.
  void Click();

 protected:
  void paintEvent(QPaintEvent*) override;
  void mouseMoveEvent(QMouseEvent*) override;
  void mousePressEvent(QMouseEvent*) override;
  void mouseReleaseEvent(QMouseEvent*) override;
  void wheelEvent(QWheelEvent*) override;
  void keyPressEvent(QKeyEvent*) override;

 private:
  static constexpr int kShadow = 18;  // pixels on each side of a card

  void NotifyMouse(const std::function<void(forms::MousePoint)>& handler, const QMouseEvent& event);
  int Margin() const { return control_.look == forms::Look::Card ? kShadow : 0; }
  QRect Geometry() const;
  QRectF Body() const;  // without the margin
  QRectF PlaceOfPicture() const;
  QFont CaptionFont() const;
  QString ShownCaption() const;
  void PaintLine(QPainter& painter);
  void PaintBody(QPainter& painter);
  void PaintShadow(QPainter& painter);
  void PaintTile(QPainter& painter);
  void PaintRendered(QPainter& painter, const QRectF& into);
  void PaintCaption(QPainter& painter);

  int wheel_ = 0;     // rotation short of a full step
  QPixmap rendered_;  // the picture at the current size
};

}  // namespace screens::qt
