// Rows of the timetable's table of controls, for a window of 960 by 680 logical pixels.
#pragma once

#include <string>
#include <string_view>

#include "screens/layout.h"
#include "screens/signs.h"

namespace screens::timetable_layout {

using namespace layout;

inline constexpr float kWidth = 960;  // logical pixels
inline constexpr float kHeight = 680;
inline constexpr float kFrameLeft = 384, kFrameTop = 88, kFrameWidth = 552, kFrameHeight = 568;
inline constexpr float kScrollWidth = 16;

// The page holds a month of rows and fits the narrowest window.
inline constexpr float kPageWidth = 400;
inline constexpr float kPageHeight = 1000;
inline constexpr std::string_view kPageName = "Durvela of each day";

inline Properties Head() {
  return {.place = At(0, 0, kWidth, 64), .backColour = palette::kEarth};
}

inline Properties HeadPicture() {
  return {.place = At(16, 8, 48, 48),
          .toolTip = "Click and Drag to Move the Page",
          .handCursor = true,
          .dragHandle = true,
          .picture = ProgramSign()};
}

inline Properties Title() {
  return {.place = At(76, 8, 560, 48),
          .caption = "Durvela",
          .font = {.size = 15.75F, .bold = true},
          .foreColour = palette::kCream,
          .dragHandle = true};
}

inline Properties HeadButton(float left, std::string_view caption, int tabIndex) {
  return {.place = At(left, 16, 100, 32),
          .caption = std::string(caption),
          .font = {.size = 9.375F},
          .tabStop = true,
          .tabIndex = tabIndex,
          .look = forms::Look::OnEarth};
}

inline Properties Card(float top, float height) {
  return {.place = At(24, top, 336, height),
          .backColour = palette::kPaper,
          .borderColour = palette::kRule,
          .cornerRadius = 14 * kTwipsPerPixel};
}

inline Properties Caption(float top, std::string_view caption) {
  return {.place = At(44, top, 116, 24),
          .caption = std::string(caption),
          .font = {.size = 9.375F},
          .foreColour = palette::kQuiet};
}

inline Properties Picker(float top, std::string_view spokenName, int tabIndex) {
  return {.place = At(160, top - 4, 180, 32),
          .font = {.size = 10.5F},
          .spokenName = std::string(spokenName),
          .tabStop = true,
          .tabIndex = tabIndex};
}

// Below the caption of a picker that rejects its text.
inline Properties Remark(float top, std::string_view remark) {
  return {.place = At(44, top + 20, 116, 16),
          .caption = std::string(remark),
          .font = {.size = 8.25F},
          .foreColour = palette::kError,
          .visible = false};
}

inline Properties Value(float top) {
  return {.place = At(160, top, 180, 24),
          .font = {.size = 10.5F, .bold = true},
          .foreColour = palette::kInk,
          .alignment = Alignment::Right};
}

// Leaves a long text more room, beside a short caption.
inline Properties LongValue(float top) {
  Properties value = Value(top);
  value.place = At(92, top, 248, 24);
  return value;
}

// Two lines, for a clock that changes.
inline Properties Clock() {
  Properties clock = LongValue(411);
  clock.place.height = 36 * kTwipsPerPixel;
  clock.wordWrap = true;
  return clock;
}

inline Properties ClockNote() {
  return {.place = At(44, 444, 296, 20), .font = {.size = 8.25F}, .foreColour = palette::kQuiet};
}

inline Properties CardTitle(float top, std::string_view caption) {
  return {.place = At(44, top, 296, 28),
          .caption = std::string(caption),
          .font = {.size = 12, .bold = true},
          .foreColour = palette::kInk};
}

inline Properties Button(float left, float top, float width, std::string_view caption, int tabIndex,
                         forms::Look look = forms::Look::Plain) {
  return {.place = At(left, top, width, 36),
          .caption = std::string(caption),
          .font = {.size = 10.5F},
          .tabStop = true,
          .tabIndex = tabIndex,
          .look = look};
}

inline Properties Frame() {
  return {.place = At(kFrameLeft, kFrameTop, kFrameWidth, kFrameHeight),
          .spokenName = "Quick View",
          .backColour = palette::kPaper,
          .borderColour = palette::kRule};
}

inline Properties Page(forms::Control& frame) {
  return {.container = &frame,
          .place = At(0, 0, kPageWidth, kPageHeight),
          .tag = "nr",  // its rows keep their size
          .spokenName = std::string(kPageName),
          .foreColour = palette::kInk};
}

inline Properties PageScroll(forms::Control& frame) {
  return {.container = &frame,
          .place = At(kFrameWidth - kScrollWidth, 0, kScrollWidth, kFrameHeight),
          .spokenName = "Rows of the page",
          .tabStop = true,
          .tabIndex = 9};
}

// Above the frame.
inline Properties OldList() {
  return {.place = At(kFrameLeft, 66, kFrameWidth, 20),
          .font = {.size = 9.375F, .bold = true},
          .foreColour = palette::kDurvelaOnPaper};
}

inline Properties Slide() {
  return {.place = At(692, 20, 24, 24), .picture = SunSign()};
}

inline Properties Status() {
  return {.place = At(24, 596, 336, 24), .font = {.size = 9.375F}, .foreColour = palette::kQuiet};
}

inline Properties Details(std::string_view website) {
  return {.place = At(24, 632, 336, 24),
          .caption = "CLICK HERE FOR MORE DETAILS...",
          .font = {.size = 9, .underline = true},
          .foreColour = palette::kDurvelaOnPaper,
          .alignment = Alignment::Centre,
          .visible = !website.empty(),
          .handCursor = true};
}

}  // namespace screens::timetable_layout
