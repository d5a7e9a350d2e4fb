// Changes of a clock in words.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "clocks/zone_clock.h"

namespace words {

// "clocks go back" or "clocks go forward" for a date with a change; empty for any other.
std::string_view ChangeOn(const clocks::ZoneClock& clock, std::chrono::local_days date);

// The clock's name on the first date, and where it changes up to the last, in the user's names of
// months: "EDT, UTC-4, from 1 November UTC-5". An ellipsis stands for the changes after the third.
std::string ClockOfDays(const clocks::ZoneClock& clock, std::chrono::local_days first,
                        std::chrono::local_days last);

// The same without the letters: "UTC-4, from 1 November UTC-5".
std::string ZoneOfDays(const clocks::ZoneClock& clock, std::chrono::local_days first,
                       std::chrono::local_days last);

}  // namespace words
