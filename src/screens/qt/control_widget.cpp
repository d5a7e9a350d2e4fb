#include "screens/qt/control_widget.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWindow>
#include <QtMath>
#include <utility>

#include "screens/qt/qt_painting.h"

namespace screens::qt {

ControlWidget::ControlWidget(forms::Control& control, Dispatch dispatch, QWidget* parent)
    : QWidget(parent), ControlView(control, std::move(dispatch)) {
  setMouseTracking(true);
  setAttribute(Qt::WA_NoSystemBackground);
  Mirror();
}

void ControlWidget::Mirror() {
  const forms::PicturePtr before = shown_ ? shown_->picture : nullptr;
  if (!TakeProperties()) return;
  const forms::Properties& now = control_;
  ApplyShared(*this, control_, Geometry());
  if (control_.kind == forms::Kind::Label) {
    setVisible(now.visible && !now.caption.empty());
    const QString caption = ToQt(now.caption);
    if (now.toolTip.empty() && ShownCaption() != caption) setToolTip(caption);
  }
  // A control without mouse handlers or tool tip lets the mouse through to what is below. A picture
  // box must not: the mouse would bypass its children too.
  const bool ignoresMouse =
      !control_.onClick && !control_.onMouseMove && !control_.onMouseDown && !control_.onMouseWheel;
  setAttribute(Qt::WA_TransparentForMouseEvents,
               ignoresMouse && toolTip().isEmpty() && control_.kind != forms::Kind::PictureBox);
  setCursor(now.grabCursor                  ? Qt::ClosedHandCursor
            : now.handCursor && now.enabled ? Qt::PointingHandCursor
                                            : Qt::ArrowCursor);
  if (now.picture != before) rendered_ = QPixmap();
  update();
}

// A line gets the box around its ends, plus its width.
QRect ControlWidget::Geometry() const {
  if (control_.kind == forms::Kind::Line) {
    const forms::LineEnds& e = control_.ends;
    const QRect box(QPoint(ToPixels(e.x1), ToPixels(e.y1)), QPoint(ToPixels(e.x2), ToPixels(e.y2)));
    const int room = qCeil(control_.borderWidth);
    return box.normalized().adjusted(-room, -room, room, room);
  }
  return PlaceInPixels(control_).adjusted(-Margin(), -Margin(), Margin(), Margin());
}

void ControlWidget::Click() {
  dispatch_(control_.onClick);
}

void ControlWidget::NotifyMouse(const std::function<void(forms::MousePoint)>& handler,
                                const QMouseEvent& event) {
  if (!handler) return;
  const QPointF at = event.position() * kTwipsPerPixel;
  const bool shift =
      event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
  dispatch_([&] { handler({{at.x(), at.y()}, shift}); });
}

void ControlWidget::mouseMoveEvent(QMouseEvent* event) {
  NotifyMouse(control_.onMouseMove, *event);
}

// Under Wayland only the compositor can move windows.
void ControlWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (control_.dragHandle && QGuiApplication::platformName() == u"wayland") {
    window()->windowHandle()->startSystemMove();
    return;
  }
  NotifyMouse(control_.onMouseDown, *event);
}

void ControlWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  NotifyMouse(control_.onMouseUp, *event);
  if (rect().contains(event->position().toPoint())) Click();
}

void ControlWidget::wheelEvent(QWheelEvent* event) {
  if (!control_.onMouseWheel) {
    event->ignore();
    return;
  }
  wheel_ += event->angleDelta().y();
  const int steps = wheel_ / QWheelEvent::DefaultDeltasPerStep;
  wheel_ %= QWheelEvent::DefaultDeltasPerStep;
  if (steps != 0) dispatch_([&] { control_.onMouseWheel(steps); });
}

void ControlWidget::keyPressEvent(QKeyEvent* event) {
  if (event->isAutoRepeat()) return;
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      Click();
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace screens::qt
