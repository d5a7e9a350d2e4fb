#include "engine/nodes.h"

#include <cmath>
#include <cstdint>
#include <tuple>

#include "engine/angles.h"
#include "foundation/bounded_array.h"
#include "foundation/numbers.h"

namespace engine {
namespace {

using foundation::DateTime;

// Minutes of arc by the angle between Sun and node, one entry every 3 degrees from 0 to 45.
constexpr foundation::BoundedArray<std::uint8_t, 0, 15> NodeSwing{
    {0, 10, 20, 30, 40, 49, 58, 66, 73, 79, 85, 90, 93, 96, 98, 98}};

struct YearRow {
  int yearOffset, month, day;  // relative to the chart's year
  int minutes;                 // of arc
};

// In date order.
// clang-format off
constexpr YearRow NodeYearRows[] = {
    {-1, 12, 22,  2},
    { 0,  1,  3,  0},
    { 0,  1, 15, -2},
    { 0,  1, 27, -4},
    { 0,  2,  9, -5},
    { 0,  2, 21, -7},
    { 0,  3,  5, -8},
    { 0,  3, 17, -9},
    { 0,  3, 29, -9},
    { 0,  4, 11, -9},
    { 0,  4, 23, -9},
    { 0,  5,  5, -8},
    { 0,  5, 17, -7},
    { 0,  5, 29, -5},
    { 0,  6, 10, -4},
    { 0,  6, 23, -2},
    { 0,  7,  5,  0},
    { 0,  7, 17,  2},
    { 0,  7, 29,  4},
    { 0,  8, 10,  5},
    { 0,  8, 22,  7},
    { 0,  9,  4,  8},
    { 0,  9, 16,  9},
    { 0,  9, 28,  9},
    { 0, 10, 10,  9},
    { 0, 10, 22,  9},
    { 0, 11,  3,  8},
    { 0, 11, 16,  7},
    { 0, 11, 28,  5},
    { 0, 12, 10,  4},
    { 0, 12, 22,  2},
    { 1,  1,  3,  0},
};
// clang-format on

// Interpolated swing in minutes of arc for the Sun `A` degrees past the node.
double SwingAt(double A) {
  while (A < 0) A += 180;
  if (A > 180) A -= 180;
  double sign = 1;
  if (A > 90) {
    A -= 90;
    sign = -1;
  }
  int k = foundation::FloorToInt16(A / 3);
  int j = k + 1;
  if (A >= 45) {  // past the middle, read the table backwards
    k = 30 - k;
    j = k - 1;
  }
  const int w = NodeSwing[j] - NodeSwing[k];
  const double t = RealMod(A, 3) / 3;
  return sign * (w * t + NodeSwing[k]);
}

DateTime DateOf(const YearRow& row, int year) {
  return foundation::DateFromParts(year + row.yearOffset, row.month, row.day);
}

}  // namespace

double CalcNode(double meanNode, double sunLongitude, DateTime civilDate) {
  const double c = SwingAt(sunLongitude - meanNode);

  const auto on = foundation::FieldsOf(civilDate);
  if (on.year - 1 < 100 || on.year + 1 > 9999) {
    throw foundation::Error(foundation::ErrorKind::TypeMismatch);
  }
  const YearRow* row = NodeYearRows;
  while (std::tuple(row->yearOffset, row->month, row->day) < std::tuple(0, on.month, on.day)) ++row;
  const YearRow& before = row[-1];
  const double rowDate = DateOf(*row, on.year);
  const double q =
      row->minutes + c -
      (rowDate - civilDate) * (row->minutes - before.minutes) / (rowDate - DateOf(before, on.year));
  return std::abs(q / 60 + meanNode);
}

}  // namespace engine
