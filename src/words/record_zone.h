// The zone of a session record by a place's own clock.
#pragma once

#include <chrono>

#include "clocks/zone_clock.h"
#include "foundation/session.h"

namespace words {

// Gives a record whose place has been copied to it the meridian and zone texts of the clock's
// offset at noon of a date. Calculations from the record then give times by that clock, if the date
// is the one whose sun they show: before sunrise, the day before (day::KeptPlace::SunDate).
void SetRecordZone(foundation::SessionRecord& record, const clocks::ZoneClock& clock,
                   std::chrono::local_days date);

}  // namespace words
