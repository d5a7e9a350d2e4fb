// A picker of a date, with a calendar to drop down, or of a time of day.
#pragma once

#include <QDateTimeEdit>

#include "screens/qt/control_view.h"

namespace screens::qt {

class DateTimeWidget : public QDateTimeEdit, public ControlView {
  Q_OBJECT

 public:
  DateTimeWidget(forms::Control& control, Dispatch dispatch, QWidget* parent);

  QWidget& Widget() override { return *this; }
  void Mirror() override;

 protected:
  void paintEvent(QPaintEvent*) override;
  void keyPressEvent(QKeyEvent*) override;
  void wheelEvent(QWheelEvent*) override;

 private:
  foundation::DateTime Picked() const;

  bool mirroring_ = false;
};

}  // namespace screens::qt
