#include "screens/qt/qt_host.h"

#include <QEventLoop>
#include <cstdlib>

namespace screens::qt {

FormWindow& QtHost::WindowOf(forms::Form& form) {
  std::unique_ptr<FormWindow>& window = windows_[&form];
  if (!window) {
    form.Form_Load();
    window = std::make_unique<FormWindow>(form);
  }
  return *window;
}

void QtHost::Show(forms::Form& form) {
  FormWindow& window = WindowOf(form);
  window.setWindowModality(Qt::NonModal);
  window.show();
  window.raise();
  window.activateWindow();
}

void QtHost::ShowModal(forms::Form& form, forms::Form& owner) {
  FormWindow& window = WindowOf(form);
  window.setParent(&WindowOf(owner), Qt::Dialog);
  window.setWindowModality(Qt::ApplicationModal);
  QEventLoop until;
  QObject::connect(&window, &FormWindow::Closed, &until, &QEventLoop::quit);
  window.show();
  until.exec();
}

void QtHost::Hide(forms::Form& form) {
  WindowOf(form).hide();
}

// The window may be in the middle of the event that unloads it, so it goes at the next turn.
void QtHost::Unload(forms::Form& form) {
  const auto found = windows_.find(&form);
  if (found == windows_.end()) return;
  found->second->Unload();
  found->second.release()->deleteLater();
  windows_.erase(found);
}

void QtHost::EndProgram() {
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace screens::qt
