// The window of a form: mirrors its controls in widgets and forwards the user's events.
#pragma once

#include <QWidget>
#include <functional>
#include <string_view>
#include <vector>

#include "forms/form.h"
#include "screens/qt/control_view.h"
#include "screens/qt/form_timer.h"

namespace screens::qt {

// Refers to its form until retired.
class FormWindow : public QWidget {
  Q_OBJECT

 public:
  explicit FormWindow(forms::Form& form);

  // Shows what changed in the form and its controls.
  void Mirror();

  bool IsRetired() const { return retired_; }

  // Hides the window and detaches it from its form, which receives no more events or timer ticks.
  // The window is deleted once none of its handlers is running.
  void Retire();

 signals:
  void ClosedByUser();  // and the form did not cancel
  void Hidden();        // by the program or by closing, not by minimising
  void HandlerDone();   // other forms may have changed too

 protected:
  void showEvent(QShowEvent*) override;
  void paintEvent(QPaintEvent*) override;
  void resizeEvent(QResizeEvent*) override;
  void moveEvent(QMoveEvent*) override;
  void changeEvent(QEvent*) override;
  void closeEvent(QCloseEvent*) override;
  void hideEvent(QHideEvent*) override;
  void mouseMoveEvent(QMouseEvent*) override;
  void leaveEvent(QEvent*) override;
  void keyPressEvent(QKeyEvent*) override;
  bool eventFilter(QObject* watched, QEvent* event) override;  // of the controls' widgets

 private:
  // Runs a handler of the form, unless it is empty, then mirrors. `step` names its control or
  // event.
  void Dispatch(std::string_view step, const std::function<void()>& handler);
  void MirrorControls();
  void MirrorBackground();
  void MirrorSize();
  void MirrorPosition();
  void MirrorState();
  void MirrorFocus();
  void SetTabOrder();
  void NoteFocus(const QObject* widget);
  // Offers the key to the form, then to the control, if any. Returns whether either handled it.
  bool PressKey(const QKeyEvent& event, const QObject* widget);
  ControlView* ViewOf(const QObject* widget) const;
  void ActivationChanged();

  forms::Form& form_;
  std::vector<ControlView*> views_;
  std::vector<FormTimer*> timers_;
  forms::Place shownPlace_;
  forms::PicturePtr shownPicture_;
  forms::Colour shownColour_ = forms::kTransparent;
  QSize shownSize_;
  QPoint shownPosition_;
  forms::WindowState shownState_ = forms::WindowState::Normal;
  const forms::Control* shownFocus_ = nullptr;
  bool active_ = false;
  bool fitted_ = false;
  int handlers_ = 0;  // running; they nest if one runs the event loop
  bool retired_ = false;
};

}  // namespace screens::qt
