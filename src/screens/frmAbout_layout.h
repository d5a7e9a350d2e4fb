// Rows of frmAbout's table of controls, for a window of 520 by 420 logical pixels.
#pragma once

#include <string>

#include "foundation/numbers.h"
#include "foundation/version.h"
#include "screens/contact.h"
#include "screens/credits.h"
#include "screens/layout.h"
#include "screens/signs.h"

namespace screens::about_layout {

using namespace layout;

inline constexpr float kWidth = 520;  // logical pixels
inline constexpr float kHeight = 420;
inline constexpr float kCreditsHeight = 2592;  // twips; of the frame around the credits

inline Properties Head() {
  return {.place = At(0, 0, kWidth, 96), .backColour = palette::kEarth};
}

inline Properties HeadPicture() {
  return {.place = At(24, 16, 64, 64), .picture = ProgramSign()};
}

inline Properties Title() {
  return {.place = At(108, 16, 380, 36),
          .caption = foundation::kProgramName,
          .font = {.size = 15.75F, .bold = true},
          .foreColour = palette::kCream};
}

inline Properties Version() {
  using foundation::NumberText;
  return {.place = At(108, 52, 380, 24),
          .caption = "Version " + NumberText(foundation::kVersionMajor) + "." +
                     NumberText(foundation::kVersionMinor) + "." +
                     NumberText(foundation::kVersionRevision),
          .font = {.size = 10.5F},
          .foreColour = palette::kFaintCream};
}

inline Properties CreditsWindow() {
  return {
      .place = {24 * kTwipsPerPixel, 120 * kTwipsPerPixel, 472 * kTwipsPerPixel, kCreditsHeight},
      .spokenName = "Credits",
      .backColour = palette::kPaper,
      .borderColour = palette::kRule};
}

inline Properties Credits(forms::Control& window) {
  const forms::PicturePtr picture = CreditsPicture();
  return {.container = &window,
          .place = {0, 8 * kTwipsPerPixel, static_cast<float>(picture->width) * kTwipsPerPixel,
                    static_cast<float>(picture->height) * kTwipsPerPixel},
          .picture = picture};
}

inline Properties Website() {
  return {.place = At(24, 312, 472, 24),
          .caption = std::string(kWebsite),
          .font = {.size = 10.5F, .underline = true},
          .foreColour = palette::kDurvelaOnPaper,
          .visible = !kWebsite.empty(),
          .handCursor = true};
}

inline Properties SysInfo() {
  return {.place = At(24, 360, 160, 36),
          .caption = "&System Info...",
          .font = {.size = 10.5F},
          .tabStop = true,
          .tabIndex = 1};
}

inline Properties Ok() {
  return {.place = At(396, 360, 100, 36),
          .caption = "OK",
          .font = {.size = 10.5F},
          .tabStop = true,
          .look = forms::Look::Primary};
}

}  // namespace screens::about_layout
