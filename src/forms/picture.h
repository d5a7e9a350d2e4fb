// A picture made of outlines and texts, sharp at any size, and of raster images.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "forms/colour.h"
#include "forms/path.h"

namespace forms {

struct GradientStop {
  double at = 0;  // 0 to 1
  Colour colour;
  friend bool operator==(const GradientStop&, const GradientStop&) = default;
};

struct LinearGradient {
  Point from, to;
  std::vector<GradientStop> stops;
  friend bool operator==(const LinearGradient&, const LinearGradient&) = default;
};

struct RadialGradient {
  Point centre;
  double radius = 0;
  std::vector<GradientStop> stops;
  friend bool operator==(const RadialGradient&, const RadialGradient&) = default;
};

using Fill = std::variant<Colour, LinearGradient, RadialGradient>;

struct Stroke {
  Colour colour = kTransparent;
  double width = 0;
  friend bool operator==(const Stroke&, const Stroke&) = default;
};

// An outline, filled and then stroked.
struct Outline {
  Path path;
  Fill fill = kTransparent;
  Stroke stroke;
  friend bool operator==(const Outline&, const Outline&) = default;
};

enum class Alignment { Left, Right, Centre };

// One line of text.
struct Lettering {
  std::string text;  // UTF-8
  Point at;          // on the baseline, at the left end, right end or middle
  Alignment alignment = Alignment::Left;
  double size = 12;  // in picture units
  bool bold = false;
  Colour colour;
  std::string face = {};  // empty means the default face
  bool italic = false;
  bool underline = false;
  bool strikethrough = false;
  friend bool operator==(const Lettering&, const Lettering&) = default;
};

struct Picture;
using PicturePtr = std::shared_ptr<const Picture>;

// Another picture, scaled to a box.
struct Inset {
  PicturePtr picture;
  Point at;
  double width = 0, height = 0;
  friend bool operator==(const Inset&, const Inset&) = default;
};

// Pixels from the top left, three bytes each: red, green, blue.
struct Raster {
  int width = 0, height = 0;
  std::vector<std::uint8_t> rgb;
  double dotsPerInch = 96;
};
using RasterPtr = std::shared_ptr<const Raster>;

// An image that fills the picture.
struct Dots {
  RasterPtr raster;
  friend bool operator==(const Dots&, const Dots&) = default;
};

// Items are drawn first to last. Units are the picture's own; whatever shows it scales width and
// height.
struct Picture {
  double width = 0, height = 0;
  std::vector<std::variant<Outline, Lettering, Inset, Dots>> items;
  friend bool operator==(const Picture&, const Picture&) = default;
};

// An empty picture to draw on.
inline std::shared_ptr<Picture> NewPicture(double width, double height) {
  return std::make_shared<Picture>(Picture{width, height, {}});
}

// The raster of a picture that consists of nothing else; null for any other.
inline RasterPtr DotsOf(const Picture& picture) {
  const auto* dots = picture.items.size() == 1 ? std::get_if<Dots>(&picture.items[0]) : nullptr;
  return dots == nullptr ? nullptr : dots->raster;
}

// Texts in drawing order, separated by a blank on the same line and a line break otherwise.
std::string WordsOf(const Picture& picture);

// Texts in reading order: line by line, each from left to right.
std::string LinesOf(const Picture& page);

}  // namespace forms
