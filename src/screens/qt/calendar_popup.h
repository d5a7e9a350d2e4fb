// A calendar that drops down below a field. Its signals `clicked` and `activated` report the date
// chosen by mouse or Enter; Escape or a click outside closes it without a choice.
#pragma once

#include <QCalendarWidget>

namespace screens::qt {

class CalendarPopup : public QCalendarWidget {
  Q_OBJECT

 public:
  explicit CalendarPopup(QWidget* field);

  void DropDown(QDate chosen);
};

}  // namespace screens::qt
