// Rows of the zone list's table of controls, for a window of 520 by 440 logical pixels.
#pragma once

#include <string>
#include <string_view>

#include "screens/layout.h"

namespace screens::zone_list_layout {

using namespace layout;

inline constexpr float kWidth = 520;  // logical pixels
inline constexpr float kHeight = 440;

// Behind the search text.
inline Properties Head() {
  return {.place = At(0, 0, kWidth, 64), .backColour = palette::kEarth};
}

inline Properties Search() {
  return {.place = At(16, 14, 488, 36),
          .font = {.size = 11.25F},
          .spokenName = "Search",
          .whenEmpty = "Part of a zone's name",
          .foreColour = palette::kInk,
          .backColour = palette::kPaper,
          .tabStop = true,
          .tabIndex = 0};
}

inline Properties Zones() {
  return {.place = At(0, 64, kWidth, 284),
          .font = {.size = 10.5F},
          .spokenName = "Zones",
          .whenEmpty = "No zone's name has that.",
          .foreColour = palette::kInk,
          .backColour = palette::kPaper,
          .tabStop = true,
          .tabIndex = 1};
}

inline Properties Offset() {
  return {.place = At(16, 356, 488, 22), .font = {.size = 9.375F}, .foreColour = palette::kQuiet};
}

inline Properties Button(float left, float width, std::string_view caption, int tabIndex) {
  return {.place = At(left, 388, width, 36),
          .caption = std::string(caption),
          .font = {.size = 10.5F},
          .tabStop = true,
          .tabIndex = tabIndex};
}

inline Properties MainButton(float left, float width, std::string_view caption, int tabIndex) {
  Properties button = Button(left, width, caption, tabIndex);
  button.look = forms::Look::Primary;
  return button;
}

}  // namespace screens::zone_list_layout
