#include "foundation/ini_escapes.h"

#include <algorithm>

namespace foundation {
namespace {

constexpr char32_t kHighSurrogates = 0xD800, kLowSurrogates = 0xDC00, kSurrogatesEnd = 0xE000;

void AppendUtf8(std::string& text, char32_t character) {
  if (character < 0x80) {
    text += static_cast<char>(character);
    return;
  }
  const int more = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
  text += static_cast<char>(0xFF00U >> (more + 1) | character >> (6 * more));
  for (int i = more; i-- > 0;) text += static_cast<char>(0x80 | (character >> (6 * i) & 0x3F));
}

// The last character, if it has three bytes as surrogates have; else 0.
char32_t LastOfThreeBytes(std::string_view text) {
  if (text.size() < 3) return 0;
  const auto byteFromEnd = [&](std::size_t i) {
    return static_cast<unsigned char>(text[text.size() - i]);
  };
  if (byteFromEnd(3) >> 4 != 0xE) return 0;
  return (byteFromEnd(3) & 0xFU) << 12 | (byteFromEnd(2) & 0x3FU) << 6 | (byteFromEnd(1) & 0x3FU);
}

}  // namespace

std::optional<unsigned> DigitValue(char digit, unsigned base) {
  constexpr std::string_view kSmall = "0123456789abcdef", kCapital = "0123456789ABCDEF";
  const std::size_t value = std::min(kSmall.find(digit), kCapital.find(digit));
  if (value >= base) return std::nullopt;
  return static_cast<unsigned>(value);
}

void AppendUtf16(std::string& text, std::uint16_t unit) {
  const char32_t last = LastOfThreeBytes(text);
  const bool isPair = unit >= kLowSurrogates && unit < kSurrogatesEnd && last >= kHighSurrogates &&
                      last < kLowSurrogates;
  if (!isPair) {
    AppendUtf8(text, unit);
    return;
  }
  text.resize(text.size() - 3);
  AppendUtf8(text, 0x10000 + ((last - kHighSurrogates) << 10) + (unit - kLowSurrogates));
}

}  // namespace foundation
