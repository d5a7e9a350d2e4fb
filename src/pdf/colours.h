// Colours and the operators that set them.
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

// From blue * 65536 + green * 256 + red.
Rgb PDFColorFromLong(std::int32_t number);

// From "#RRGGBB", padded with zeros from the left; black if the digits are invalid. Nothing for a
// text without "#".
std::optional<Rgb> PDFColorFromHtml(std::string_view text);

// "1.000 0.000 0.000 rg"; the operator is "rg" for fills, "RG" for lines.
std::string PDFColorString(const Rgb& colour, std::string_view colourOperator);

// The fill operator for a line's colour.
std::string FillOperatorOf(std::string_view lineOperator);

}  // namespace pdf
