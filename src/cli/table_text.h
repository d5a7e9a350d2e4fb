// Parts of tables for a terminal.
#pragma once

#include <string>
#include <string_view>

namespace cli {

inline constexpr std::string_view kNone = "-";  // in place of what does not happen

// Filled up with blanks.
std::string Padded(std::string text, std::size_t width);

// A line without blanks at its end.
std::string Line(std::string text);

// Adds a part, if it is not empty, with a separator if the text is not.
void Append(std::string& text, std::string_view separator, std::string_view part);

}  // namespace cli
