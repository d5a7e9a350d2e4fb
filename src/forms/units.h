// Units of forms: twips, and their ratio to logical pixels and points.
#pragma once

namespace forms {

inline constexpr double kTwipsPerPixel = 15;
inline constexpr double kTwipsPerPoint = 20;
inline constexpr double kSmallestFont = 7.5;  // points; minimum for any text on screen
inline constexpr double kSmallestText = kSmallestFont * kTwipsPerPoint / kTwipsPerPixel;  // pixels

}  // namespace forms
