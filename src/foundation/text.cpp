#include "foundation/text.h"

#include <algorithm>

#include "foundation/error.h"

namespace foundation {
namespace {

// Bytes of the character at the start of a non-empty text.
std::size_t CharacterLength(std::string_view text) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const unsigned char first = byte(0);
  const std::size_t length = first < 0xC2   ? 1
                             : first < 0xE0 ? 2
                             : first < 0xF0 ? 3
                             : first < 0xF5 ? 4
                                            : 1;
  if (length > text.size()) return 1;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 1;
  }
  return length;
}

// Capitals of two bytes in UTF-8 whose small letters follow at a fixed distance; at distance 1,
// capitals and small letters alternate. From the Unicode case-folding data.
struct CapitalRange {
  char32_t first, last;
  int distance;
};
constexpr CapitalRange kCapitals[] = {
    {0x00C0, 0x00D6, 32}, {0x00D8, 0x00DE, 32}, {0x0100, 0x012E, 1},  {0x0132, 0x0136, 1},
    {0x0139, 0x0147, 1},  {0x014A, 0x0176, 1},  {0x0179, 0x017D, 1},  {0x0386, 0x0386, 38},
    {0x0388, 0x038A, 37}, {0x038C, 0x038C, 64}, {0x038E, 0x038F, 63}, {0x0391, 0x03A1, 32},
    {0x03A3, 0x03AB, 32}, {0x0400, 0x040F, 80}, {0x0410, 0x042F, 32}, {0x0460, 0x0480, 1},
    {0x048A, 0x04BE, 1},  {0x04C1, 0x04CD, 1},  {0x04D0, 0x052E, 1},  {0x0531, 0x0556, 48},
};

char32_t Folded(char32_t letter) {
  for (const CapitalRange& range : kCapitals) {
    if (letter < range.first || letter > range.last) continue;
    if (range.distance == 1 && (letter - range.first) % 2 != 0) return letter;
    return letter + static_cast<char32_t>(range.distance);
  }
  return letter;
}

// A character of one or two bytes.
char32_t FoldedCharacter(std::string_view character) {
  const auto first = static_cast<unsigned char>(character[0]);
  if (character.size() == 1) return first >= 'A' && first <= 'Z' ? first + ('a' - 'A') : first;
  return Folded(static_cast<char32_t>((first & 0x1F) << 6) |
                static_cast<char32_t>(character[1] & 0x3F));
}

bool EqualCharacters(std::string_view a, std::string_view b) {
  if (a == b) return true;
  return a.size() == b.size() && a.size() <= 2 && FoldedCharacter(a) == FoldedCharacter(b);
}

}  // namespace

std::vector<std::string_view> Characters(std::string_view text) {
  std::vector<std::string_view> characters;
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    characters.push_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  return characters;
}

std::string_view LastCharacter(std::string_view text) {
  // The longest ending that is a single character.
  for (std::size_t length = std::min<std::size_t>(4, text.size()); length > 1; --length) {
    const std::string_view end = text.substr(text.size() - length);
    if (CharacterLength(end) == length) return end;
  }
  return text.substr(text.empty() ? 0 : text.size() - 1);
}

std::string_view FirstCharacters(std::string_view text, int count) {
  if (count < 0) throw Error(ErrorKind::InvalidCall);
  std::size_t end = 0;
  for (int i = 0; i < count && end < text.size(); ++i) end += CharacterLength(text.substr(end));
  return text.substr(0, end);
}

std::string FoldCase(std::string_view text) {
  std::string folded;
  for (const std::string_view character : Characters(text)) {
    if (character.size() > 2) {
      folded += character;
      continue;
    }
    const char32_t letter = FoldedCharacter(character);
    if (character.size() == 2) folded += static_cast<char>(0xC0 | (letter >> 6));
    folded += static_cast<char>(character.size() == 2 ? 0x80 | (letter & 0x3F) : letter);
  }
  return folded;
}

bool BeginsWith(std::string_view text, std::string_view beginning) {
  while (!beginning.empty()) {
    if (text.empty()) return false;
    const std::size_t length = CharacterLength(beginning);
    const std::size_t textLength = CharacterLength(text);
    if (!EqualCharacters(text.substr(0, textLength), beginning.substr(0, length))) return false;
    text.remove_prefix(textLength);
    beginning.remove_prefix(length);
  }
  return true;
}

std::string UpperAscii(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - ('a' - 'A'));
  }
  return upper;
}

std::string ProperCase(std::string_view text) {
  std::string proper = UpperAscii(text);
  bool inWord = false;
  for (char& c : proper) {
    if (inWord && c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
    inWord = c != ' ';
  }
  return proper;
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> fields;
  std::size_t at = 0;
  for (std::size_t next; (next = text.find(separator, at)) != std::string_view::npos;) {
    fields.push_back(text.substr(at, next - at));
    at = next + 1;
  }
  fields.push_back(text.substr(at));
  return fields;
}

}  // namespace foundation
