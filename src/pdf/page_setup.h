// User units, margins and page formats.
#pragma once

#include <cstdint>
#include <vector>

namespace pdf {

inline constexpr double kPointsPerInch = 72;
inline constexpr double kPointsPerMillimetre = kPointsPerInch / 25.4;
inline constexpr double kPointsPerCentimetre = kPointsPerInch / 2.54;
inline constexpr double kPointsPerTwip = kPointsPerInch / 1440;

// Points, never scaled.
struct PageFormat {
  double width = 0;
  double height = 0;
};

// By code: A4, A3, A5, Letter, Legal.
inline constexpr PageFormat kPageFormats[] = {
    {595.28, 841.89}, {841.89, 1190.55}, {420.94, 595.28}, {612, 792}, {612, 1008}};

// User coordinates start at the top left of the page, points in the file at the bottom left.
struct PageSetup {
  double scale = kPointsPerCentimetre;  // points per user unit

  // Whole user units, except for the cell margin, which takes the unit of whatever it is added to.
  std::int16_t leftMargin = 1, topMargin = 1, rightMargin = 1, bottomMargin = 1;
  std::int16_t cellMargin = 3;

  // One per page; the last is the page being drawn or set up.
  std::vector<PageFormat> formats = {kPageFormats[0]};

  PageFormat& Format() { return formats.back(); }
  const PageFormat& Format() const { return formats.back(); }

  double Across(double x) const { return x * scale; }
  double Up(double y) const { return Format().height - y * scale; }
};

}  // namespace pdf
