// A day as JSON.
#pragma once

#include <string>

#include "atlas/place.h"
#include "clocks/zone_clock.h"
#include "day/day.h"

namespace cli {

// One object on one line, without a line end. Moments are by the clock; a moment beyond the year
// 9999, which their form cannot hold, is null.
std::string DayJson(const atlas::Place& place, const clocks::ZoneClock& clock,
                    const day::Day& value);

}  // namespace cli
