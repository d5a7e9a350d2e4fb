#include "dayperiods/weekday_segments.h"

#include "foundation/bounded_array.h"

namespace dayperiods {
namespace {

constexpr int kWeekdays = 7;

// By weekday, Sunday first.
constexpr foundation::BoundedArray<int, 1, kWeekdays> kDurvelaSegments({8, 2, 7, 5, 6, 4, 3});

// Lords of the weekdays, Sunday first. The rotation uses only the first seven; the eighth, which
// has no planet, completes the list.
constexpr foundation::BoundedArray<std::string_view, 1, 8> kPlanets({"SUN", "MOON", "MARS",
                                                                     "MERCURY", "JUPITER", "VENUS",
                                                                     "SATURN", "NIRISH"});

// The last segment that the planet rules: for the day's own lord the eighth, not the first.
int LastSegmentOf(std::string_view planet, int weekday) {
  const auto lords = SegmentLords(weekday);
  int segment = kSegmentsOfDaylight;
  while (lords[static_cast<std::size_t>(segment - 1)] != planet) --segment;
  return segment;
}

}  // namespace

int DurvelaSegment(int weekday) {
  return kDurvelaSegments[weekday];
}
int GulikSegment(int weekday) {
  return LastSegmentOf("SATURN", weekday);
}
int YumSegment(int weekday) {
  return LastSegmentOf("JUPITER", weekday);
}

std::array<std::string_view, kSegmentsOfDaylight> SegmentLords(int weekday) {
  if (weekday > kWeekdays) throw foundation::Error(foundation::ErrorKind::Subscript);
  std::array<std::string_view, kSegmentsOfDaylight> lords;
  int planet = weekday;
  for (std::string_view& lord : lords) {
    lord = kPlanets[planet];
    planet = planet % kWeekdays + 1;
  }
  return lords;
}

}  // namespace dayperiods
