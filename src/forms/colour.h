// A colour with its opacity.
#pragma once

#include <cstdint>

namespace forms {

struct Colour {
  std::uint8_t red = 0, green = 0, blue = 0;
  std::uint8_t alpha = 255;  // 0 is invisible

  friend bool operator==(const Colour&, const Colour&) = default;

  constexpr Colour WithOpacity(double opacity) const {
    return {red, green, blue, static_cast<std::uint8_t>(255 * opacity + 0.5)};
  }
};

// 0xRRGGBB.
constexpr Colour Rgb(std::uint32_t rgb) {
  return {static_cast<std::uint8_t>(rgb >> 16), static_cast<std::uint8_t>(rgb >> 8),
          static_cast<std::uint8_t>(rgb)};
}

inline constexpr Colour kTransparent = {0, 0, 0, 0};

}  // namespace forms
