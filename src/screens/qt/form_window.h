// The window of a form: mirrors its controls to widgets and forwards the user's events.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "forms/form.h"
#include "screens/qt/control_widget.h"
#include "screens/qt/second_timer.h"

namespace screens::qt {

class FormWindow : public QWidget {
  Q_OBJECT

 public:
  explicit FormWindow(forms::Form& form);

  forms::Form& Model() { return form_; }

  // Takes over what has changed in the form and its controls.
  void Mirror();

  // Closes without asking the form.
  void Unload();

 signals:
  void Closed();

 protected:
  void paintEvent(QPaintEvent*) override;
  void resizeEvent(QResizeEvent*) override;
  void changeEvent(QEvent*) override;
  void closeEvent(QCloseEvent*) override;
  void hideEvent(QHideEvent*) override;
  void leaveEvent(QEvent*) override;

 private:
  // Runs a handler of the form, if there is one, and then mirrors.
  void Dispatch(const std::function<void()>& handler);

  forms::Form& form_;
  std::vector<ControlWidget*> widgets_;
  std::vector<SecondTimer*> timers_;
  bool unloading_ = false;
};

// Runs one handler at the top of the event loop. An error that comes out of it is told in one box
// and ends the program with exit status 1.
void RunHandler(const std::function<void()>& handler);

}  // namespace screens::qt
