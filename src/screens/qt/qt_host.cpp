#include "screens/qt/qt_host.h"

#include <QEventLoop>
#include <QPointer>
#include <QWindow>
#include <cstdlib>
#include <vector>

#include "screens/qt/window_place.h"

namespace screens::qt {

QtHost::~QtHost() {
  for (const auto& [form, window] : windows_) delete window;
}

// Creates the window before loading the form: a form that runs the event loop while loading must
// not be loaded twice.
FormWindow& QtHost::WindowOf(forms::Form& form) {
  if (const auto found = windows_.find(&form); found != windows_.end()) return *found->second;
  auto* window = new FormWindow(form);
  windows_.emplace(&form, window);
  QObject::connect(window, &FormWindow::ClosedByUser, window, [this, &form] { Unload(form); });
  QObject::connect(window, &FormWindow::HandlerDone, window,
                   [this, window] { MirrorOthers(window); });
  try {
    form.Form_Load();
  } catch (...) {
    Unload(form);
    throw;
  }
  window->Mirror();
  return *window;
}

// Mirrors the other windows, any of which may close meanwhile.
void QtHost::MirrorOthers(const FormWindow* window) {
  std::vector<FormWindow*> others;
  for (const auto& [form, other] : windows_) {
    if (other != window && other->isVisible()) others.push_back(other);
  }
  for (FormWindow* other : others) other->Mirror();
}

void QtHost::Show(forms::Form& form) {
  FormWindow& window = WindowOf(form);
  if (window.IsRetired()) return;  // unloaded while loading
  window.Mirror();
  window.setWindowModality(Qt::NonModal);
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  if (!window.isVisible()) FitOnScreen(window);
  window.show();
  window.raise();
  window.activateWindow();
}

void QtHost::ShowModal(forms::Form& form, forms::Form& owner) {
  const QPointer<FormWindow> window = &WindowOf(form);
  if (window->IsRetired()) return;
  window->Mirror();
  window->hide();  // modality takes effect at the next show
  window->setWindowModality(Qt::ApplicationModal);
  window->winId();  // creates the native window, which gets the owner
  const FormWindow& behind = WindowOf(owner);
  window->windowHandle()->setTransientParent(behind.windowHandle());
  window->setScreen(behind.screen());
  FitOnScreen(*window);
  CentreOn(behind, *window);
  QEventLoop loop;
  QObject::connect(window, &FormWindow::Hidden, &loop, &QEventLoop::quit);
  QObject::connect(window, &QObject::destroyed, &loop, &QEventLoop::quit);
  window->show();
  // Its first events may have unloaded it before it could be hidden.
  if (!window) return;
  if (window->IsRetired()) {
    window->hide();
  } else {
    loop.exec();
  }
}

void QtHost::Hide(forms::Form& form) {
  if (const auto found = windows_.find(&form); found != windows_.end()) found->second->hide();
}

bool QtHost::IsShown(const forms::Form& form) const {
  const auto found = windows_.find(&form);
  return found != windows_.end() && (found->second->isVisible() || found->second->isMinimized());
}

void QtHost::Unload(forms::Form& form) {
  const auto found = windows_.find(&form);
  if (found == windows_.end()) return;
  FormWindow* window = found->second;
  windows_.erase(found);
  window->Retire();
  for (forms::Control& control : form.Controls()) pages_.erase(&control);
}

forms::DrawingTarget& QtHost::TargetOf(forms::Control& pictureBox) {
  return pages_.try_emplace(&pictureBox, pictureBox, measure_).first->second;
}

void QtHost::EndProgram() {
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace screens::qt
