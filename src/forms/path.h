// An outline of lines and curves.
#pragma once

#include <vector>

namespace forms {

struct Point {
  double x = 0, y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

class Path {
 public:
  enum class Verb { Move, Line, Cubic, Close };  // with 1, 1, 3 and 0 points

  Path& MoveTo(Point to);
  Path& LineTo(Point to);
  Path& CubicTo(Point control1, Point control2, Point to);
  Path& Close();

  // Angles are degrees, counterclockwise from three o'clock; y grows downward. Arc starts a new
  // outline; ArcTo draws a line from the current point to the start of the arc first.
  Path& Arc(Point centre, double radius, double from, double to);
  Path& ArcTo(Point centre, double radius, double from, double to);

  // Closed outlines.
  static Path Circle(Point centre, double radius);
  static Path Box(Point corner, double width, double height, double cornerRadius = 0);
  // A segment of a ring between two angles.
  static Path RingPiece(Point centre, double inner, double outer, double from, double to);

  // The same outline with heights above or below a level scaled.
  Path Raised(double level, double factor) const;

  const std::vector<Verb>& Verbs() const { return verbs_; }
  const std::vector<Point>& Points() const { return points_; }
  friend bool operator==(const Path&, const Path&) = default;

 private:
  std::vector<Verb> verbs_;
  std::vector<Point> points_;
};

// The point at an angle (as in Path::Arc) on a circle.
Point OnCircle(Point centre, double radius, double angle);

}  // namespace forms
