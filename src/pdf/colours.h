// Colours as the operators that set them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pdf {

// 0 to 255 each.
struct Rgb {
  double red = 0, green = 0, blue = 0;
};

// Of the number blue * 65536 + green * 256 + red.
Rgb PDFColorFromLong(std::int32_t number);

// Of "#RRGGBB", black where the digits are none, fewer filled with 0 from the left; nothing for a
// text that does not begin so.
std::optional<Rgb> PDFColorFromHtml(std::string_view text);

// "1.000 0.000 0.000 rg"; the operator is "rg" for what is filled, "RG" for lines.
std::string PDFColorString(const Rgb& colour, std::string_view colourOperator);

// The operator that fills with a line's colour.
std::string FillOperatorOf(std::string_view lineOperator);

}  // namespace pdf
