// Character widths from an Adobe font metrics file.
#pragma once

#include <cstdint>
#include <string_view>

#include "foundation/bounded_array.h"
#include "foundation/byte_text.h"

namespace pdf {

// By character code, in thousandths of the font size.
using WidthTable = foundation::BoundedArray<std::int32_t, 1, 255>;

// Reads the lines "C 65 ; WX 667 ; ..." of a metric file up to the first character without a code
// or the end of the section. Codes outside those read have width 0; if the section does not end,
// all have. TypeMismatch for a code or width that is not a number, Subscript for a missing one or a
// code outside 1 to 255, FileAccess if the text ends at the section's first line.
WidthTable ReadWidths(std::string_view metrics);

// The width of a text at a font size, in the unit of the size. Subscript for a character of code 0,
// Overflow if the thousandths do not fit 32 bits.
double TextWidth(const foundation::ByteText& text, const WidthTable& widths, double size);

}  // namespace pdf
