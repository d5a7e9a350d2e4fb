#include "screens/qt/form_window.h"

#include <QCloseEvent>
#include <QMessageBox>
#include <QPainter>
#include <cstdlib>
#include <map>
#include <utility>

#include "foundation/error.h"
#include "foundation/version.h"
#include "screens/qt/qt_painting.h"

namespace screens::qt {
namespace {

QSize ToPixels(float width, float height) {
  return {qRound(width / kTwipsPerPixel), qRound(height / kTwipsPerPixel)};
}

}  // namespace

void RunHandler(const std::function<void()>& handler) {
  static bool ending = false;
  try {
    handler();
  } catch (const foundation::Error& error) {
    if (std::exchange(ending, true)) return;  // a timer below the box
    QMessageBox::critical(nullptr, foundation::kProgramName, error.what());
    std::_Exit(EXIT_FAILURE);
  }
}

FormWindow::FormWindow(forms::Form& form) : form_(form) {
  setObjectName(ToQt(form.name));
  setMouseTracking(true);
  const auto dispatch = [this](const std::function<void()>& handler) { Dispatch(handler); };
  std::map<const forms::Control*, QWidget*> containers = {{nullptr, this}};
  for (forms::Control& control : form.Controls()) {
    if (control.kind == forms::Kind::Timer) {
      timers_.push_back(new SecondTimer(
          control, [this, &control] { Dispatch(control.onTimer); }, this));
    } else {
      auto* widget = new ControlWidget(control, dispatch, containers.at(control.container));
      widgets_.push_back(widget);
      containers[&control] = widget;
    }
  }
  setMinimumSize(ToPixels(form.minimumWidth, form.minimumHeight));
  resize(ToPixels(form.scaleWidth, form.scaleHeight));
  Mirror();
}

void FormWindow::Mirror() {
  if (retired_) return;
  setWindowTitle(ToQt(form_.caption));
  MirrorBackground();
  for (ControlWidget* widget : widgets_) widget->Mirror();
  for (SecondTimer* timer : timers_) timer->Mirror();
  MirrorState();
}

void FormWindow::MirrorBackground() {
  if (form_.backColour == shownColour_ && form_.picture == shownPicture_ &&
      form_.paintedPicture == shownPlace_) {
    return;
  }
  shownColour_ = form_.backColour;
  shownPicture_ = form_.picture;
  shownPlace_ = form_.paintedPicture;
  update();
}

void FormWindow::MirrorState() {
  const Qt::WindowStates wanted =
      form_.windowState == forms::WindowState::Minimised   ? Qt::WindowMinimized
      : form_.windowState == forms::WindowState::Maximised ? Qt::WindowMaximized
                                                           : Qt::WindowNoState;
  const Qt::WindowStates mask = Qt::WindowMinimized | Qt::WindowMaximized;
  if ((windowState() & mask) != wanted) setWindowState((windowState() & ~mask) | wanted);
}

void FormWindow::Retire() {
  retired_ = true;
  for (SecondTimer* timer : timers_) timer->Stop();
  hide();
  if (handlers_ == 0) deleteLater();
}

void FormWindow::Dispatch(const std::function<void()>& handler) {
  if (retired_ || !handler) return;
  ++handlers_;
  RunHandler(handler);
  Mirror();
  --handlers_;
  if (retired_ && handlers_ == 0) deleteLater();
}

void FormWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), ToQt(shownColour_));
  if (!shownPicture_) return;
  PaintPicture(painter, *shownPicture_,
               QRectF(shownPlace_.left / kTwipsPerPixel, shownPlace_.top / kTwipsPerPixel,
                      shownPlace_.width / kTwipsPerPixel, shownPlace_.height / kTwipsPerPixel));
}

void FormWindow::resizeEvent(QResizeEvent*) {
  Dispatch([this] {
    form_.scaleWidth = static_cast<float>(width() * kTwipsPerPixel);
    form_.scaleHeight = static_cast<float>(height() * kTwipsPerPixel);
    form_.Form_Resize();
  });
}

// A form is not laid out while it is minimised, so that coming back counts as a resize.
void FormWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange) return;
  Dispatch([this] {
    const bool back = form_.windowState == forms::WindowState::Minimised && !isMinimized();
    form_.windowState = isMinimized()   ? forms::WindowState::Minimised
                        : isMaximized() ? forms::WindowState::Maximised
                                        : forms::WindowState::Normal;
    if (back) form_.Form_Resize();
  });
}

void FormWindow::closeEvent(QCloseEvent* event) {
  bool cancel = false;
  Dispatch([&] { form_.Form_QueryUnload(cancel); });
  event->setAccepted(!cancel);
  if (!cancel && !retired_) emit ClosedByUser();
}

void FormWindow::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) emit Hidden();
}

void FormWindow::mouseMoveEvent(QMouseEvent*) {
  Dispatch([this] { form_.Form_MouseMove(); });
}

void FormWindow::leaveEvent(QEvent*) {
  Dispatch([this] { form_.Form_MouseLeave(); });
}

}  // namespace screens::qt
