// A text box with a remark at its right end.
#pragma once

#include <QLineEdit>

#include "screens/qt/control_view.h"

namespace screens::qt {

class TextBoxWidget : public QLineEdit, public ControlView {
  Q_OBJECT

 public:
  TextBoxWidget(forms::Control& control, Dispatch dispatch, QWidget* parent);

  QWidget& Widget() override { return *this; }
  void Mirror() override;

 protected:
  void showEvent(QShowEvent*) override;
  void paintEvent(QPaintEvent*) override;
  void focusInEvent(QFocusEvent*) override;
  void mouseReleaseEvent(QMouseEvent*) override;

 private:
  QFont RemarkFont() const;

  bool clickedInto_ = false;  // the click that gave it the focus is not released yet
};

}  // namespace screens::qt
