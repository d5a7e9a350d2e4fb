// A widget that shows one control of a form.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>

#include "forms/control.h"

namespace screens::qt {

class ControlWidget : public QWidget {
  Q_OBJECT

 public:
  // Runs one handler of the form and mirrors what it changed.
  using Dispatch = std::function<void(const std::function<void()>& handler)>;

  ControlWidget(forms::Control& control, Dispatch dispatch, QWidget* parent);

  // Takes over what has changed in the control since the last time.
  void Mirror();

  // As by the mouse.
  void Click();

  const forms::Control& Model() const { return control_; }

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

  forms::Control& control_;
  Dispatch dispatch_;
  forms::Properties shown_;
  QPixmap rendered_;  // the picture at the present size
};

}  // namespace screens::qt
