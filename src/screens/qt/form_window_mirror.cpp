// FormWindow: showing the form's changes.

#include <utility>

#include "screens/qt/form_window.h"
#include "screens/qt/qt_painting.h"
#include "screens/qt/window_place.h"

namespace screens::qt {
namespace {

QSize ToPixels(float width, float height) {
  return {screens::qt::ToPixels(width), screens::qt::ToPixels(height)};
}

}  // namespace

void FormWindow::Mirror() {
  if (retired_) return;
  setWindowTitle(ToQt(form_.caption));
  MirrorBackground();
  MirrorSize();
  MirrorPosition();
  MirrorControls();
  for (FormTimer* timer : timers_) timer->Mirror();
  MirrorState();
  MirrorFocus();
}

// Qt moves the focus when a focused control is hidden; keep the one that the form wants.
void FormWindow::MirrorControls() {
  forms::Control* const wanted = form_.activeControl;
  const bool moved = wanted != shownFocus_;
  for (ControlView* view : views_) view->Mirror();
  if (moved) form_.activeControl = wanted;
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

// Applies only changes by the form; changes by the user arrive in resizeEvent.
void FormWindow::MirrorSize() {
  setMinimumSize(ToPixels(form_.minimumWidth, form_.minimumHeight).boundedTo(RoomOnScreen(*this)));
  const QSize wanted = ToPixels(form_.scaleWidth, form_.scaleHeight);
  if (std::exchange(shownSize_, wanted) != wanted) resize(wanted);
}

// Likewise.
void FormWindow::MirrorPosition() {
  const QPoint wanted(screens::qt::ToPixels(form_.left), screens::qt::ToPixels(form_.top));
  if (std::exchange(shownPosition_, wanted) != wanted) move(wanted);
}

// Likewise. Minimising keeps the maximised flag, so that restoring maximises again.
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

void FormWindow::MirrorFocus() {
  if (std::exchange(shownFocus_, form_.activeControl) == form_.activeControl) return;
  for (ControlView* view : views_) {
    if (&view->Model() == form_.activeControl) view->Widget().setFocus(Qt::OtherFocusReason);
  }
}

}  // namespace screens::qt
