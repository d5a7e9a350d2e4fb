// What shows one control of a form.
#pragma once

#include <QRect>
#include <QWidget>
#include <functional>
#include <optional>
#include <utility>

#include "forms/control.h"

namespace screens::qt {

// Runs one handler of the form and mirrors what it changed.
using Dispatch = std::function<void(const std::function<void()>& handler)>;

// Owned by its parent widget.
class ControlView {
 public:
  ControlView(forms::Control& control, Dispatch dispatch)
      : control_(control), dispatch_(std::move(dispatch)) {}
  virtual ~ControlView() = default;

  virtual QWidget& Widget() = 0;

  // Takes over what has changed in the control since the last time.
  virtual void Mirror() = 0;

  forms::Control& Model() const { return control_; }

 protected:
  // Whether the control's properties differ from those taken last; takes them.
  bool TakeProperties();

  forms::Control& control_;
  Dispatch dispatch_;
  std::optional<forms::Properties> shown_;
};

// For any kind but a timer.
ControlView* MakeView(forms::Control& control, const Dispatch& dispatch, QWidget* parent);

// Where a control stands in its parent, in logical pixels, without what its look adds around it.
QRect PlaceInPixels(const forms::Control& control);

// Place, tool tip, state and names, the same for every kind.
void Dress(QWidget& widget, const forms::Control& control, const QRect& place);

}  // namespace screens::qt
