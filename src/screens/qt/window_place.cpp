#include "screens/qt/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <algorithm>

namespace screens::qt {
namespace {

bool IsOnScreen(const QWindow* window) {
  return window != nullptr && window->isExposed() && window->type() != Qt::Popup;
}

QMargins FrameOf(const QWidget& window) {
  if (IsOnScreen(window.windowHandle())) return window.windowHandle()->frameMargins();
  const QWindowList others = QGuiApplication::topLevelWindows();
  const auto shown = std::ranges::find_if(others, IsOnScreen);
  return shown == others.end() ? QMargins() : (*shown)->frameMargins();
}

// If there is no room for everything, the title bar has priority.
void MoveInto(QRect area, QRect& place) {
  place.moveRight(qMin(place.right(), area.right()));
  place.moveBottom(qMin(place.bottom(), area.bottom()));
  place.moveLeft(qMax(place.left(), area.left()));
  place.moveTop(qMax(place.top(), area.top()));
}

}  // namespace

QSize RoomOnScreen(const QWidget& window) {
  return window.screen()->availableGeometry().marginsRemoved(FrameOf(window)).size();
}

void FitOnScreen(QWidget& window) {
  if (window.windowState() & (Qt::WindowMinimized | Qt::WindowMaximized)) return;
  const QSize room = RoomOnScreen(window);
  window.setMinimumSize(window.minimumSize().boundedTo(room));
  window.resize(window.size().boundedTo(room));
  if (!window.isVisible()) return;
  const QRect before = window.geometry().marginsAdded(FrameOf(window));
  QRect place = before;
  MoveInto(window.screen()->availableGeometry(), place);
  if (place != before) window.move(place.topLeft());
}

void CentreOn(const QWidget& owner, QWidget& window) {
  QRect place = window.geometry().marginsAdded(FrameOf(window));
  place.moveCenter(owner.frameGeometry().center());
  MoveInto(owner.screen()->availableGeometry(), place);
  window.move(place.topLeft());
}

}  // namespace screens::qt
