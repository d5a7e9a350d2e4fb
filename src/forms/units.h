// The measures of forms: twips, and what a logical pixel and a point are in them.
#pragma once

namespace forms {

inline constexpr double kTwipsPerPixel = 15;
inline constexpr double kTwipsPerPoint = 20;
inline constexpr double kSmallestFont = 7.5;  // points; no text of a screen goes below
inline constexpr double kSmallestText = kSmallestFont * kTwipsPerPoint / kTwipsPerPixel;  // pixels

}  // namespace forms
