#include "screens/qt/scroll_bar_widget.h"

#include <utility>

namespace screens::qt {

ScrollBarWidget::ScrollBarWidget(forms::Control& control, Dispatch dispatch, QWidget* parent)
    : QScrollBar(control.kind == forms::Kind::HScrollBar ? Qt::Horizontal : Qt::Vertical, parent),
      ControlView(control, std::move(dispatch)) {
  connect(this, &QScrollBar::valueChanged, this, [this](int value) {
    if (!mirroring_) dispatch_([this, value] { forms::SetScroll(control_, value); });
  });
  Mirror();
}

void ScrollBarWidget::Mirror() {
  if (!TakeProperties()) return;
  const forms::Properties& now = control_;
  ApplyShared(*this, control_, PlaceInPixels(control_));
  mirroring_ = true;
  setRange(now.scroll.minimum, now.scroll.maximum);
  setSingleStep(now.scroll.smallChange);
  setPageStep(now.scroll.largeChange);
  setValue(now.scroll.value);
  mirroring_ = false;
}

}  // namespace screens::qt
