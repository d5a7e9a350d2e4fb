// Makes dialogs belong to the window of the form whose handler opens them.
#pragma once

#include <QDialog>

namespace screens::qt {

// Exists while a handler of the window's form runs.
class RunningHandler {
 public:
  explicit RunningHandler(const QWidget& window);
  ~RunningHandler();
  RunningHandler(const RunningHandler&) = delete;
  RunningHandler& operator=(const RunningHandler&) = delete;
};

// Makes a dialog modal and keeps it above the window of the innermost running handler, ignoring
// hidden and minimised windows.
void GiveOwner(QDialog& dialog);

}  // namespace screens::qt
