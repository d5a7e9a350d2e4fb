#include "screens/qt/qt_host.h"

#include <QEventLoop>
#include <QWindow>
#include <cstdlib>

namespace screens::qt {

QtHost::~QtHost() {
  for (const auto& [form, window] : windows_) delete window;
}

FormWindow& QtHost::WindowOf(forms::Form& form) {
  if (const auto found = windows_.find(&form); found != windows_.end()) return *found->second;
  form.Form_Load();
  auto* window = new FormWindow(form);
  windows_.emplace(&form, window);
  QObject::connect(window, &FormWindow::ClosedByUser, window, [this, &form] { Unload(form); });
  return *window;
}

void QtHost::Show(forms::Form& form) {
  FormWindow& window = WindowOf(form);
  window.setWindowModality(Qt::NonModal);
  if (window.isMinimized()) window.showNormal();
  window.show();
  window.raise();
  window.activateWindow();
}

void QtHost::ShowModal(forms::Form& form, forms::Form& owner) {
  FormWindow& window = WindowOf(form);
  window.setWindowModality(Qt::ApplicationModal);
  window.winId();  // makes the native window, which alone is told its owner
  window.windowHandle()->setTransientParent(WindowOf(owner).windowHandle());
  QEventLoop until;
  QObject::connect(&window, &FormWindow::Hidden, &until, &QEventLoop::quit);
  QObject::connect(&window, &QObject::destroyed, &until, &QEventLoop::quit);
  window.show();
  until.exec();
}

void QtHost::Hide(forms::Form& form) {
  WindowOf(form).hide();
}

void QtHost::Unload(forms::Form& form) {
  const auto found = windows_.find(&form);
  if (found == windows_.end()) return;
  FormWindow* window = found->second;
  windows_.erase(found);
  window->Retire();
}

void QtHost::EndProgram() {
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace screens::qt
