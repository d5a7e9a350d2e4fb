#include "forms/path.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace forms {
namespace {

constexpr double kRadians = std::numbers::pi / 180;
constexpr double kWidestPiece = 90;  // degrees; one cubic is exact to 0.03 per cent

}  // namespace

Point OnCircle(Point centre, double radius, double angle) {
  return {centre.x + radius * std::cos(angle * kRadians),
          centre.y - radius * std::sin(angle * kRadians)};
}

Path& Path::MoveTo(Point to) {
  verbs_.push_back(Verb::Move);
  points_.push_back(to);
  return *this;
}

Path& Path::LineTo(Point to) {
  verbs_.push_back(Verb::Line);
  points_.push_back(to);
  return *this;
}

Path& Path::CubicTo(Point control1, Point control2, Point to) {
  verbs_.push_back(Verb::Cubic);
  points_.insert(points_.end(), {control1, control2, to});
  return *this;
}

Path& Path::Close() {
  verbs_.push_back(Verb::Close);
  return *this;
}

Path& Path::Arc(Point centre, double radius, double from, double to) {
  MoveTo(OnCircle(centre, radius, from));
  return ArcTo(centre, radius, from, to);
}

Path& Path::ArcTo(Point centre, double radius, double from, double to) {
  const Point start = OnCircle(centre, radius, from);
  if (points_.empty() || points_.back() != start) LineTo(start);
  const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(to - from) / kWidestPiece)));
  const double step = (to - from) / pieces;
  const double handle = radius * 4 / 3 * std::tan(step * kRadians / 4);
  for (int i = 0; i < pieces; ++i) {
    const double a = from + i * step;
    const double b = a + step;
    const Point begin = OnCircle(centre, radius, a);
    const Point end = OnCircle(centre, radius, b);
    CubicTo({begin.x - handle * std::sin(a * kRadians), begin.y - handle * std::cos(a * kRadians)},
            {end.x + handle * std::sin(b * kRadians), end.y + handle * std::cos(b * kRadians)},
            end);
  }
  return *this;
}

Path Path::Raised(double level, double factor) const {
  Path raised = *this;
  for (Point& point : raised.points_) point.y = level + factor * (point.y - level);
  return raised;
}

Path Path::Circle(Point centre, double radius) {
  return Path().Arc(centre, radius, 0, 360).Close();
}

Path Path::Box(Point corner, double width, double height, double cornerRadius) {
  const double right = corner.x + width;
  const double bottom = corner.y + height;
  const double r = cornerRadius;
  if (r <= 0) {
    return Path()
        .MoveTo(corner)
        .LineTo({right, corner.y})
        .LineTo({right, bottom})
        .LineTo({corner.x, bottom})
        .Close();
  }
  return Path()
      .Arc({right - r, corner.y + r}, r, 90, 0)
      .ArcTo({right - r, bottom - r}, r, 0, -90)
      .ArcTo({corner.x + r, bottom - r}, r, -90, -180)
      .ArcTo({corner.x + r, corner.y + r}, r, 180, 90)
      .Close();
}

Path Path::RingPiece(Point centre, double inner, double outer, double from, double to) {
  return Path().Arc(centre, outer, from, to).ArcTo(centre, inner, to, from).Close();
}

}  // namespace forms
