// The zone of a place itself; getCountryZone knows one for each country.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace atlas {

struct PlaceZone {
  std::string name;    // IANA, "Asia/Kolkata"
  bool exact = false;  // of the place itself; else of the nearest place of its country
};

// For a place by the texts that screens and settings hold: "India", "Delhi(Delhi)", "28.40N",
// "77.13E". The place itself has the name, with or without the state, up to five minutes of arc
// away, because sources disagree about the centre of a city. Unlike in a calculation, "77.00E" is
// 77 degrees. Nothing if a coordinate cannot be read, or the country has no index or a broken one.
// Reads the index at each call.
std::optional<PlaceZone> ZoneOfPlace(std::string_view country, std::string_view city,
                                     std::string_view latitude, std::string_view longitude);

}  // namespace atlas
