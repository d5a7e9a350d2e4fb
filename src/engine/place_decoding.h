// Place texts ("28.40N", "77.13E", the standard meridian "82.30E") in decimal degrees.
#pragma once

#include <string>
#include <string_view>

namespace engine {

// A place text split at its letter: "28N40".
struct LatLongParts {
  double degrees = 0;
  double minutes = 0;
  std::string hemisphere;  // the last character that is no digit; empty if there is none
};

// Splits a text at characters that are no digits; the last of them wins. The digits after it are
// the minutes, a single one being the tens: "28N4" is 28 degrees 40 minutes.
LatLongParts SepLatLong(std::string_view text);

// The parts of a text in degrees.minutes with its hemisphere at the end. The longitude of whole
// degrees loses its point and its letter on the way, and its degrees count as minutes.
LatLongParts LatitudeParts(std::string_view text);
LatLongParts LongitudeParts(std::string_view text);

// Decimal degrees, below 0 in the hemisphere `negative`. Overflow where they have no finite value.
double DecimalDegrees(const LatLongParts& parts, std::string_view negative);

// A meridian in decimal degrees, east positive; a text without a letter is east.
double ZoneDegrees(std::string_view zone);

}  // namespace engine
