#include "screens/qt/accessibility.h"

#include <QAccessibleWidget>

#include "screens/qt/control_widget.h"

namespace screens::qt {
namespace {

QAccessible::Role RoleOf(const forms::Control& control) {
  if (control.look == forms::Look::Tile) return QAccessible::Button;
  return control.kind == forms::Kind::Label ? QAccessible::StaticText : QAccessible::Graphic;
}

QAccessibleInterface* Describe(const QString&, QObject* object) {
  auto* widget = qobject_cast<ControlWidget*>(object);
  return widget ? new QAccessibleWidget(widget, RoleOf(widget->Model()), widget->accessibleName())
                : nullptr;
}

}  // namespace

void InstallAccessibility() {
  QAccessible::installFactory(Describe);
}

}  // namespace screens::qt
