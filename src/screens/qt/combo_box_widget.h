// A drop-down list.
#pragma once

#include <QComboBox>
#include <QLabel>

#include "screens/qt/control_view.h"

namespace screens::qt {

class ComboBoxWidget : public QComboBox, public ControlView {
  Q_OBJECT

 public:
  ComboBoxWidget(forms::Control& control, Dispatch dispatch, QWidget* parent);

  QWidget& Widget() override { return *this; }
  void Mirror() override;

 protected:
  void paintEvent(QPaintEvent*) override;
  void wheelEvent(QWheelEvent*) override;

 private:
  void MirrorLook();

  QLabel* name_;  // for assistive technology, which would read the selection as the name
  bool entriesChanged_ = true;
};

}  // namespace screens::qt
