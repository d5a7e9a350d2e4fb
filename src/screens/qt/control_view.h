// The widget that shows one control of a form.
#pragma once

#include <QRect>
#include <QWidget>
#include <functional>
#include <optional>
#include <utility>

#include "forms/control.h"

namespace screens::qt {

// Runs a handler of the form, then shows what it changed.
using Dispatch = std::function<void(const std::function<void()>& handler)>;

// Owned by its parent widget.
class ControlView {
 public:
  ControlView(forms::Control& control, Dispatch dispatch)
      : control_(control), dispatch_(std::move(dispatch)) {}
  virtual ~ControlView() = default;

  virtual QWidget& Widget() = 0;

  // Shows what has changed in the control since the last call.
  virtual void Mirror() = 0;

  forms::Control& Model() const { return control_; }

 protected:
  // Takes the control's properties; returns whether they differ from those taken last.
  bool TakeProperties();

  forms::Control& control_;
  Dispatch dispatch_;
  std::optional<forms::Properties> shown_;
};

// For any kind except a timer.
ControlView* MakeView(forms::Control& control, const Dispatch& dispatch, QWidget* parent);

// A control's place in its parent in logical pixels, without anything that its look adds around it.
QRect PlaceInPixels(const forms::Control& control);

// Sets place, tool tip, state and names, which all kinds share.
void Dress(QWidget& widget, const forms::Control& control, const QRect& place);

}  // namespace screens::qt
