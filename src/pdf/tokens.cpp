#include "pdf/tokens.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "foundation/checked.h"
#include "foundation/numbers.h"

namespace pdf {

using foundation::ByteText;

namespace {

constexpr std::array<int, 6> kPowersOfTen = {1, 10, 100, 1000, 10000, 100000};

// Fast path for ordinary numbers, of which a page has hundreds. Refuses large ones and those so
// close to a rounding tie that only the exact value decides.
bool AppendQuickly(std::string& buffer, double value, int decimals) {
  if (decimals < 1 || decimals >= int{kPowersOfTen.size()}) return false;
  const double scaled = std::abs(value) * kPowersOfTen[static_cast<std::size_t>(decimals)];
  if (!(scaled < 1e9)) return false;
  const auto below = static_cast<int>(scaled);
  const double rest = scaled - below;
  if (std::abs(rest - 0.5) < 1e-6) return false;

  auto digits = below + (rest > 0.5 ? 1 : 0);
  std::array<char, 16> text;
  std::size_t at = text.size();
  const auto put = [&] {
    text[--at] = static_cast<char>('0' + digits % 10);
    digits /= 10;
  };
  for (int i = 0; i < decimals; ++i) put();
  text[--at] = '.';
  do put();
  while (digits > 0);
  if (value < 0) text[--at] = '-';
  buffer.append(text.data() + at, text.size() - at);
  return true;
}

void AppendNumber(std::string& buffer, double value, int decimals) {
  if (value == 0) value = 0;  // drop the sign of -0
  if (!AppendQuickly(buffer, value, decimals)) buffer += foundation::FixedText(value, decimals);
}

}  // namespace

std::string PDFFormatNumber(double value, int decimals) {
  std::string text;
  AppendNumber(text, value, decimals);
  return text;
}

std::string JoinedNumbers(std::initializer_list<double> values, int decimals) {
  std::string joined;
  for (const double value : values) {
    if (!joined.empty()) joined += ' ';
    AppendNumber(joined, value, decimals);
  }
  return joined;
}

std::string GeneralNumber(double value) {
  std::array<char, 512> buffer;
  const auto [end, error] =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                    value == 0 ? 0 : foundation::Finite(value), std::chars_format::fixed);
  return std::string(buffer.data(), end);
}

std::string PDFPadOffset(std::string_view offset) {
  constexpr std::size_t kDigits = 10;
  return std::string(kDigits - std::min(offset.size(), kDigits), '0').append(offset);
}

ByteText Encoded(std::string_view utf8) {
  const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
  // ASCII, the usual case, encodes to itself.
  if (std::all_of(utf8.begin(), utf8.end(), isAscii)) return ByteText(std::string(utf8));
  return foundation::ToBytes(utf8);
}

void AppendEscaped(std::string& buffer, const ByteText& text) {
  const std::string& bytes = text.Bytes();
  const auto holds = [&](char c) { return bytes.find(c) != std::string::npos; };
  if (!holds('\\') && !holds('(') && !holds(')')) {
    buffer += bytes;
    return;
  }
  for (const char c : bytes) {
    if (c == '\\') buffer += "\\\\\\";
    if (c == '(' || c == ')') buffer += '\\';
    buffer += c;
  }
}

ByteText Escaped(const ByteText& text) {
  std::string escaped;
  AppendEscaped(escaped, text);
  return ByteText(std::move(escaped));
}

void PDFAddLine(std::string& buffer, std::initializer_list<std::string_view> parts) {
  for (const std::string_view part : parts) buffer.append(part);
  buffer.append("\r\n", 2);
}

}  // namespace pdf
