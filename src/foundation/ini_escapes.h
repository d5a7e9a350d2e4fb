// Shared by the escapes of INI keys and of INI values.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace foundation {

// The value of a digit in a base up to 16, capital or small; nothing for any other character.
std::optional<unsigned> DigitValue(char digit, unsigned base);

// Appends a UTF-16 unit, which is what an escape gives, to a text in UTF-8. A low surrogate joins a
// high one before it; a lone surrogate gives invalid UTF-8.
void AppendUtf16(std::string& text, std::uint16_t unit);

}  // namespace foundation
