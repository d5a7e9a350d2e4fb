// A push button.
#pragma once

#include <QPushButton>

#include "screens/qt/control_view.h"

namespace screens::qt {

class ButtonWidget : public QPushButton, public ControlView {
  Q_OBJECT

 public:
  ButtonWidget(forms::Control& control, Dispatch dispatch, QWidget* parent);

  QWidget& Widget() override { return *this; }
  void Mirror() override;
};

// The style sheet of all buttons, by look.
QString ButtonStyle();

}  // namespace screens::qt
