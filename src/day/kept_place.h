// The place that a screen shows: its own clock, and its days as they are asked for.
#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <string>

#include "atlas/place.h"
#include "atlas/place_clock.h"
#include "day/day.h"
#include "foundation/settings.h"

namespace day {

// Keeps the clock and the last few days, so that whoever asks every second pays for them once. The
// one place where days are kept: ask again rather than keep a copy.
class KeptPlace {
 public:
  // Call before each use. Reads the clock anew only if the texts or the zone that the user chose
  // for the place have changed. Errors of the settings, after which the clock is the one before.
  void Set(foundation::Settings& settings, const atlas::PlaceTexts& texts);

  // Universal Time before the first Set.
  const atlas::PlaceClock& Clock() const { return clock_; }

  // The day of a date by the clock. Null if a coordinate cannot be read or is out of range, or the
  // year is outside 100 to 9999. Holds until the place changes or a date four or more days away is
  // asked for.
  const Day* On(std::chrono::local_days date);

  // The date whose sun belongs to an instant: the civil date by the clock, and before its sunrise
  // the day before, unless the sun neither rose nor set on that.
  std::chrono::local_days SunDate(Instant instant);

 private:
  atlas::PlaceTexts texts_;
  std::optional<std::string> chosenZone_;
  atlas::PlaceClock clock_ = {clocks::ZoneClock::Fixed({}), "", atlas::PlaceClock::Source::Country};
  std::optional<atlas::Place> place_;
  std::map<std::chrono::local_days, Day> days_;
};

}  // namespace day
