// Numbers and their texts: every conversion between kinds of number, and between number and text,
// that a calculation of the system uses. None of them looks at the process locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace foundation {

// A boolean of 16 bits, as records and arguments hold it: 0 is false, -1 is true.
using Boolean16 = std::int16_t;
inline constexpr Boolean16 kTrue16 = -1;
inline constexpr Boolean16 kFalse16 = 0;

// To nearest, ties to even. Overflow where the result does not fit.
std::int16_t RoundToInt16(double x);
std::int32_t RoundToInt32(double x);

// The greatest whole number not above x. Overflow where the result does not fit.
std::int16_t FloorToInt16(double x);
std::int32_t FloorToInt32(double x);

// The leading numeric part of a text, after blanks: sign, digits, point, digits, and an exponent
// when digits follow its E. "12abc" is 12, "77.13E" is 77.13, "abc" and "inf" are 0.
// Overflow where the number exceeds 64-bit range.
double LeadingNumber(std::string_view text);

// The number that the whole text is, blanks around it aside; nothing if it is not one. Overflow as
// LeadingNumber.
std::optional<double> WholeNumber(std::string_view text);

// The shortest decimal text that reads back as x: "28", "0.5", "-0.05". An exponent ("1E+16",
// "1E-05") stands only from 1E+16 up and below 0.0001. Overflow for infinity, InvalidCall for no
// number.
std::string NumberText(double x);

// What the shortest decimal text of a 32-bit number says: 4000.2 of 4000.2F, which in 64 bits is
// 4000.199951171875.
double DecimalOf(float x);

// A whole number with a comma before each group of three digits: "21,032".
std::string GroupedText(std::int64_t number);

// x with that many decimals, 0 to 100, correctly rounded: FixedText(2.5, 2) is "2.50". InvalidCall
// for other decimals; else as NumberText.
std::string FixedText(double x, int decimals);

}  // namespace foundation
