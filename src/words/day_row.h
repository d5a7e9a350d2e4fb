// A day's times as the rows of tables have them.
#pragma once

#include <string>

#include "clocks/zone_clock.h"
#include "day/day.h"

namespace words {

// "06:43:00" by the clock; kNoTime for what the day does not have.
struct DayRow {
  struct Period {
    std::string start, end;
  };

  std::string sunrise, sunset;
  std::string daylight;  // how long it lasts
  Period durvela, gulik, yum;
};

inline constexpr char kNoTime[] = "-";

// The day's sun with the periods of a weekday, 1 = Sunday; before sunrise that is another than the
// day's. Subscript for any other weekday.
DayRow DayRowOf(const day::Day& day, const clocks::ZoneClock& clock, int weekday);

// A row without any times.
DayRow EmptyDayRow();

}  // namespace words
