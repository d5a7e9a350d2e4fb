#include "screens/qt/accessibility.h"

#include <QAccessibleWidget>

#include "screens/qt/control_widget.h"

namespace screens::qt {
namespace {

QAccessible::Role RoleOf(const forms::Control& control) {
  if (control.look == forms::Look::Tile) return QAccessible::Button;
  return control.kind == forms::Kind::Label ? QAccessible::StaticText : QAccessible::Graphic;
}

// Takes its name from the widget, which follows the caption; a tile can be pressed.
class AccessibleControl : public QAccessibleWidget {
 public:
  explicit AccessibleControl(ControlWidget* widget)
      : QAccessibleWidget(widget, RoleOf(widget->Model())) {}

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (role() == QAccessible::Button && widget()->isEnabled()) names.prepend(pressAction());
    return names;
  }

  void doAction(const QString& name) override {
    if (name == pressAction() && actionNames().contains(name)) {
      static_cast<ControlWidget*>(widget())->Click();
    } else {
      QAccessibleWidget::doAction(name);
    }
  }
};

QAccessibleInterface* Describe(const QString&, QObject* object) {
  auto* widget = qobject_cast<ControlWidget*>(object);
  return widget ? new AccessibleControl(widget) : nullptr;
}

}  // namespace

void InstallAccessibility() {
  QAccessible::installFactory(Describe);
}

}  // namespace screens::qt
