// Building blocks of a document's lines: numbers, strings, bytes.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "foundation/byte_text.h"

namespace pdf {

// Fixed decimals, not trimmed: 12 is "12.00". Exact ties round to even. The sign shows if the value
// is below zero, so -0.003 is "-0.00", but negative zero is "0.00".
std::string PDFFormatNumber(double value, int decimals);

// The same for several values, separated by blanks.
std::string JoinedNumbers(std::initializer_list<double> values, int decimals = 2);

// The shortest decimal text that reads back as the value, without an exponent: "595.28", "0.5".
std::string GeneralNumber(double value);

// Pads with "0" from the left to ten characters.
std::string PDFPadOffset(std::string_view offset);

// Text as stored in the file, one byte per character.
foundation::ByteText Encoded(std::string_view utf8);

// As in a literal string: a backslash becomes four, a parenthesis gets one in front.
foundation::ByteText Escaped(const foundation::ByteText& text);
void AppendEscaped(std::string& buffer, const foundation::ByteText& text);

// Appends the parts and a line end to a buffer.
void PDFAddLine(std::string& buffer, std::initializer_list<std::string_view> parts);

}  // namespace pdf
