// The widths of a face's characters, from its Adobe font metric file.
#pragma once

#include <cstdint>
#include <string_view>

#include "foundation/bounded_array.h"
#include "foundation/byte_text.h"

namespace pdf {

// By character code, in thousandths of the font size.
using WidthTable = foundation::BoundedArray<std::int32_t, 1, 255>;

// Reads the lines "C 65 ; WX 667 ; ..." of a metric file up to the first character without a code,
// or the end of the section. Codes outside those read have no width; in a text cut short, none has.
// TypeMismatch for a code or width that is no number, Subscript for a missing one or a code that
// is not 1 to 255, FileAccess where the text ends with the head of the section.
WidthTable ReadWidths(std::string_view metrics);

// Of a text at a font size, in the unit of the size. Subscript for a character of code 0, Overflow
// where the thousandths do not fit 32 bits.
double TextWidth(const foundation::ByteText& text, const WidthTable& widths, double size);

}  // namespace pdf
