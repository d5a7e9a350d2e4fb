#include <algorithm>
#include <cstdint>
#include <vector>

#include "foundation/ini_escapes.h"
#include "foundation/ini_text.h"

namespace foundation {
namespace {

// Characters escaped by one letter each; the last two are only read.
constexpr std::string_view kEscapeLetters = "abfnrtv\"\\?'";
constexpr std::string_view kEscaped = "\a\b\f\n\r\t\v\"\\?'";
constexpr std::string_view kSpelledEscaped = kEscaped.substr(0, 9);

class ValueReader {
 public:
  explicit ValueReader(std::string_view spelled) : spelled_(spelled) {}

  // The items of a list, or the one text.
  std::vector<std::string> Items() {
    SkipBlanks();
    while (at_ < spelled_.size()) {
      const char c = spelled_[at_++];
      if (c == '\\') {
        TakeEscape();
      } else if (c == '"') {
        inQuotes_ = !inQuotes_;
        hadQuotes_ = true;
        if (!inQuotes_) SkipBlanks();
      } else if (c == ',' && !inQuotes_) {
        EndItem();
      } else {
        item_ += c;
      }
    }
    EndItem();
    return std::move(items_);
  }

 private:
  static bool IsBlank(char c) { return c == ' ' || c == '\t'; }
  static bool IsLineEnd(char first, char second) {
    return (first == '\r' && second == '\n') || (first == '\n' && second == '\r');
  }

  void SkipBlanks() {
    while (at_ < spelled_.size() && IsBlank(spelled_[at_])) ++at_;
  }

  void EndItem() {
    while (!hadQuotes_ && item_.size() > escapesEnd_ && IsBlank(item_.back())) item_.pop_back();
    items_.push_back(std::move(item_));
    item_.clear();
    escapesEnd_ = 0;
    hadQuotes_ = false;
    SkipBlanks();
  }

  void TakeEscape() {
    if (at_ < spelled_.size()) TakeEscaped(spelled_[at_++]);
    escapesEnd_ = item_.size();
  }

  void TakeEscaped(char c) {
    const std::size_t letter = kEscapeLetters.find(c);
    if (letter != std::string_view::npos) {
      item_ += kEscaped[letter];
    } else if (c == 'x') {
      TakeNumber(16);
    } else if (DigitValue(c, 8)) {
      --at_;
      TakeNumber(8);
    } else if (at_ < spelled_.size() && IsLineEnd(c, spelled_[at_])) {
      ++at_;
    }  // a line end joins two lines; any other character is dropped with its backslash
  }

  // Takes all digits that follow; the lowest sixteen bits count.
  void TakeNumber(unsigned base) {
    const std::size_t begin = at_;
    std::uint16_t unit = 0;
    for (; at_ < spelled_.size(); ++at_) {
      const auto digit = DigitValue(spelled_[at_], base);
      if (!digit) break;
      unit = static_cast<std::uint16_t>(unit * base + *digit);
    }
    if (at_ > begin) AppendUtf16(item_, unit);
  }

  std::string_view spelled_;
  std::size_t at_ = 0;
  std::vector<std::string> items_;
  std::string item_;
  std::size_t escapesEnd_ = 0;  // after the last escape; blanks before it stay
  bool inQuotes_ = false;
  bool hadQuotes_ = false;  // in this item
};

constexpr std::string_view kNoValue = "@Invalid()";
constexpr std::string_view kStringMark = "@String(";  // of a text that contains NUL
constexpr std::string_view kBytesMark = "@ByteArray(";

// A mark is "@" and a type, or "@@" for an "@" at the start.
std::string WithoutMark(std::string item) {
  if (item == kNoValue) return {};
  if (item.ends_with(')')) {
    for (const std::string_view mark : {kStringMark, kBytesMark}) {
      if (item.starts_with(mark)) return item.substr(mark.size(), item.size() - mark.size() - 1);
    }
  }
  return item.starts_with("@@") ? item.substr(1) : item;
}

std::string WithMark(std::string_view text) {
  if (text.find('\0') != std::string_view::npos) {
    return std::string(kStringMark) + std::string(text) + ")";
  }
  return (text.starts_with('@') ? "@" : "") + std::string(text);
}

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < ' ';
}

// For an ASCII character.
std::string NumberEscape(char c) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  const auto number = static_cast<std::size_t>(c);
  if (number == 0) return "\\0";
  if (number < 16) return {'\\', 'x', kDigits[number]};
  return {'\\', 'x', kDigits[number / 16], kDigits[number % 16]};
}

}  // namespace

std::optional<std::string> ReadIniValue(std::string_view spelled) {
  const std::vector<std::string> items = ValueReader(spelled).Items();
  if (items.size() == 1 && items[0] == kNoValue) return std::nullopt;
  std::string text;
  for (const std::string& item : items) {
    if (&item != items.data()) text += ", ";
    text += WithoutMark(item);
  }
  return text;
}

std::string SpellIniValue(std::string_view text) {
  std::string spelled;
  bool afterNumber = false;
  for (const char c : WithMark(text)) {
    const std::size_t letter = kSpelledEscaped.find(c);
    if (letter != std::string_view::npos) {
      spelled += {'\\', kEscapeLetters[letter]};
      afterNumber = false;
      continue;
    }
    // A digit after a number would become part of it.
    afterNumber = IsControl(c) || (afterNumber && DigitValue(c, 16));
    spelled += afterNumber ? NumberEscape(c) : std::string(1, c);
  }
  const bool needsQuotes = spelled.find_first_of(";,=") != std::string::npos ||
                           spelled.starts_with(' ') || spelled.ends_with(' ');
  return needsQuotes ? '"' + spelled + '"' : spelled;
}

}  // namespace foundation
