// How large texts come out on the screen.
#pragma once

#include <string_view>

#include "forms/font.h"

namespace forms {

// All in twips.
class TextMeasure {
 public:
  virtual ~TextMeasure() = default;
  virtual double TextWidth(std::string_view text, const Font& font) const = 0;
  virtual double LineHeight(const Font& font) const = 0;
  virtual double Ascent(const Font& font) const = 0;  // of a line's height, above its baseline
};

}  // namespace forms
