#include "dayperiods/weekday_segments.h"

#include "foundation/error.h"

namespace dayperiods {
namespace {

constexpr int kWeekdays = 7;

// By weekday, Sunday first.
constexpr std::array<int, kWeekdays> kDurvelaSegments = {8, 2, 7, 5, 6, 4, 3};

// The lords of the weekdays, Sunday first. The rotation through the segments takes the first seven
// alone; the eighth, the lordless one, closes the list.
constexpr std::array<std::string_view, 8> kPlanets = {"SUN",     "MOON",  "MARS",   "MERCURY",
                                                      "JUPITER", "VENUS", "SATURN", "NIRISH"};

// The last segment that the planet rules: where it is the day's own lord, the eighth, not the
// first.
int LastSegmentOf(std::string_view planet, int weekday) {
  const auto lords = SegmentLords(weekday);
  int segment = kSegmentsOfDaylight;
  while (lords[static_cast<std::size_t>(segment - 1)] != planet) --segment;
  return segment;
}

std::size_t Checked(int weekday) {
  if (weekday < 1 || weekday > kWeekdays) {
    throw foundation::Error(foundation::ErrorKind::Subscript);
  }
  return static_cast<std::size_t>(weekday - 1);
}

}  // namespace

int DurvelaSegment(int weekday) {
  return kDurvelaSegments[Checked(weekday)];
}
int GulikSegment(int weekday) {
  return LastSegmentOf("SATURN", weekday);
}
int YumSegment(int weekday) {
  return LastSegmentOf("JUPITER", weekday);
}

std::array<std::string_view, kSegmentsOfDaylight> SegmentLords(int weekday) {
  const std::size_t first = Checked(weekday);
  std::array<std::string_view, kSegmentsOfDaylight> lords;
  for (std::size_t i = 0; i < lords.size(); ++i) lords[i] = kPlanets[(first + i) % kWeekdays];
  return lords;
}

}  // namespace dayperiods
