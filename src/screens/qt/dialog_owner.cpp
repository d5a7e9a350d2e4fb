#include "screens/qt/dialog_owner.h"

#include <QWindow>
#include <algorithm>
#include <ranges>
#include <vector>

namespace screens::qt {
namespace {

// Innermost last: handlers nest if one runs the event loop.
std::vector<const QWidget*>& Running() {
  static std::vector<const QWidget*> windows;
  return windows;
}

QWindow* Owner() {
  const auto innermostFirst = Running() | std::views::reverse;
  const auto shown = std::ranges::find_if(innermostFirst, [](const QWidget* window) {
    return window->isVisible() && !window->isMinimized();
  });
  return shown == innermostFirst.end() ? nullptr : (*shown)->windowHandle();
}

}  // namespace

RunningHandler::RunningHandler(const QWidget& window) {
  Running().push_back(&window);
}

RunningHandler::~RunningHandler() {
  Running().pop_back();
}

// Sets the owner only on the native window, so that the dialog stays open if the owner closes.
void GiveOwner(QDialog& dialog) {
  dialog.winId();
  dialog.windowHandle()->setTransientParent(Owner());
  dialog.setWindowModality(Qt::ApplicationModal);
}

}  // namespace screens::qt
