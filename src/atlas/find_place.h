// Finding places of the atlas by name.
#pragma once

#include <string>
#include <vector>

#include "atlas/place.h"

namespace atlas {

// Ignores case, marks and signs. An empty state or country matches any.
struct PlaceQuery {
  std::string name;
  std::string state;    // or one part of it: "Croatia" for "Zagreb - Croatia"
  std::string country;  // as the atlas names it, or the ISO 3166 code of the place's country
};

// The places of that name in the indexes, the most populous first. Ignores missing and broken
// indexes.
std::vector<Place> PlacesNamed(const PlaceQuery& query);

}  // namespace atlas
