// Keys and values of an INI file as Qt spells them, and as texts in UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace foundation {

// A key or the name of a section: "\" reads as "/", "%20" and "%U0936" as characters.
std::string ReadIniKey(std::string_view spelled);
std::string SpellIniKey(std::string_view key);

// A value. Commas outside quotation marks make it a list, read as one text with ", " between the
// items; "@Invalid()" is no value. Bytes that are not UTF-8 stay as they are.
std::optional<std::string> ReadIniValue(std::string_view spelled);
std::string SpellIniValue(std::string_view text);

}  // namespace foundation
