// The sun of a day in words.
#pragma once

#include <string>
#include <string_view>

#include "day/day.h"

namespace words {

// Why a day has no sunrise and no sunset: "The sun does not set". Empty if it has one.
std::string_view NoSunText(day::Sun::State state);

// How many of a number of days have none: "No sunset on 5 days, no sunrise on 1 day"; empty if all
// have one.
std::string NoSunDaysText(int polarDays, int polarNights);

}  // namespace words
