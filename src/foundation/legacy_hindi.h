// Hindi encoded for fonts that draw Devanagari at Latin code points.
#pragma once

#include <string>
#include <string_view>

namespace foundation {

// The face that is used for text in this encoding.
inline constexpr std::string_view kLegacyHindiFace = "PITARA B96  HINDI";

// Converts to Unicode. Covers the letters, half letters and signs that occur in this program; any
// other character is kept.
std::string FromLegacyHindi(std::string_view text);

}  // namespace foundation
