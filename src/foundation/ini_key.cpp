#include <cstdint>

#include "foundation/ini_escapes.h"
#include "foundation/ini_text.h"

namespace foundation {
namespace {

// The unit of UTF-16 that a text of hexadecimal digits numbers.
std::optional<std::uint16_t> UnitOf(std::string_view digits, std::size_t count) {
  if (digits.size() < count) return std::nullopt;
  unsigned unit = 0;
  for (const char c : digits.substr(0, count)) {
    const auto digit = DigitValue(c, 16);
    if (!digit) return std::nullopt;
    unit = unit * 16 + *digit;
  }
  return static_cast<std::uint16_t>(unit);
}

bool IsPlain(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         c == '-' || c == '.' || static_cast<unsigned char>(c) >= 0x80;
}

}  // namespace

std::string ReadIniKey(std::string_view spelled) {
  std::string key;
  while (!spelled.empty()) {
    const std::size_t mark = spelled.starts_with("%U") ? 2 : 1, digits = 2 * mark;
    const auto unit = spelled[0] == '%' ? UnitOf(spelled.substr(mark), digits) : std::nullopt;
    if (unit) {
      AppendUtf16(key, *unit);
    } else {
      key += spelled[0] == '\\' ? '/' : spelled[0];
    }
    spelled.remove_prefix(unit ? mark + digits : 1);
  }
  return key;
}

std::string SpellIniKey(std::string_view key) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string spelled;
  for (const char c : key) {
    if (IsPlain(c)) {
      spelled += c;
    } else {
      const auto number = static_cast<std::size_t>(c);
      spelled += {'%', kDigits[number / 16], kDigits[number % 16]};
    }
  }
  return spelled;
}

}  // namespace foundation
