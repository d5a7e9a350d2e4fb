#include "bitmap/raster.h"

namespace bitmap {
namespace {

// Swaps between the two byte orders of a pixel.
void Exchange(std::span<const std::uint8_t> from, std::span<std::uint8_t> to) {
  for (std::size_t i = 0; i < from.size(); i += 3) {
    to[i] = from[i + 2];
    to[i + 1] = from[i + 1];
    to[i + 2] = from[i];
  }
}

}  // namespace

Pixels ToPixels(const forms::Raster& dots) {
  Pixels pixels(dots.width, dots.height);
  const auto width = static_cast<std::size_t>(dots.width) * 3;
  if (dots.rgb.size() < width * static_cast<std::size_t>(dots.height)) {
    throw foundation::Error(foundation::ErrorKind::InvalidCall);
  }
  std::span<const std::uint8_t> rows = dots.rgb;
  for (int y = dots.height - 1; y >= 0; --y, rows = rows.subspan(width)) {
    Exchange(rows.first(width), pixels.Row(y));
  }
  return pixels;
}

forms::Raster ToRaster(const Pixels& pixels) {
  forms::Raster dots = {.width = pixels.Width(), .height = pixels.Height()};
  const auto width = static_cast<std::size_t>(dots.width) * 3;
  dots.rgb.resize(width * static_cast<std::size_t>(dots.height));
  std::span<std::uint8_t> rows = dots.rgb;
  for (int y = dots.height - 1; y >= 0; --y, rows = rows.subspan(width)) {
    Exchange(pixels.Row(y).first(width), rows);
  }
  return dots;
}

}  // namespace bitmap
