#include "screens/qt/picker_widget.h"

#include <QLineEdit>
#include <QWheelEvent>
#include <utility>

#include "screens/qt/qt_painting.h"

namespace screens::qt {
namespace {

const QDate kFirstDate(100, 1, 1), kLastDate(9999, 12, 31);

}  // namespace

PickerWidget::PickerWidget(forms::Control& control, Dispatch dispatch, QWidget* parent)
    : QDateTimeEdit(parent), ControlView(control, std::move(dispatch)) {
  const bool date = control.kind == forms::Kind::DatePicker;
  setTimeSpec(Qt::UTC);  // no hour is left out for daylight saving
  setDateRange(kFirstDate, kLastDate);
  setDisplayFormat(date ? QStringLiteral("d/MMMM/yyyy") : QStringLiteral("hh:mm AP"));
  setCalendarPopup(date);
  setKeyboardTracking(false);  // half a year is none
  connect(this, &QDateTimeEdit::dateTimeChanged, this, [this] {
    if (!mirroring_) dispatch_([this] { forms::SetMoment(control_, Picked()); });
  });
  shown_.interval = -1;  // unlike any control, so that the first mirroring takes all
  Mirror();
}

foundation::DateTime PickerWidget::Picked() const {
  if (control_.kind == forms::Kind::DatePicker) {
    return foundation::DateFromParts(date().year(), date().month(), date().day());
  }
  return foundation::TimeFromParts(time().hour(), time().minute(), time().second());
}

void PickerWidget::Mirror() {
  const forms::Properties& now = control_;
  if (now == shown_) return;
  Dress(*this, control_, PlaceInPixels(control_));
  setFont(ToQt(now.font));
  lineEdit()->setFont(font());
  mirroring_ = true;
  const foundation::DateTimeFields at = foundation::FieldsOf(now.moment);
  if (control_.kind == forms::Kind::DatePicker) {
    setDate(QDate(at.year, at.month, at.day));
  } else {
    setTime(QTime(at.hour, at.minute, at.second));
  }
  mirroring_ = false;
  shown_ = now;
}

// Turned only while it has the focus.
void PickerWidget::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QDateTimeEdit::wheelEvent(event);
  } else {
    event->ignore();
  }
}

}  // namespace screens::qt
