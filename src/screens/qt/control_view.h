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

  // Shows what changed in the control since the last call.
  virtual void Mirror() = 0;

  forms::Control& Model() const { return control_; }

 protected:
  // Copies the control's properties; returns whether they changed since the last call.
  bool TakeProperties();

  forms::Control& control_;
  Dispatch dispatch_;
  std::optional<forms::Properties> shown_;
};

// For any kind except a timer.
ControlView* MakeView(forms::Control& control, const Dispatch& dispatch, QWidget* parent);

// A control's place in its parent in logical pixels, without what its look adds around it.
QRect PlaceInPixels(const forms::Control& control);

// Applies what all kinds share: place, tool tip, state and names.
void ApplyShared(QWidget& widget, const forms::Control& control, const QRect& place);

}  // namespace screens::qt
