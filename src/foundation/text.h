// Operations on text by character. Text in the program is UTF-8; for one byte per character, see
// ByteText.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace foundation {

// The characters of a UTF-8 text in order; a stray byte counts as a character.
std::vector<std::string_view> Characters(std::string_view text);

// The last character, or an empty text.
std::string_view LastCharacter(std::string_view text);

// The first `count` characters, or the whole text if it is shorter. InvalidCall below 0.
std::string_view FirstCharacters(std::string_view text, int count);

// Lower-cases Latin, Greek, Cyrillic and Armenian letters of up to two bytes, for comparison.
// Characters keep their length in bytes.
std::string FoldCase(std::string_view text);

// Whether the text begins with the other one, ignoring case as FoldCase does.
bool BeginsWith(std::string_view text, std::string_view beginning);

// Upper-cases ASCII letters and keeps everything else.
std::string UpperAscii(std::string_view text);

// Capitalises the first character of each word if it is an ASCII letter, and lower-cases the other
// ASCII letters. Words end at blanks.
std::string ProperCase(std::string_view text);

// The fields between separators; always at least one.
std::vector<std::string_view> Split(std::string_view text, char separator);

}  // namespace foundation
