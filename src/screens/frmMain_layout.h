// Rows of the dashboard's table of controls, for a window of 840 by 560 logical pixels.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "foundation/numbers.h"
#include "foundation/version.h"
#include "screens/layout.h"
#include "screens/signs.h"

namespace screens::dashboard_layout {

using namespace layout;

inline constexpr float kWidth = 840;  // logical pixels
inline constexpr float kHeight = 560;

// Positions and sizes below are in logical pixels, font sizes in points.
inline Properties Background() {
  return {.place = At(0, 0, kWidth, kHeight), .spokenName = "Today in eight parts"};
}

inline Properties Card() {
  return {.place = At(590, 26, 226, 322),
          .backColour = palette::kPaper,
          .cornerRadius = 14 * kTwipsPerPixel,
          .look = forms::Look::Card};
}

inline Properties DurvelaField() {
  return {.place = At(600, 258, 206, 80),
          .backColour = palette::kDurvelaOnPaper,
          .cornerRadius = 10 * kTwipsPerPixel};
}

inline Properties CardRule() {
  return {.ends = {608 * kTwipsPerPixel, 178 * kTwipsPerPixel, 798 * kTwipsPerPixel,
                   178 * kTwipsPerPixel},
          .borderColour = palette::kRule};
}

// A line of text in the middle of the arc.
inline Properties OnSky(float top, float height, float size, std::string_view caption,
                        bool bold = false) {
  return {.place = At(170, top, 240, height),
          .caption = std::string(caption),
          .font = {.size = size, .bold = bold},
          .foreColour = palette::kCream,
          .alignment = Alignment::Centre};
}

inline Properties BesideTime(std::string_view caption) {
  return {.place = At(406, 268, 60, 22),
          .caption = std::string(caption),
          .font = {.size = 10.5F},
          .spokenName = "by the clock of the place",
          .foreColour = palette::kCream,
          .visible = false};
}

inline Properties CardHead(float top) {
  return {.place = At(608, top, 190, 30),
          .font = {.size = 15.75F, .bold = true},
          .foreColour = palette::kInk};
}

inline Properties CardCaption(float top, std::string_view caption) {
  return {.place = At(608, top, 84, 22),
          .caption = std::string(caption),
          .font = {.size = 9.375F},
          .foreColour = palette::kQuiet};
}

inline Properties CardValue(float top) {
  return {.place = At(692, top, 106, 22),
          .font = {.size = 10.5F, .bold = true},
          .foreColour = palette::kInk,
          .alignment = Alignment::Right};
}

inline Properties CardFigure(float top) {
  return {.place = At(696, top, 102, 28),
          .font = {.size = 13.5F, .bold = true},
          .foreColour = palette::kInk,
          .alignment = Alignment::Right};
}

inline Properties FieldCaption(std::string_view caption) {
  return {.place = At(614, 268, 178, 22),
          .caption = std::string(caption),
          .font = {.size = 9.75F, .bold = true},
          .foreColour = palette::kWhite};
}

inline Properties FieldFigure() {
  return {.place = At(606, 292, 194, 36),
          .font = {.size = 15.75F, .bold = true},
          .foreColour = palette::kWhite,
          .alignment = Alignment::Centre};
}

inline constexpr float kTileStep = 100.57F;  // from one menu item to the next
inline constexpr float kTileWidth = 96;

inline std::vector<Properties> MenuTiles() {
  std::vector<Properties> tiles;
  for (const MenuSign& sign : MenuSigns()) {
    tiles.push_back(
        {.place = At(20 + kTileStep * static_cast<float>(tiles.size()), 404, kTileWidth, 112),
         .caption = std::string(sign.caption),
         .enabled = false,
         .tabStop = true,
         .handCursor = true,
         .look = forms::Look::Tile,
         .picture = sign.picture});
  }
  return tiles;
}

inline std::vector<Properties> MenuCaptions() {
  std::vector<Properties> captions;
  for (const MenuSign& sign : MenuSigns()) {
    captions.push_back(
        {.place = At(24 + kTileStep * static_cast<float>(captions.size()), 472, kTileWidth - 8, 40),
         .caption = std::string(sign.caption),
         .font = {.size = 9},
         .foreColour = palette::kCream,
         .alignment = Alignment::Centre,
         .wordWrap = true,
         .enabled = false,
         .handCursor = true});
  }
  return captions;
}

// Reached with Tab after the menu.
inline Properties PreferencesButton() {
  return {.place = At(20, 18, 108, 30),
          .caption = "&Preferences",
          .font = {.size = 9.375F, .bold = true},
          .tabStop = true,
          .tabIndex = 1,
          .look = forms::Look::OnSky};
}

inline Properties ContactLine(int number, std::string_view text) {
  return {.place = At(20 + 180 * static_cast<float>(number), 530, 170, 20),
          .caption = std::string(text),
          .font = {.size = 8.25F},
          .foreColour = palette::kFaintOnEarth,
          .visible = !text.empty(),
          .handCursor = true};
}

inline Properties VersionLine() {
  return {.place = At(660, 530, 160, 20),
          .caption = "version " + foundation::NumberText(foundation::kVersionMajor) + "." +
                     foundation::NumberText(foundation::kVersionMinor),
          .font = {.size = 8.25F},
          .foreColour = palette::kFaintOnEarth,
          .alignment = Alignment::Right};
}

}  // namespace screens::dashboard_layout
