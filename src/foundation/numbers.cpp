#include "foundation/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "foundation/checked.h"

namespace foundation {
namespace {

template <typename Integer>
Integer ToInteger(double whole) {
  // Written so that a NaN fails the test as well.
  if (!(whole >= std::numeric_limits<Integer>::min() &&
        whole <= std::numeric_limits<Integer>::max())) {
    throw Error(ErrorKind::Overflow);
  }
  return static_cast<Integer>(whole);
}

// Independent of the rounding mode of the machine.
double RoundHalfToEven(double x) {
  const double below = std::floor(x);
  const double rest = x - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}
bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

std::size_t DigitsFrom(std::string_view text, std::size_t at) {
  std::size_t end = at;
  while (end < text.size() && IsDigit(text[end])) ++end;
  return end - at;
}

// Length of the number at the start of `text`; 0 if there is none.
std::size_t NumberLength(std::string_view text) {
  std::size_t at = 0;
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
  std::size_t digits = DigitsFrom(text, at);
  at += digits;
  if (at < text.size() && text[at] == '.') {
    const std::size_t decimals = DigitsFrom(text, at + 1);
    digits += decimals;
    at += 1 + decimals;
  }
  if (digits == 0) return 0;
  if (at < text.size() && (text[at] == 'E' || text[at] == 'e')) {
    std::size_t exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    if (const std::size_t length = DigitsFrom(text, exponent)) at = exponent + length;
  }
  return at;
}

std::string_view WithoutLeadingBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  return text;
}

// Exponent of the first nonzero digit. Only for numbers far out of range, so only its sign matters.
long PowerOfTen(std::string_view number) {
  const std::size_t e = std::min(number.find_first_of("Ee"), number.size());
  const std::size_t point = std::min(number.find('.'), e);
  const std::size_t digit = number.find_first_of("123456789");
  long exponent = 0;
  if (e < number.size()) {
    std::string_view text = number.substr(e + 1);
    if (text.front() == '+') text.remove_prefix(1);
    const auto read = std::from_chars(text.data(), text.data() + text.size(), exponent);
    if (read.ec == std::errc::result_out_of_range) {
      exponent =
          text.front() == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    }
  }
  return exponent + static_cast<long>(point) - static_cast<long>(digit);
}

// `number` must be a number as NumberLength finds it.
double ReadNumber(std::string_view number) {
  if (number.front() == '+') number.remove_prefix(1);
  double x = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), x);
  if (error == std::errc::result_out_of_range) {
    if (PowerOfTen(number) > 0) throw Error(ErrorKind::Overflow);
    return 0;  // underflow
  }
  return x;
}

}  // namespace

std::int16_t RoundToInt16(double x) {
  return ToInteger<std::int16_t>(RoundHalfToEven(x));
}
std::int32_t RoundToInt32(double x) {
  return ToInteger<std::int32_t>(RoundHalfToEven(x));
}
std::int16_t FloorToInt16(double x) {
  return ToInteger<std::int16_t>(std::floor(x));
}
std::int32_t FloorToInt32(double x) {
  return ToInteger<std::int32_t>(std::floor(x));
}

double LeadingNumber(std::string_view text) {
  text = WithoutLeadingBlanks(text);
  const std::size_t length = NumberLength(text);
  return length == 0 ? 0 : ReadNumber(text.substr(0, length));
}

std::optional<double> WholeNumber(std::string_view text) {
  text = WithoutLeadingBlanks(text);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  const std::size_t length = NumberLength(text);
  if (length == 0 || length != text.size()) return std::nullopt;
  return ReadNumber(text);
}

std::string NumberText(double x) {
  Finite(x);
  if (x == 0) return "0";
  std::array<char, 32> buffer;
  const double size = std::abs(x);
  const bool usual = size >= 1e-4 && size < 1e16;
  const auto format = usual ? std::chars_format::fixed : std::chars_format::scientific;
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), x, format);
  std::string text(buffer.data(), end);
  if (const std::size_t e = text.find('e'); e != std::string::npos) text[e] = 'E';
  return text;
}

double DecimalOf(float x) {
  Finite(x);
  std::array<char, 32> buffer;
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), x);
  return ReadNumber({buffer.data(), end});
}

std::string GroupedText(std::int64_t number) {
  std::string text = std::to_string(number);
  const std::size_t firstDigit = number < 0 ? 1 : 0;
  for (std::size_t at = text.size(); at > firstDigit + 3;) text.insert(at -= 3, 1, ',');
  return text;
}

std::string FixedText(double x, int decimals) {
  if (decimals < 0 || decimals > 100) throw Error(ErrorKind::InvalidCall);
  std::array<char, 512> buffer;
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), Finite(x),
                                          std::chars_format::fixed, decimals);
  return std::string(buffer.data(), end);
}

}  // namespace foundation
