// What the rows of all forms' tables of controls are written in: logical pixels, of twips.
#pragma once

#include "forms/control.h"
#include "forms/units.h"
#include "screens/palette.h"

namespace screens::layout {

using forms::Alignment;
using forms::Properties;

inline constexpr auto kTwipsPerPixel = static_cast<float>(forms::kTwipsPerPixel);

inline forms::Place At(float left, float top, float width, float height) {
  return {left * kTwipsPerPixel, top * kTwipsPerPixel, width * kTwipsPerPixel,
          height * kTwipsPerPixel};
}

}  // namespace screens::layout
