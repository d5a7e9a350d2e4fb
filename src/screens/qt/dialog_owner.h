// Which window a dialog belongs to: that of the form whose handler opens it.
#pragma once

#include <QDialog>

namespace screens::qt {

// Lives while a handler of the window's form runs.
class RunningHandler {
 public:
  explicit RunningHandler(const QWidget& window);
  ~RunningHandler();
  RunningHandler(const RunningHandler&) = delete;
  RunningHandler& operator=(const RunningHandler&) = delete;
};

// Makes a dialog modal and keeps it above the window of the innermost running handler; windows that
// are hidden or minimised do not count.
void GiveOwner(QDialog& dialog);

}  // namespace screens::qt
