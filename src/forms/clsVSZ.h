// clsVSZ keeps a form's layout in proportion to its window.
#pragma once

#include <vector>

#include "forms/form.h"
#include "foundation/numbers.h"

namespace forms {

// Each form owns one.
class clsVSZ {
 public:
  // Records every control's place and font size, and the form's inside size.
  void SaveSizes(Form& form);

  // The same for a form that may be loaded again: it begins at its first size each time.
  void SaveFirstSizes(Form& form);

  // Puts every control where the form's present size asks for it, always from the records, so
  // that no rounding creeps in. Fonts follow the height and are never below 7.5 points. A tag "nr"
  // leaves a control out, "nf" leaves its font. With keepSizes true, only left and top move.
  // A minimised form is left alone.
  void ResizeControls(Form& form, const foundation::Boolean16& keepSizes);

 private:
  struct ControlSize {
    float Left = 0, Top = 0, Width = 0, Height = 0;  // a line's first end and its extent
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
