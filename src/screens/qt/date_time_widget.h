// A picker of a date, with a calendar to drop down, or of a time of day. Its text is typed freely
// and taken by Enter, or when the focus leaves.
#pragma once

#include <QAbstractSpinBox>

#include "screens/qt/calendar_popup.h"
#include "screens/qt/control_view.h"

namespace screens::qt {

class DateTimeWidget : public QAbstractSpinBox, public ControlView {
  Q_OBJECT

 public:
  DateTimeWidget(forms::Control& control, Dispatch dispatch, QWidget* parent);

  QWidget& Widget() override { return *this; }
  void Mirror() override;
  void stepBy(int steps) override;

 protected:
  StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }
  void paintEvent(QPaintEvent*) override;
  void keyPressEvent(QKeyEvent*) override;
  void mousePressEvent(QMouseEvent*) override;
  void focusInEvent(QFocusEvent*) override;
  void focusOutEvent(QFocusEvent*) override;
  void wheelEvent(QWheelEvent*) override;

 private:
  bool IsDate() const { return control_.kind == forms::Kind::DatePicker; }
  QString Longest() const;
  void ShowMoment();
  bool Take();  // whether what stands there is the moment now
  void DropDown();
  bool Separates(QChar character) const;  // two parts of the text
  int PartAtCursor() const;
  void SelectPart(int part);

  bool typed_ = false;                 // text that has not been taken
  CalendarPopup* calendar_ = nullptr;  // of a date
};

}  // namespace screens::qt
