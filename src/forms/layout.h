// Helpers for the forms' control tables, in logical pixels.
#pragma once

#include "forms/control.h"
#include "forms/palette.h"
#include "forms/units.h"

namespace forms::layout {

inline constexpr auto kTwipsPerPixel = static_cast<float>(forms::kTwipsPerPixel);

inline forms::Place At(float left, float top, float width, float height) {
  return {left * kTwipsPerPixel, top * kTwipsPerPixel, width * kTwipsPerPixel,
          height * kTwipsPerPixel};
}

}  // namespace forms::layout
