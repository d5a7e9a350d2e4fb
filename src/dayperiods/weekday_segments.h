// The inauspicious eighths of daylight by weekday.
#pragma once

#include <array>
#include <string_view>

namespace dayperiods {

inline constexpr int kSegmentsOfDaylight = 8;

// Weekdays are 1 = Sunday to 7 = Saturday; segments are 1 to 8 from sunrise. All functions raise
// Subscript for any other weekday.
int DurvelaSegment(int weekday);
int GulikSegment(int weekday);
int YumSegment(int weekday);

// The planets that rule the eight segments of a weekday, starting with the day's own.
std::array<std::string_view, kSegmentsOfDaylight> SegmentLords(int weekday);

}  // namespace dayperiods
