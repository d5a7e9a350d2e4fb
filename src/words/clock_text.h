// Instants and offsets of a clock as texts.
#pragma once

#include <chrono>
#include <string>

#include "clocks/zone_clock.h"

namespace words {

// The offset from Universal Time, seconds only if there are any: "UTC", "UTC-4", "UTC+5:45".
std::string UtcText(std::chrono::seconds east);

// "EDT, UTC-4", or the offset only in a zone without letters.
std::string ClockName(const clocks::Offset& offset);

// An instant by the clock in the form of RFC 3339, "2026-11-08T06:38:00+05:30". That form has no
// seconds in the offset; where the clock has some, they are left out and the time is shown by the
// offset without them.
std::string MomentText(const clocks::ZoneClock& clock, clocks::Instant instant);

// The time of day by the clock, "06:43:00".
std::string TimeText(const clocks::ZoneClock& clock, clocks::Instant instant);

// "2026-11-08"; at least four digits of the year.
std::string DateText(std::chrono::local_days date);

// The offset as session records hold it: the zone's meridian in degrees and minutes of arc,
// "60.00W", and hours and minutes, rounded, with a minus east of Greenwich, "-5.30".
std::string MeridianText(std::chrono::seconds east);
std::string ZoneText(std::chrono::seconds east);

}  // namespace words
