// Rows of the report page's table of controls, in twips, for a page of 13635 by 10230.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "foundation/legacy_hindi.h"
#include "foundation/version.h"

namespace report::page_layout {

using forms::Properties;

inline constexpr float kWidth = 13635;
inline constexpr float kHeight = 10230;
inline constexpr int kRows = 31;

// The place line extends to the left from here.
inline constexpr float kPlaceLineRight = 12390 + 75;
inline constexpr float kPlaceLineLeft = 3700;  // limit; the longest place then needs 7.2 points
inline constexpr float kPlaceLineSize = 11.25F;

// A heading in the legacy Hindi encoding.
inline Properties Head(float left, float top, float width, float height, float size,
                       std::string_view caption) {
  return {.place = {left, top, width, height},
          .caption = std::string(caption),
          .font = {.name = std::string(foundation::kLegacyHindiFace), .size = size}};
}

inline Properties Title() {
  return Head(1110, 240, 1410, 450, 21.75F, "");
}

inline Properties GroupHead(float left, float width, std::string_view caption) {
  return Head(left, 720, width, 300, 14.25F, caption);
}

inline Properties ColumnHead(float left, std::string_view caption, float top = 1020) {
  return Head(left, top, 900, 270, 14.25F, caption);
}

inline Properties PlaceLine() {
  return {.place = {12390, 360, 75, 255}, .font = {.name = "Arial", .size = kPlaceLineSize}};
}

inline Properties Imprint() {
  return {.place = {720, 9780, 6315, 180},
          .caption = foundation::kProgramName,
          .font = {.name = "Arial", .size = 6.75F}};
}

// The rules of the table: thin black boxes.
inline std::vector<Properties> Rules() {
  constexpr float kLeft = 720, kRight = 12870, kTop = 270, kBottom = 9750, kInnerTop = 690;
  constexpr float kThick = 15;
  std::vector<Properties> rules;
  const auto add = [&](forms::Place place) {
    rules.push_back({.place = place, .backColour = forms::Rgb(0)});
  };
  for (const float top : {kTop, kInnerTop, 1290.0F, kBottom}) {
    add({kLeft, top, kRight - kLeft, kThick});
  }
  for (const float left : {kLeft, 1020.0F, 2160.0F, 5640.0F, 7920.0F, 10260.0F, 12570.0F, kRight}) {
    const float top = left == kLeft || left == kRight ? kTop : kInnerTop;
    add({left, top, kThick, kBottom - top});
  }
  return rules;
}

// A column of rows; the last four are slightly further left.
inline std::vector<Properties> Column(float left, float width, std::string_view caption) {
  constexpr float kFirstTop = 1320, kRowStep = 270, kRowHeight = 240;
  constexpr int kFirstFurtherLeft = 27;
  constexpr float kFurther = 15;
  std::vector<Properties> rows;
  for (int row = 0; row < kRows; ++row) {
    const float shift = row >= kFirstFurtherLeft ? kFurther : 0;
    rows.push_back(
        {.place = {left - shift, kFirstTop + kRowStep * static_cast<float>(row), width, kRowHeight},
         .caption = std::string(caption),
         .font = {.name = "Arial", .size = 9.75F}});
  }
  return rows;
}

inline std::vector<Properties> Dates() {
  return Column(1125, 960, "00/00/0000");
}

inline std::vector<Properties> Times(float left) {
  return Column(left, 750, "00:00:00");
}

// In the right margin, a word a line.
inline std::vector<Properties> Notes() {
  constexpr float kLeft = 12915, kAboveRow = 40, kSize = 7.5F;
  std::vector<Properties> notes = Column(kLeft, kWidth - kLeft, "");
  for (Properties& note : notes) {
    note.place.left = kLeft;
    note.place.top -= kAboveRow;
    note.font.size = kSize;
  }
  return notes;
}

}  // namespace report::page_layout
