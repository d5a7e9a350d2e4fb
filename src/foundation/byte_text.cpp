#include "foundation/byte_text.h"

#include <algorithm>
#include <array>

#include "foundation/text.h"

namespace foundation {
namespace {

constexpr unsigned kTableStart = 0x80;

// Characters of the bytes 0x80 to 0x9F, from the Unicode Consortium's mapping table for code page
// 1252; any other byte is the character of the same number.
constexpr std::array<std::string_view, 32> kCharacters = {
    "€", "\u0081", "‚",      "ƒ", "„",      "…",      "†", "‡",      "ˆ", "‰", "Š",
    "‹", "Œ",      "\u008D", "Ž", "\u008F", "\u0090", "‘", "’",      "“", "”", "•",
    "–", "—",      "˜",      "™", "š",      "›",      "œ", "\u009D", "ž", "Ÿ"};

char ByteOf(std::string_view character) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(character[at]); };
  if (character.size() == 1 && byte(0) < kTableStart) return character[0];
  const auto found = std::find(kCharacters.begin(), kCharacters.end(), character);
  if (found != kCharacters.end()) {
    return static_cast<char>(kTableStart + static_cast<unsigned>(found - kCharacters.begin()));
  }
  if (character.size() == 2) {
    const unsigned number = (byte(0) & 0x1FU) << 6 | (byte(1) & 0x3FU);
    if (number >= kTableStart + kCharacters.size() && number <= 0xFF) {
      return static_cast<char>(number);
    }
  }
  return '?';
}

}  // namespace

ByteText ToBytes(std::string_view utf8) {
  std::string bytes;
  for (const std::string_view character : Characters(utf8)) bytes += ByteOf(character);
  return ByteText(std::move(bytes));
}

std::string FromBytes(const ByteText& text) {
  std::string utf8;
  for (const char c : text.Bytes()) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < kTableStart) {
      utf8 += c;
    } else if (byte < kTableStart + kCharacters.size()) {
      utf8 += kCharacters[byte - kTableStart];
    } else {
      utf8 += static_cast<char>(0xC0 | byte >> 6);
      utf8 += static_cast<char>(0x80 | (byte & 0x3F));
    }
  }
  return utf8;
}

}  // namespace foundation
