// Hindi in the encoding of fonts that draw Devanagari over Latin code points.
#pragma once

#include <string>
#include <string_view>

namespace foundation {

// The face that texts in this encoding name.
inline constexpr std::string_view kLegacyHindiFace = "PITARA B96  HINDI";

// The text in Unicode. Covers the letters, half letters and signs that the texts of this program
// use; any other character stands for itself.
std::string FromLegacyHindi(std::string_view text);

}  // namespace foundation
