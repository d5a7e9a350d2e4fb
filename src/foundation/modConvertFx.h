// Angles and their texts.
#pragma once

#include <string>
#include <string_view>

namespace foundation {

// Degrees.minutes to decimal degrees: 28.40 (28 degrees 40 minutes) becomes 28.666... The result
// is written back into x as well. The sign of a hemisphere is the caller's.
double DegMinToDecimal(double& x);

// A zone offset such as "-5.30" (hours.minutes, minus east of Greenwich) as its standard meridian
// "82.30E" (degrees.minutes, not padded: "5" is "75.0W").
std::string ZoneToMeridianText(std::string_view zone);

// The place of an ecliptic longitude, in degrees, inside its sign of 30 degrees: "DD:MM:SS". A
// carry raises the next field and leaves "60" in its own.
std::string DecimalToSignDMS(double longitude);

}  // namespace foundation
