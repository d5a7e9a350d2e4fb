// Measures text as the screen draws it.
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
  virtual double Ascent(const Font& font) const = 0;      // line height above the baseline
  virtual double LetterSize(const Font& font) const = 0;  // as drawn; a substitute may be smaller
};

}  // namespace forms
