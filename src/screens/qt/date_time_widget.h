// A picker of a date, with a drop-down calendar, or of a time of day. Typed text takes effect on
// Enter or when the focus leaves.
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
  bool eventFilter(QObject* watched, QEvent* event) override;  // of the text

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
  bool Commit();  // reads the typed text; returns whether it was valid
  void DropDown();
  bool Separates(QChar character) const;  // between two parts of the text
  int PartAtCursor() const;
  void SelectPart(int part);
  bool PassSeparator();  // returns whether there is one at the cursor

  bool typed_ = false;                 // the text is not committed yet
  bool clickedInto_ = false;           // has got the focus by the click that is under way
  int clickedPart_ = 0;                // to step while the whole text is selected
  CalendarPopup* calendar_ = nullptr;  // null for a time
};

}  // namespace screens::qt
