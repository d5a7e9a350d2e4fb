// Rows of the preview's table of controls: positions in a window of 1100 by 760 logical pixels,
// before the form lays out its panels.
#pragma once

#include <string>
#include <string_view>

#include "screens/layout.h"

namespace screens::preview_layout {

using namespace layout;

inline constexpr float kWidth = 1100;  // logical pixels
inline constexpr float kHeight = 760;
inline constexpr float kToolHeight = 56, kBar = 16;
inline constexpr float kInset = 16;        // at both ends of the tool bar
inline constexpr float kPanelWidth = 268;  // minus the button's width, a multiple of the slide step
inline constexpr float kPanelGap = 200;    // twips, between panel and page
inline constexpr int kSlideInterval = 10;  // milliseconds
inline constexpr std::string_view kSlogan = "A page for each month";

inline Properties ToolBar() {
  return {
      .place = At(0, 0, kWidth, kToolHeight), .spokenName = "Tools", .backColour = palette::kEarth};
}

inline Properties ToolButton(forms::Control& bar, float left, float width, std::string_view caption,
                             std::string_view toolTip, int tabIndex,
                             forms::Look look = forms::Look::OnEarth, bool visible = true) {
  return {.container = &bar,
          .place = At(left, 12, width, 32),
          .caption = std::string(caption),
          .font = {.size = 9.375F},
          .toolTip = std::string(toolTip),
          .visible = visible,
          .tabStop = true,
          .tabIndex = tabIndex,
          .look = look};
}

inline Properties PageSelector(forms::Control& bar) {
  return {.container = &bar,
          .place = At(68, 12, 300, 32),
          .font = {.size = 10.5F},
          .spokenName = "Page",
          .tabStop = true,
          .tabIndex = 1};
}

inline Properties PageNumber(forms::Control& bar) {
  return {.container = &bar,
          .place = At(700, 12, 60, 32),
          .font = {.size = 10.5F},
          .toolTip = "Enter page number here",
          .visible = false,
          .tabStop = true,
          .tabIndex = 5};
}

inline Properties Slogan(forms::Control& bar) {
  return {.container = &bar,
          .place = At(840, 12, 244, 32),
          .caption = std::string(kSlogan),
          .font = {.size = 9.375F},
          .foreColour = palette::kFaintOnEarth,
          .alignment = Alignment::Right};
}

inline Properties SidePanel() {
  return {.place = At(0, kToolHeight, kPanelWidth, kHeight - kToolHeight),
          .spokenName = "List of pages",
          .backColour = palette::kPaper,
          .borderColour = palette::kRule};
}

inline Properties PanelButton(forms::Control& panel, std::string_view caption,
                              std::string_view toolTip, bool visible) {
  return {.container = &panel,
          .place = At(kPanelWidth - 28, 4, 28, 28),
          .caption = std::string(caption),
          .font = {.size = 10.5F},
          .toolTip = std::string(toolTip),
          .visible = visible,
          .tabStop = true,
          .tabIndex = 7,
          .look = forms::Look::Flat};
}

inline Properties PageList(forms::Control& panel) {
  return {.container = &panel,
          .place = At(0, 36, kPanelWidth, kHeight - kToolHeight - 36),
          .font = {.size = 10.5F},
          .spokenName = "Pages",
          .foreColour = palette::kInk,
          .tabStop = true,
          .tabIndex = 8};
}

inline Properties Desk() {
  return {.place = At(kPanelWidth, kToolHeight, kWidth - kPanelWidth, kHeight - kToolHeight),
          .spokenName = "Desk",
          .backColour = palette::kDesk};
}

inline Properties Page(forms::Control& desk) {
  return {.container = &desk,
          .place = {0, 0, 11250, 16155},
          .spokenName = "The page",
          .backColour = palette::kWhite,
          .look = forms::Look::Card};
}

inline Properties ScrollBar(std::string_view spokenName, int tabIndex) {
  return {.place = At(0, 0, kBar, kBar),
          .spokenName = std::string(spokenName),
          .tabStop = true,
          .tabIndex = tabIndex};
}

}  // namespace screens::preview_layout
