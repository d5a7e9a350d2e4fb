// A form whose controls scale with its window, down to three quarters of its initial size.
#pragma once

#include <string_view>

#include "forms/clsVSZ.h"
#include "forms/form.h"
#include "screens/layout.h"

namespace screens {

class ScaledForm : public forms::Form {
 public:
  // Width and height are in logical pixels.
  ScaledForm(std::string_view formName, std::string_view title, float width, float height)
      : Form(formName, title, width * layout::kTwipsPerPixel, height * layout::kTwipsPerPixel) {
    minimumWidth = 0.75F * scaleWidth;
    minimumHeight = 0.75F * scaleHeight;
  }

  void Form_Load() override { sizes_.SaveFirstSizes(*this); }
  void Form_Resize() override { sizes_.ResizeControls(*this, foundation::kFalse16); }

 protected:
  forms::clsVSZ sizes_;
};

}  // namespace screens
