// Day: the sun and the three inauspicious periods of a civil date at a place.
#pragma once

#include <array>
#include <chrono>
#include <optional>
#include <vector>

#include "atlas/place.h"
#include "clocks/zone_clock.h"

namespace day {

using clocks::Instant;

struct Sun {
  enum class State { Rises, PolarDay, PolarNight };  // Rises: it rises, or sets, or both

  State state = State::Rises;
  std::optional<Instant> rise;      // before the noon of the date
  std::optional<Instant> set;       // after it, if need be past midnight
  std::optional<Instant> nextRise;  // of the date that follows
};

enum class PeriodKind { Durvela, Gulik, Yum };

struct Period {
  PeriodKind kind;
  int part;  // of the eight parts of daylight, 1 to 8 from sunrise
  Instant begin, end;
};

struct Day {
  std::chrono::local_days date;
  int weekday = 0;  // of the date, 1 = Sunday
  Sun sun;
  // Both empty unless the sun rises and sets.
  std::vector<Instant> parts;  // the ends of the eight parts of daylight, from sunrise to sunset: 9
  std::vector<Period> periods;  // Durvela, Gulik, Yum
};

// The day by the place's clock, years 100 to 9999. Sunrise and sunset are whole minutes by the
// solar series of clsBirthDetails; beyond 63 degrees of latitude, and wherever that series is more
// than five minutes from the engine's Sun, they are that Sun's, to the second.
// InvalidCall for another year.
Day DayOf(const atlas::Place& place, const clocks::ZoneClock& clock, std::chrono::local_days date);

int WeekdayOf(std::chrono::local_days date);  // 1 = Sunday

// A period of the day's daylight by the rule of a weekday. Before sunrise that differs from the
// day's own weekday: the sun is still the previous day's, the weekday that of the date. Nothing
// without daylight; Subscript for a weekday outside 1 to 7.
std::optional<Period> PeriodOn(const Day& day, PeriodKind kind, int weekday);

}  // namespace day
