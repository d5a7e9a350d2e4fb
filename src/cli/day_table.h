// Days as tables for a terminal.
#pragma once

#include <string>

#include "cli/chosen_place.h"
#include "day/day.h"

namespace cli {

// A day on several lines, with seconds.
std::string DayTable(const ChosenPlace& chosen, const day::Day& value);

// A range of days: a head, and a line for each day, to the minute.
std::string DaysHead(const ChosenPlace& chosen);
std::string DaysRow(const ChosenPlace& chosen, const day::Day& value);

}  // namespace cli
