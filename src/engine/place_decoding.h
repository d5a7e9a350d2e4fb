// Place texts ("28.40N", "77.13E", the standard meridian "82.30E") in decimal degrees.
#pragma once

#include <string>
#include <string_view>

namespace engine {

// A place text split at its letter: "28N40".
struct LatLongParts {
  double degrees = 0;
  double minutes = 0;
  std::string hemisphere;  // the last character that is not a digit; empty if there is none
};

// Splits a text at each character that is not a digit; the last one wins. The digits after it are
// the minutes; a single digit counts as tens: "28N4" is 28 degrees 40 minutes.
LatLongParts SepLatLong(std::string_view text);

// Parts of a text in degrees.minutes that ends with its hemisphere. A longitude of whole degrees
// loses its point and its letter, so that its degrees count as minutes.
LatLongParts LatitudeParts(std::string_view text);
LatLongParts LongitudeParts(std::string_view text);

// Decimal degrees, negative in the hemisphere `negative`. Overflow if they are not finite.
double DecimalDegrees(const LatLongParts& parts, std::string_view negative);

// A meridian in decimal degrees, east positive; without a letter it is east.
double ZoneDegrees(std::string_view zone);

}  // namespace engine
