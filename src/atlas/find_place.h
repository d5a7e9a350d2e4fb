// Finding places of the atlas by name.
#pragma once

#include <string>
#include <vector>

#include "atlas/place.h"

namespace atlas {

// Case, marks and signs aside. An empty state or country is any.
struct PlaceQuery {
  std::string name;
  std::string state;    // or one part of it: "Croatia" for "Zagreb - Croatia"
  std::string country;  // as the atlas names it, or the ISO 3166 code of the place's country
};

// The places of that name as the indexes have them, the most populous first. An index that is
// missing or broken has none.
std::vector<Place> PlacesNamed(const PlaceQuery& query);

}  // namespace atlas
