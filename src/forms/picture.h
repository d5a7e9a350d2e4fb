// A picture of outlines and texts, crisp at any size.
#pragma once

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

// One line of text in the interface's own face.
struct Lettering {
  std::string text;  // UTF-8
  Point at;          // on the baseline, at the left end, right end or middle
  Alignment alignment = Alignment::Left;
  double size = 12;  // in units of the picture
  bool bold = false;
  Colour colour;
  friend bool operator==(const Lettering&, const Lettering&) = default;
};

// Drawn first to last. Units are the picture's own; whoever shows it stretches width and height.
struct Picture {
  double width = 0, height = 0;
  std::vector<std::variant<Outline, Lettering>> items;
  friend bool operator==(const Picture&, const Picture&) = default;
};

using PicturePtr = std::shared_ptr<const Picture>;

}  // namespace forms
