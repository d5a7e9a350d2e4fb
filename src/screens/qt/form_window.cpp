#include "screens/qt/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <map>
#include <utility>

#include "screens/qt/dialog_owner.h"
#include "screens/qt/qt_painting.h"
#include "screens/qt/run_handler.h"
#include "screens/qt/window_place.h"

namespace screens::qt {
namespace {

constexpr std::pair<int, forms::Key> kKeys[] = {
    {Qt::Key_Up, forms::Key::Up},         {Qt::Key_Down, forms::Key::Down},
    {Qt::Key_Left, forms::Key::Left},     {Qt::Key_Right, forms::Key::Right},
    {Qt::Key_Home, forms::Key::Home},     {Qt::Key_End, forms::Key::End},
    {Qt::Key_Return, forms::Key::Enter},  {Qt::Key_Enter, forms::Key::Enter},
    {Qt::Key_Escape, forms::Key::Escape},
};

// Keys with Alt or Ctrl are left to Qt.
forms::Key KeyOf(const QKeyEvent& event) {
  if (event.modifiers() & (Qt::AltModifier | Qt::ControlModifier)) return forms::Key::Other;
  for (const auto& [key, ours] : kKeys) {
    if (event.key() == key) return ours;
  }
  return forms::Key::Other;
}

}  // namespace

FormWindow::FormWindow(forms::Form& form) : form_(form) {
  setObjectName(ToQt(form.name));
  setMouseTracking(true);
  std::map<const forms::Control*, QWidget*> containers = {{nullptr, this}};
  for (forms::Control& control : form.Controls()) {
    const auto dispatch = [this, &control](const std::function<void()>& handler) {
      Dispatch(control.name, handler);
    };
    if (control.kind == forms::Kind::Timer) {
      timers_.push_back(new FormTimer(
          control, [dispatch, &control] { dispatch(control.onTimer); }, this));
    } else {
      ControlView* view = MakeView(control, dispatch, containers.at(control.container));
      views_.push_back(view);
      containers[&control] = &view->Widget();
      view->Widget().installEventFilter(this);
    }
  }
  SetTabOrder();
  Mirror();
}

void FormWindow::SetTabOrder() {
  std::vector<ControlView*> stops;
  for (ControlView* view : views_) {
    if (view->Model().tabStop) stops.push_back(view);
  }
  std::stable_sort(stops.begin(), stops.end(), [](const ControlView* a, const ControlView* b) {
    return a->Model().tabIndex < b->Model().tabIndex;
  });
  for (std::size_t i = 1; i < stops.size(); ++i) {
    setTabOrder(&stops[i - 1]->Widget(), &stops[i]->Widget());
  }
  // The focus starts at the first usable control.
  if (form_.activeControl != nullptr) return;
  for (const ControlView* view : stops) {
    if (!view->Model().enabled || !view->Model().visible) continue;
    form_.activeControl = &view->Model();
    return;
  }
}

void FormWindow::Retire() {
  retired_ = true;
  for (FormTimer* timer : timers_) timer->Stop();
  hide();
  if (handlers_ == 0) deleteLater();
}

void FormWindow::Dispatch(std::string_view step, const std::function<void()>& handler) {
  if (retired_ || !handler) return;
  const RunningHandler running(*this);
  ++handlers_;
  RunHandler(form_.name, step, handler);
  Mirror();
  emit HandlerDone();
  --handlers_;
  if (retired_ && handlers_ == 0) deleteLater();
}

void FormWindow::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) fitted_ = false;
}

// The desktop has added the frame by the first paint.
void FormWindow::paintEvent(QPaintEvent*) {
  if (!std::exchange(fitted_, true)) {
    QMetaObject::invokeMethod(
        this, [this] { FitOnScreen(*this); }, Qt::QueuedConnection);
  }
  QPainter painter(this);
  painter.fillRect(rect(), ToQt(shownColour_));
  if (!shownPicture_) return;
  PaintPicture(painter, *shownPicture_,
               QRectF(shownPlace_.left / kTwipsPerPixel, shownPlace_.top / kTwipsPerPixel,
                      shownPlace_.width / kTwipsPerPixel, shownPlace_.height / kTwipsPerPixel));
}

