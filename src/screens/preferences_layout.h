// Rows of the preferences' table of controls, for a window of 600 by 404 logical pixels.
#pragma once

#include <string>
#include <string_view>

#include "screens/layout.h"
#include "screens/signs.h"

namespace screens::preferences_layout {

using namespace layout;

inline constexpr float kWidth = 600;  // logical pixels
inline constexpr float kHeight = 404;
inline constexpr float kValueLeft = 152;

inline Properties Head() {
  return {.place = At(0, 0, kWidth, 72), .backColour = palette::kEarth};
}

inline Properties HeadPicture() {
  return {.place = At(24, 8, 56, 56), .picture = ProgramSign()};
}

inline Properties Title() {
  return {.place = At(96, 16, 472, 40),
          .caption = "Preferences",
          .font = {.size = 15.75F, .bold = true},
          .foreColour = palette::kCream};
}

inline Properties Caption(float top, std::string_view caption) {
  return {.place = At(32, top, 112, 24),
          .caption = std::string(caption),
          .font = {.size = 10.5F},
          .foreColour = palette::kQuiet};
}

inline Properties Choices(float top, std::string_view spokenName, int tabIndex) {
  return {.place = At(kValueLeft, top, 416, 32),
          .font = {.size = 10.5F},
          .spokenName = std::string(spokenName),
          .foreColour = palette::kInk,
          .backColour = palette::kPaper,
          .tabStop = true,
          .tabIndex = tabIndex};
}

// What a choice means.
inline Properties Meaning(float top) {
  return {.place = At(kValueLeft, top, 416, 40),
          .font = {.size = 9.375F},
          .foreColour = palette::kQuiet,
          .wordWrap = true};
}

inline Properties Rule(float top) {
  return {.ends = {32 * kTwipsPerPixel, top * kTwipsPerPixel, 568 * kTwipsPerPixel,
                   top * kTwipsPerPixel},
          .borderColour = palette::kRule};
}

// A value beside a button that changes it.
inline Properties Value(float top, bool bold) {
  return {.place = At(kValueLeft, top, 296, 24),
          .font = {.size = 10.5F, .bold = bold},
          .foreColour = palette::kInk};
}

inline Properties Remark(float top) {
  return {.place = At(kValueLeft, top, 416, 24),
          .font = {.size = 9.375F},
          .foreColour = palette::kQuiet};
}

inline Properties Button(float left, float top, std::string_view caption, int tabIndex) {
  return {.place = At(left, top, 112, 36),
          .caption = std::string(caption),
          .font = {.size = 10.5F},
          .tabStop = true,
          .tabIndex = tabIndex};
}

inline Properties MainButton(float left, float top, std::string_view caption, int tabIndex) {
  Properties button = Button(left, top, caption, tabIndex);
  button.look = forms::Look::Primary;
  return button;
}

}  // namespace screens::preferences_layout
