#include "screens/qt/date_time_widget.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QTextCharFormat>
#include <QToolButton>
#include <QWheelEvent>
#include <utility>

#include "screens/palette.h"
#include "screens/qt/qt_painting.h"

namespace screens::qt {
namespace {

using namespace Qt::StringLiterals;

constexpr int kButtons = 42;     // pixels for arrows and padding
constexpr int kArrowInset = 14;  // from the right edge to the middle of an arrow

const QDate kFirstDate(100, 1, 1), kLastDate(9999, 12, 31);

// With a line around it, and arrows that are letters; and no day of the week is more than another.
void DressCalendar(QCalendarWidget& calendar) {
  QPalette colours = calendar.palette();
  colours.setColor(QPalette::Window, ToQt(palette::kRule));
  calendar.setPalette(colours);
  calendar.setAutoFillBackground(true);
  calendar.setContentsMargins(1, 1, 1, 1);
  for (const auto& [name, arrow] :
       {std::pair(u"qt_calendar_prevmonth"_s, u"‹"_s), {u"qt_calendar_nextmonth"_s, u"›"_s}}) {
    auto* button = calendar.findChild<QToolButton*>(name);
    if (button == nullptr) continue;
    button->setIcon({});
    button->setText(arrow);
  }
  QTextCharFormat plain;
  plain.setForeground(ToQt(palette::kInk));
  for (const auto day : {Qt::Saturday, Qt::Sunday}) calendar.setWeekdayTextFormat(day, plain);
}

}  // namespace

DateTimeWidget::DateTimeWidget(forms::Control& control, Dispatch dispatch, QWidget* parent)
    : QDateTimeEdit(parent), ControlView(control, std::move(dispatch)) {
  const bool date = control.kind == forms::Kind::DatePicker;
  setTimeSpec(Qt::UTC);  // no hour is left out for daylight saving
  setDateRange(kFirstDate, kLastDate);
  setDisplayFormat(date ? QStringLiteral("d/MMMM/yyyy") : QStringLiteral("hh:mm AP"));
  setCalendarPopup(date);
  if (date) DressCalendar(*calendarWidget());
  setKeyboardTracking(false);  // half a year is none
  connect(this, &QDateTimeEdit::dateTimeChanged, this, [this] {
    if (!mirroring_) dispatch_([this] { forms::SetMoment(control_, Picked()); });
  });
  Mirror();
}

foundation::DateTime DateTimeWidget::Picked() const {
  if (control_.kind == forms::Kind::DatePicker) {
    return foundation::DateFromParts(date().year(), date().month(), date().day());
  }
  return foundation::TimeFromParts(time().hour(), time().minute(), time().second());
}

void DateTimeWidget::Mirror() {
  if (!TakeProperties()) return;
  const forms::Properties& now = control_;
  Dress(*this, control_, PlaceInPixels(control_));
  const QString longest = locale().toString(QDate(2026, 9, 30), QStringLiteral("d/MMMM/yyyy"));
  setFont(Fitted(ToQt(now.font), longest, width() - kButtons));
  lineEdit()->setFont(font());
  mirroring_ = true;
  const foundation::DateTimeFields at = foundation::FieldsOf(now.moment);
  if (control_.kind == forms::Kind::DatePicker) {
    setDate(QDate(at.year, at.month, at.day));
  } else {
    setTime(QTime(at.hour, at.minute, at.second));
  }
  mirroring_ = false;
}

// The style leaves the arrows to us: one that drops the calendar down, or two that step.
void DateTimeWidget::paintEvent(QPaintEvent* event) {
  QDateTimeEdit::paintEvent(event);
  QPainter painter(this);
  const double middle = height() / 2.0, x = width() - kArrowInset;
  if (control_.kind == forms::Kind::DatePicker) {
    PaintArrow(painter, {x, middle + 1}, 1);
  } else {
    PaintArrow(painter, {x, middle - 5}, -1);
    PaintArrow(painter, {x, middle + 5}, 1);
  }
}

// The toolkit drops the calendar down for the mouse alone, so its arrow is pressed for Alt and
// Down, and for F4, as in a drop-down list.
void DateTimeWidget::keyPressEvent(QKeyEvent* event) {
  const bool drop = event->key() == Qt::Key_F4 ||
                    (event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier);
  if (!drop || !calendarPopup()) {
    QDateTimeEdit::keyPressEvent(event);
    return;
  }
  const QPointF arrow(width() - kArrowInset, height() / 2.0);
  QMouseEvent press(QEvent::MouseButtonPress, arrow, mapToGlobal(arrow), Qt::LeftButton,
                    Qt::LeftButton, Qt::NoModifier);
  mousePressEvent(&press);
}

// Turned only while it has the focus.
void DateTimeWidget::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QDateTimeEdit::wheelEvent(event);
  } else {
    event->ignore();
  }
}

}  // namespace screens::qt