void FormWindow::resizeEvent(QResizeEvent*) {
  Dispatch("Form_Resize", [this] {
    form_.scaleWidth = static_cast<float>(width() * kTwipsPerPixel);
    form_.scaleHeight = static_cast<float>(height() * kTwipsPerPixel);
    shownSize_ = size();
    form_.Form_Resize();
  });
}

void FormWindow::moveEvent(QMoveEvent*) {
  if (retired_) return;
  form_.left = static_cast<float>(pos().x() * kTwipsPerPixel);
  form_.top = static_cast<float>(pos().y() * kTwipsPerPixel);
  shownPosition_ = pos();
}

// A minimised form is not laid out, so restoring it counts as a resize.
void FormWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::ActivationChange) ActivationChanged();
  if (event->type() != QEvent::WindowStateChange) return;
  Dispatch("Form_Resize", [this] {
    const bool back = form_.windowState == forms::WindowState::Minimised && !isMinimized();
    form_.windowState = isMinimized()   ? forms::WindowState::Minimised
                        : isMaximized() ? forms::WindowState::Maximised
                                        : forms::WindowState::Normal;
    shownState_ = form_.windowState;
    if (back) form_.Form_Resize();
  });
}

void FormWindow::closeEvent(QCloseEvent* event) {
  bool cancel = false;
  Dispatch("Form_QueryUnload", [&] { form_.Form_QueryUnload(cancel); });
  event->setAccepted(!cancel);
  if (!cancel && !retired_) emit ClosedByUser();
}

void FormWindow::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) emit Hidden();
}

void FormWindow::mouseMoveEvent(QMouseEvent*) {
  Dispatch("Form_MouseMove", [this] { form_.Form_MouseMove(); });
}

void FormWindow::leaveEvent(QEvent*) {
  Dispatch("Form_MouseLeave", [this] { form_.Form_MouseLeave(); });
}

// Both handlers run later, when Qt has settled: a window may still be opening, and a drop-down of
// this window does not count as another window.
void FormWindow::ActivationChanged() {
  const bool activated = isActiveWindow();
  if (activated ? std::exchange(active_, true) : !active_) return;
  QMetaObject::invokeMethod(
      this,
      [this, activated] {
        if (isActiveWindow() != activated) return;
        if (activated) {
          Dispatch("Form_Activate", [this] { form_.Form_Activate(); });
          return;
        }
        if (QApplication::activePopupWidget() != nullptr) return;
        active_ = false;
        if (isVisible()) Dispatch("Form_Deactivate", [this] { form_.Form_Deactivate(); });
      },
      Qt::QueuedConnection);
}

// The event filter has already handled keys of controls.
void FormWindow::keyPressEvent(QKeyEvent* event) {
  const bool seen = ViewOf(focusWidget()) != nullptr;
  if (seen || !PressKey(*event, nullptr)) QWidget::keyPressEvent(event);
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) NoteFocus(watched);
  return event->type() == QEvent::KeyPress &&
         PressKey(*static_cast<const QKeyEvent*>(event), watched);
}

ControlView* FormWindow::ViewOf(const QObject* widget) const {
  for (ControlView* view : views_) {
    if (&view->Widget() == widget) return view;
  }
  return nullptr;
}

void FormWindow::NoteFocus(const QObject* widget) {
  if (retired_) return;
  form_.activeControl = &ViewOf(widget)->Model();
  shownFocus_ = form_.activeControl;
}

bool FormWindow::PressKey(const QKeyEvent& event, const QObject* widget) {
  forms::KeyPress press = {KeyOf(event)};
  // A key held down since before the window opened was not pressed in it.
  const bool once = press.key == forms::Key::Enter || press.key == forms::Key::Escape;
  if (press.key == forms::Key::Other || (once && event.isAutoRepeat())) return false;
  Dispatch("Form_KeyDown", [&] { form_.Form_KeyDown(press); });
  const ControlView* view = ViewOf(widget);
  if (!press.handled && view != nullptr && view->Model().onKeyDown) {
    Dispatch(view->Model().name, [&] { view->Model().onKeyDown(press); });
  }
  return press.handled;
}

}  // namespace screens::qt
