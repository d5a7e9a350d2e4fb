// Texts by their characters. Text inside the program is UTF-8; text of files that hold one byte a
// character is a ByteText.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace foundation {

// The characters of a UTF-8 text in order; a byte that belongs to none counts as one of its own.
std::vector<std::string_view> Characters(std::string_view text);

// The last character, or an empty text.
std::string_view LastCharacter(std::string_view text);

// The first `count` characters, or the whole text if it is shorter. InvalidCall below 0.
std::string_view FirstCharacters(std::string_view text, int count);

// The text in small letters, for comparison: Latin, Greek, Cyrillic and Armenian ones. Every
// character keeps its length in bytes.
std::string FoldCase(std::string_view text);

// Whether the text begins with the other one, case (as FoldCase takes it away) aside.
bool BeginsWith(std::string_view text, std::string_view beginning);

// ASCII letters a to z in upper case, all else as it stands.
std::string UpperAscii(std::string_view text);

// ASCII letters: the first of each word a capital, the others small. Words end at blanks.
std::string ProperCase(std::string_view text);

// The fields between separators; always one at least.
std::vector<std::string_view> Split(std::string_view text, char separator);

}  // namespace foundation
