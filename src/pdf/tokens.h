// What the lines of a document are made of: its numbers, its strings, its bytes.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "foundation/byte_text.h"

namespace pdf {

// With that many decimals, none of them trimmed: 12 is "12.00". A true tie goes to the even digit;
// a minus stands only before values below zero, so -0.003 is "-0.00" and the negative zero "0.00".
std::string PDFFormatNumber(double value, int decimals);

// Such numbers joined by blanks.
std::string JoinedNumbers(std::initializer_list<double> values, int decimals = 2);

// The shortest decimal text that reads back as the value, never with an exponent: "595.28", "0.5".
std::string GeneralNumber(double value);

// Filled with "0" from the left up to ten characters.
std::string PDFPadOffset(std::string_view offset);

// The one byte a character that goes into the file.
foundation::ByteText Encoded(std::string_view utf8);

// As a literal string holds it: a backslash becomes four, a parenthesis gets one in front.
foundation::ByteText Escaped(const foundation::ByteText& text);
void AppendEscaped(std::string& buffer, const foundation::ByteText& text);

// Appends the parts and the line end to a buffer.
void PDFAddLine(std::string& buffer, std::initializer_list<std::string_view> parts);

}  // namespace pdf
