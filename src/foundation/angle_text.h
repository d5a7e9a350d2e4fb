// Conversion of angles and their texts.
#pragma once

#include <string>
#include <string_view>

namespace foundation {

// Converts degrees.minutes to decimal degrees: 28.40 (28 degrees 40 minutes) becomes 28.666... Also
// stores the result in x. The caller applies the hemisphere's sign.
double DegMinToDecimal(double& x);

// Converts a zone offset such as "-5.30" (hours.minutes, minus east of Greenwich) to its standard
// meridian "82.30E" (degrees.minutes, not padded: "5" gives "75.0W").
std::string ZoneToMeridianText(std::string_view zone);

// The position of an ecliptic longitude, in degrees, within its sign: "DD:MM:SS". A carry raises
// the next field and leaves "60" in the lower one.
std::string DecimalToSignDMS(double longitude);

}  // namespace foundation
