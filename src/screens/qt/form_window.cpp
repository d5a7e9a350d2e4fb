#include "screens/qt/form_window.h"

#include <QCloseEvent>
#include <QMessageBox>
#include <QPainter>
#include <cstdlib>
#include <exception>
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

// Timers go on below the box; an error of theirs is not told any more.
void EndWith(const char* description) {
  static bool ending = false;
  if (std::exchange(ending, true)) return;
  QMessageBox::critical(nullptr, foundation::kProgramName, description);
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

void RunHandler(const std::function<void()>& handler) {
  try {
    handler();
  } catch (const foundation::Error& error) {
    EndWith(error.what());
  } catch (const std::exception&) {
    EndWith("Internal error");
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
  Mirror();
}

void FormWindow::Mirror() {
  if (retired_) return;
  setWindowTitle(ToQt(form_.caption));
  MirrorBackground();
  MirrorSize();
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

// Only what the form itself has changed; the user's own changes have come in by resizeEvent.
void FormWindow::MirrorSize() {
  setMinimumSize(ToPixels(form_.minimumWidth, form_.minimumHeight));
  const QSize wanted = ToPixels(form_.scaleWidth, form_.scaleHeight);
  if (std::exchange(shownSize_, wanted) != wanted) resize(wanted);
}

// Likewise. A window that was maximised before it was minimised keeps that in mind.
void FormWindow::MirrorState() {
  if (std::exchange(shownState_, form_.windowState) == form_.windowState) return;
  switch (form_.windowState) {
    case forms::WindowState::Minimised:
      setWindowState(windowState() | Qt::WindowMinimized);
      break;
    case forms::WindowState::Maximised:
      setWindowState(Qt::WindowMaximized);
      break;
    case forms::WindowState::Normal:
      setWindowState(Qt::WindowNoState);
  }
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
    shownSize_ = size();
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
    shownState_ = form_.windowState;
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
