#include "screens/qt/form_window.h"

#include <QCloseEvent>
#include <QMessageBox>
#include <QPainter>
#include <cstdlib>

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
  try {
    handler();
  } catch (const foundation::Error& error) {
    QMessageBox::critical(nullptr, foundation::kProgramName, error.what());
    std::_Exit(EXIT_FAILURE);
  }
}

FormWindow::FormWindow(forms::Form& form) : form_(form) {
  setObjectName(ToQt(form.name));
  setMouseTracking(true);
  const auto dispatch = [this](const std::function<void()>& handler) { Dispatch(handler); };
  for (forms::Control& control : form.Controls()) {
    if (control.kind == forms::Kind::Timer) {
      timers_.push_back(new SecondTimer(
          control, [this, &control] { Dispatch(control.onTimer); }, this));
    } else {
      widgets_.push_back(new ControlWidget(control, dispatch, this));
    }
  }
  setMinimumSize(ToPixels(form.minimumWidth, form.minimumHeight));
  resize(ToPixels(form.scaleWidth, form.scaleHeight));
  Mirror();
}

void FormWindow::Mirror() {
  setWindowTitle(ToQt(form_.caption));
  for (ControlWidget* widget : widgets_) widget->Mirror();
  for (SecondTimer* timer : timers_) timer->Mirror();
}

void FormWindow::Unload() {
  unloading_ = true;
  close();
}

void FormWindow::Dispatch(const std::function<void()>& handler) {
  if (!handler) return;
  RunHandler(handler);
  Mirror();
}

void FormWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), ToQt(form_.backColour));
  if (!form_.picture) return;
  const forms::Place& at = form_.paintedPicture;
  PaintPicture(painter, *form_.picture,
               QRectF(at.left / kTwipsPerPixel, at.top / kTwipsPerPixel, at.width / kTwipsPerPixel,
                      at.height / kTwipsPerPixel));
}

void FormWindow::resizeEvent(QResizeEvent*) {
  form_.scaleWidth = static_cast<float>(width() * kTwipsPerPixel);
  form_.scaleHeight = static_cast<float>(height() * kTwipsPerPixel);
  Dispatch([this] { form_.Form_Resize(); });
}

void FormWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::WindowStateChange) {
    form_.windowState = isMinimized()   ? forms::WindowState::Minimised
                        : isMaximized() ? forms::WindowState::Maximised
                                        : forms::WindowState::Normal;
  }
  QWidget::changeEvent(event);
}

void FormWindow::closeEvent(QCloseEvent* event) {
  bool cancel = false;
  if (!unloading_) Dispatch([&] { form_.Form_QueryUnload(cancel); });
  event->setAccepted(!cancel);
}

void FormWindow::hideEvent(QHideEvent*) {
  emit Closed();
}

void FormWindow::leaveEvent(QEvent*) {
  Dispatch([this] { form_.Form_MouseLeave(); });
}

}  // namespace screens::qt
