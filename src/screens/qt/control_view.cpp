#include "screens/qt/control_view.h"

#include "screens/qt/button_widget.h"
#include "screens/qt/combo_box_widget.h"
#include "screens/qt/control_widget.h"
#include "screens/qt/date_time_widget.h"
#include "screens/qt/list_box_widget.h"
#include "screens/qt/qt_painting.h"
#include "screens/qt/scroll_bar_widget.h"
#include "screens/qt/text_box_widget.h"

namespace screens::qt {

ControlView* MakeView(forms::Control& control, const Dispatch& dispatch, QWidget* parent) {
  switch (control.kind) {
    case forms::Kind::CommandButton:
      return new ButtonWidget(control, dispatch, parent);
    case forms::Kind::TextBox:
      return new TextBoxWidget(control, dispatch, parent);
    case forms::Kind::ListBox:
      return new ListBoxWidget(control, dispatch, parent);
    case forms::Kind::ComboBox:
      return new ComboBoxWidget(control, dispatch, parent);
    case forms::Kind::DatePicker:
    case forms::Kind::TimePicker:
      return new DateTimeWidget(control, dispatch, parent);
    case forms::Kind::HScrollBar:
    case forms::Kind::VScrollBar:
      return new ScrollBarWidget(control, dispatch, parent);
    default:
      return new ControlWidget(control, dispatch, parent);
  }
}

bool ControlView::TakeProperties() {
  const forms::Properties& now = control_;
  if (shown_ == now) return false;
  shown_ = now;
  return true;
}

QRect PlaceInPixels(const forms::Control& control) {
  const forms::Place& p = control.place;
  const int left = ToPixels(p.left), top = ToPixels(p.top);
  return QRect(left, top, ToPixels(p.left + p.width) - left, ToPixels(p.top + p.height) - top);
}

void ApplyShared(QWidget& widget, const forms::Control& control, const QRect& place) {
  widget.setObjectName(ToQt(control.name));
  widget.setGeometry(place);
  widget.setVisible(control.visible);
  widget.setEnabled(control.enabled);
  widget.setToolTip(ToQt(control.toolTip));
  widget.setAccessibleName(ToQt(control.spokenName.empty() ? control.caption : control.spokenName));
  widget.setAccessibleDescription(ToQt(control.spokenText));
  widget.setFocusPolicy(control.tabStop ? Qt::StrongFocus : Qt::NoFocus);
}

}  // namespace screens::qt
