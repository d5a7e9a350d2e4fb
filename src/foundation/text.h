// Texts by their characters. Text inside the program is UTF-8; text of files that hold one byte a
// character has a type of its own, so that the two never mix unseen.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace foundation {

// One byte a character: city files, legacy Hindi heads.
class ByteText {
 public:
  ByteText() = default;
  explicit ByteText(std::string bytes) : bytes_(std::move(bytes)) {}

  const std::string& Bytes() const { return bytes_; }
  friend bool operator==(const ByteText&, const ByteText&) = default;

 private:
  std::string bytes_;
};

// The characters of a UTF-8 text in order; a byte that belongs to none counts as one of its own.
std::vector<std::string_view> Characters(std::string_view text);

// The last character, or an empty text.
std::string_view LastCharacter(std::string_view text);

// The first `count` characters, or the whole text if it is shorter. InvalidCall below 0.
std::string_view FirstCharacters(std::string_view text, int count);

// The text with case taken away, for comparison: Latin, Greek, Cyrillic and
// Armenian letters.
std::string FoldCase(std::string_view text);

// ASCII letters a to z in upper case, all else as it stands.
std::string UpperAscii(std::string_view text);

// The fields between separators; always one at least.
std::vector<std::string_view> Split(std::string_view text, char separator);

}  // namespace foundation
