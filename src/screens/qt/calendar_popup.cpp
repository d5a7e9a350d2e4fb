#include "screens/qt/calendar_popup.h"

#include <QScreen>
#include <QTextCharFormat>
#include <QToolButton>
#include <utility>

#include "screens/palette.h"
#include "screens/qt/qt_painting.h"

namespace screens::qt {

using namespace Qt::StringLiterals;

// Adds a border, uses letters as arrows, and gives all weekdays the same colour.
CalendarPopup::CalendarPopup(QWidget* field) : QCalendarWidget(field) {
  setWindowFlag(Qt::Popup);
  setVerticalHeaderFormat(NoVerticalHeader);
  setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
  QPalette colours = palette();
  colours.setColor(QPalette::Window, ToQt(palette::kRule));
  setPalette(colours);
  setAutoFillBackground(true);
  setContentsMargins(1, 1, 1, 1);
  for (const auto& [name, arrow] :
       {std::pair(u"qt_calendar_prevmonth"_s, u"‹"_s), {u"qt_calendar_nextmonth"_s, u"›"_s}}) {
    auto* button = findChild<QToolButton*>(name);
    if (button == nullptr) continue;
    button->setIcon({});
    button->setText(arrow);
  }
  QTextCharFormat plain;
  plain.setForeground(ToQt(palette::kInk));
  for (const auto day : {Qt::Saturday, Qt::Sunday}) setWeekdayTextFormat(day, plain);
  connect(this, &QCalendarWidget::clicked, this, &QWidget::close);
  connect(this, &QCalendarWidget::activated, this, &QWidget::close);
}

// Opens above the field if there is no room below.
void CalendarPopup::DropDown(QDate chosen) {
  setSelectedDate(chosen);
  const QWidget& field = *parentWidget();
  const QRect room = field.screen()->availableGeometry();
  const QSize size = sizeHint();
  QPoint at = field.mapToGlobal(QPoint(0, field.height()));
  if (at.y() + size.height() > room.bottom()) at.ry() -= field.height() + size.height();
  at.setX(qBound(room.left(), at.x(), qMax(room.left(), room.right() - size.width())));
  setGeometry(QRect(at, size));
  show();
  setFocus();
}

}  // namespace screens::qt
