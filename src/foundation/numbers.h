// Numbers and their texts: every conversion between number types, and between number and text, that
// calculations use. All are independent of the process locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace foundation {

// A 16-bit boolean, as records and arguments hold it: 0 is false, -1 is true.
using Boolean16 = std::int16_t;
inline constexpr Boolean16 kTrue16 = -1;
inline constexpr Boolean16 kFalse16 = 0;

// Round to nearest, ties to even. Overflow if the result does not fit.
std::int16_t RoundToInt16(double x);
std::int32_t RoundToInt32(double x);

// Round down. Overflow if the result does not fit.
std::int16_t FloorToInt16(double x);
std::int32_t FloorToInt32(double x);

// The number that a text begins with, after blanks: sign, digits, point, digits, and an exponent if
// digits follow its E; else 0. "12abc" is 12, "77.13E" is 77.13, "abc" and "inf" are 0. Overflow if
// the number exceeds the 64-bit range.
double LeadingNumber(std::string_view text);

// The number that the text consists of, ignoring blanks around it; nothing if it is not a number.
// Overflow as for LeadingNumber.
std::optional<double> WholeNumber(std::string_view text);

// The shortest decimal text that reads back as x: "28", "0.5", "-0.05". Uses an exponent ("1E+16",
// "1E-05") only from 1E+16 and below 0.0001. Overflow for infinity, InvalidCall for NaN.
std::string NumberText(double x);

// The 64-bit number nearest to the shortest decimal text of x: 4000.2 for 4000.2F, which would
// otherwise widen to 4000.199951171875.
double DecimalOf(float x);

// An integer with a comma before each group of three digits: "21,032".
std::string GroupedText(std::int64_t number);

// x with the given number of decimals, correctly rounded: FixedText(2.5, 2) is "2.50". InvalidCall
// unless `decimals` is 0 to 100; other errors as for NumberText.
std::string FixedText(double x, int decimals);

}  // namespace foundation
