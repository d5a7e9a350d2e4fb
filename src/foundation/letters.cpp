#include "foundation/letters.h"

#include <algorithm>
#include <iterator>
#include <span>

#include "foundation/error.h"
#include "foundation/text.h"

namespace foundation {
namespace {

struct Range {
  char32_t first, last;
};

#include "foundation/letters.inc"

constexpr char32_t kZeroWidthJoiner = 0x200D;

bool IsIn(std::span<const Range> ranges, char32_t character) {
  const auto after = std::ranges::upper_bound(ranges, character, {}, &Range::first);
  return after != ranges.begin() && character <= std::prev(after)->last;
}

char32_t CodePoint(std::string_view character) {
  const auto first = static_cast<unsigned char>(character[0]);
  if (character.size() == 1) return first;
  char32_t point = first & (0x7F >> character.size());
  for (const char byte : character.substr(1)) point = point << 6 | (byte & 0x3F);
  return point;
}

}  // namespace

std::string_view FirstLetters(std::string_view text, int count) {
  if (count < 0) throw Error(ErrorKind::InvalidCall);
  int letters = 0;
  std::size_t end = 0;
  bool linked = false;
  for (const std::string_view character : Characters(text)) {
    const char32_t point = CodePoint(character);
    const bool joins = IsIn(kMarks, point) || (linked && IsIn(kLinked, point));
    if (letters == 0 || !joins) ++letters;
    if (letters > count) break;
    end += character.size();
    linked = IsIn(kLinks, point) || (linked && point == kZeroWidthJoiner);
  }
  return text.substr(0, end);
}

}  // namespace foundation
