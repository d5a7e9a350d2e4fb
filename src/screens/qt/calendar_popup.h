// A calendar that drops down below a field. Its signals `clicked` and `activated` hand over the
// date chosen by mouse or Enter; Escape and a click outside close it without one.
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
