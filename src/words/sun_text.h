// The sun of a day in words.
#pragma once

#include <string_view>

#include "day/day.h"

namespace words {

// Why a day has no sunrise and no sunset: "The sun does not set". Empty if it has one.
std::string_view NoSunText(day::Sun::State state);

}  // namespace words
