// What the dashboard's background shows: the daylight in eight parts, and the sun.
#pragma once

#include <string>

#include "clocks/zone_clock.h"
#include "day/kept_place.h"
#include "foundation/calendar.h"
#include "foundation/session.h"

namespace screens {

struct DayScene {
  // One of the three periods.
  struct PeriodTimes {
    int segment = 0;    // 1 to 8 from sunrise
    std::string times;  // "09:38 - 11:06": start rounded down, end rounded up
    friend bool operator==(const PeriodTimes&, const PeriodTimes&) = default;
  };

  bool divided = false;   // false if the day has no sunrise or sunset
  std::string undivided;  // why, in words
  std::string sunrise;    // "06:43"
  std::string sunset;
  PeriodTimes durvela, gulik, yum;
  double sun = 0;  // 0 at sunrise, 1 at sunset, 2 at the next sunrise

  friend bool operator==(const DayScene&, const DayScene&) = default;
};

// The scene of the calendar day of `now` at the place of the current record, undivided if a
// calculation fails. Calculated for noon, so that the hours before sunrise show the coming day.
DayScene SceneOf(foundation::DateTime now, const foundation::SessionTable& session);

// The same by a place's own clock; for a place whose days are not known, by the session.
DayScene SceneOf(clocks::Instant now, day::KeptPlace& place,
                 const foundation::SessionTable& session);

}  // namespace screens
