// A timer of a form. Whole seconds keep step with the clock, so that a clock shown by it never
// leaves a second out; a handler that runs long is not entered a second time.
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

  // For good.
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
