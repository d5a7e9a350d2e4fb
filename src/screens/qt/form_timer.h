// A form's timer. Intervals of whole seconds are aligned with the clock, so that a displayed clock
// never skips a second. A handler that is still running is not called again.
#pragma once

#include <QTimer>
#include <functional>

#include "forms/control.h"

namespace screens::qt {

class FormTimer : public QObject {
  Q_OBJECT

 public:
  FormTimer(forms::Control& control, std::function<void()> tick, QObject* parent);

  // Follows the control's interval and enabled state.
  void Mirror();

  // Stops until the next Mirror.
  void Stop();

 private:
  void Schedule();
  void Fire();

  forms::Control& control_;
  std::function<void()> tick_;
  QTimer timer_;
  int interval_ = 0;
  bool running_ = false;
};

}  // namespace screens::qt
