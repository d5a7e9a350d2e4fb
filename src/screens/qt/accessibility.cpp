#include "screens/qt/accessibility.h"

#include <QAccessibleWidget>

#include "screens/qt/control_widget.h"
#include "screens/qt/form_window.h"
#include "screens/qt/qt_painting.h"

namespace screens::qt {
namespace {

bool HasChildren(const QWidget& widget) {
  return widget.findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly) != nullptr;
}

// Purely visual: a shape, a line, or a picture without words.
bool IsDecoration(QWidget& widget) {
  const auto* painted = qobject_cast<ControlWidget*>(&widget);
  return painted != nullptr && painted->Model().kind != forms::Kind::Label &&
         !HasChildren(widget) &&
         QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name).isEmpty();
}

// A widget that hides its decorations from assistive technology.
class AccessibleContainer : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  int childCount() const override { return static_cast<int>(Exposed().size()); }

  QAccessibleInterface* child(int index) const override {
    return QAccessible::queryAccessibleInterface(Exposed().value(index));
  }

  int indexOfChild(const QAccessibleInterface* child) const override {
    return static_cast<int>(Exposed().indexOf(qobject_cast<QWidget*>(child->object())));
  }

 private:
  QList<QWidget*> Exposed() const {
    QList<QWidget*> exposed;
    for (QWidget* child : widget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      if (!child->isWindow() && !IsDecoration(*child)) exposed.append(child);
    }
    return exposed;
  }
};

class AccessibleForm : public AccessibleContainer {
 public:
  using AccessibleContainer::AccessibleContainer;

  QAccessible::Role role() const override {
    return widget()->isModal() ? QAccessible::Dialog : QAccessible::Window;
  }
};

// Takes its name from the widget, which follows the caption. A picture exposes its words; a tile
// can be pressed.
class AccessibleControl : public AccessibleContainer {
 public:
  using AccessibleContainer::AccessibleContainer;

  QAccessible::Role role() const override {
    const ControlWidget* painted = Painted();
    if (painted == nullptr) return QAccessible::NoRole;
    if (painted->Model().look == forms::Look::Tile) return QAccessible::Button;
    if (painted->Model().kind == forms::Kind::Label) return QAccessible::StaticText;
    return HasChildren(*painted) ? QAccessible::Grouping : QAccessible::Graphic;
  }

  // The words of a picture are its description, or its name if it has no other.
  QString text(QAccessible::Text kind) const override {
    const QString own = AccessibleContainer::text(kind);
    const ControlWidget* painted = Painted();
    const forms::PicturePtr picture = painted ? painted->Model().picture : nullptr;
    const auto target =
        widget()->accessibleName().isEmpty() ? QAccessible::Name : QAccessible::Description;
    const QString words = picture && kind == target ? ToQt(forms::WordsOf(*picture)) : QString();
    return words.isEmpty() ? own : words;
  }

  QStringList actionNames() const override {
    QStringList names = AccessibleContainer::actionNames();
    if (role() == QAccessible::Button && widget()->isEnabled()) names.prepend(pressAction());
    return names;
  }

  // Queued, so that the caller does not wait for the opened window to close.
  void doAction(const QString& name) override {
    if (name == pressAction() && actionNames().contains(name)) {
      QMetaObject::invokeMethod(
          widget(), [painted = Painted()] { painted->Click(); }, Qt::QueuedConnection);
    } else {
      AccessibleContainer::doAction(name);
    }
  }

 private:
  // Null while the widget is being destroyed; Qt still calls this then.
  ControlWidget* Painted() const { return qobject_cast<ControlWidget*>(object()); }
};

QAccessibleInterface* Describe(const QString&, QObject* object) {
  if (auto* window = qobject_cast<FormWindow*>(object)) return new AccessibleForm(window);
  auto* widget = qobject_cast<ControlWidget*>(object);
  return widget ? new AccessibleControl(widget) : nullptr;
}

}  // namespace

void InstallAccessibility() {
  QAccessible::installFactory(Describe);
}

}  // namespace screens::qt
