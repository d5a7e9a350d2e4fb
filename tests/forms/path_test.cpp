#include "forms/path.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace forms {
namespace {

// The middle of the cubic that ends at point `end`, from the point three before.
Point MiddleOfCubic(const std::vector<Point>& p, std::size_t end) {
  const auto mid = [](double a, double b, double c, double d) {
    return (a + 3 * b + 3 * c + d) / 8;
  };
  return {mid(p[end - 3].x, p[end - 2].x, p[end - 1].x, p[end].x),
          mid(p[end - 3].y, p[end - 2].y, p[end - 1].y, p[end].y)};
}

TEST(Path, RunsCounterclockwiseFromThreeOClock) {
  const Point top = OnCircle({10, 10}, 5, 90);
  EXPECT_NEAR(top.x, 10, 1e-12);
  EXPECT_NEAR(top.y, 5, 1e-12);
}

TEST(Path, KeepsArcsOnTheirCircle) {
  const Path circle = Path::Circle({0, 0}, 100);
  ASSERT_EQ(circle.Points().size(), 13U);  // a start and four cubics
  for (std::size_t end = 3; end < circle.Points().size(); end += 3) {
    const Point on = circle.Points()[end];
    const Point between = MiddleOfCubic(circle.Points(), end);
    EXPECT_NEAR(std::hypot(on.x, on.y), 100, 1e-9);
    EXPECT_NEAR(std::hypot(between.x, between.y), 100, 0.03);
  }
}

TEST(Path, KeepsARoundedBoxInItsPlace) {
  const Path box = Path::Box({10, 20}, 30, 40, 5);
  for (const Point& p : box.Points()) {
    EXPECT_TRUE(p.x >= 10 - 1e-9 && p.x <= 40 + 1e-9 && p.y >= 20 - 1e-9 && p.y <= 60 + 1e-9);
  }
  const auto [left, right] = std::minmax_element(box.Points().begin(), box.Points().end(),
                                                 [](Point a, Point b) { return a.x < b.x; });
  EXPECT_NEAR(left->x, 10, 1e-9);
  EXPECT_NEAR(right->x, 40, 1e-9);
}

}  // namespace
}  // namespace forms
