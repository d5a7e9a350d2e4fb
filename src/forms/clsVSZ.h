// clsVSZ: keeps a form's layout in proportion to its window.
#pragma once

#include <vector>

#include "forms/form.h"
#include "foundation/numbers.h"

namespace forms {

// Each form owns one of these.
class clsVSZ {
 public:
  // Records the position and font size of every control, and the form's inner size.
  void SaveSizes(Form& form);

  // The same for a form that may be loaded again; restores its first size each time.
  void SaveFirstSizes(Form& form);

  // Moves and sizes every control for the form's current size, always from the saved records so
  // that rounding errors do not accumulate. Fonts scale with the height, to no less than 7.5
  // points. Tag "nr" excludes a control, "nf" its font. With keepSizes true, only left and top
  // change. Does nothing if the form is minimised.
  void ResizeControls(Form& form, const foundation::Boolean16& keepSizes);

 private:
  struct ControlSize {
    float Left = 0, Top = 0, Width = 0, Height = 0;  // for a line, its first end and extent
    float FontSize = 0;
  };
  struct Ratios {
    float x, y;
  };

  void ResizeLine(Control& control, const ControlSize& size, Ratios ratios) const;
  void ResizeControl(Control& control, const ControlSize& size, Ratios ratios,
                     bool keepSizes) const;

  std::vector<ControlSize> sizes_;
  float formWidth_ = 0;
  float formHeight_ = 0;
};

}  // namespace forms
