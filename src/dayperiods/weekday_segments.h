// Which of the eight equal parts of daylight are inauspicious on which weekday.
#pragma once

#include <array>
#include <string_view>

namespace dayperiods {

inline constexpr int kSegmentsOfDaylight = 8;

// Weekdays are 1 = Sunday to 7 = Saturday, segments 1 to 8 from sunrise. All raise Subscript for
// any other weekday.
int DurvelaSegment(int weekday);
int GulikSegment(int weekday);
int YumSegment(int weekday);

// The planets that rule the eight segments of a weekday, the day's own first.
std::array<std::string_view, kSegmentsOfDaylight> SegmentLords(int weekday);

}  // namespace dayperiods
