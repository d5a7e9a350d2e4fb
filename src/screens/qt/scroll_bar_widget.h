// A scroll bar.
#pragma once

#include <QScrollBar>

#include "screens/qt/control_view.h"

namespace screens::qt {

class ScrollBarWidget : public QScrollBar, public ControlView {
  Q_OBJECT

 public:
  ScrollBarWidget(forms::Control& control, Dispatch dispatch, QWidget* parent);

  QWidget& Widget() override { return *this; }
  void Mirror() override;

 private:
  bool mirroring_ = false;
};

}  // namespace screens::qt
