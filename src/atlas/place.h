// A place as numbers, with the zone whose clock it keeps.
#pragma once

#include <string>

namespace atlas {

struct Place {
  std::string name, state, country;  // UTF-8; may be empty
  double latitude = 0;               // degrees, north positive
  double longitude = 0;              // degrees, east positive
  std::string zone;                  // an IANA name, "Asia/Kolkata"
};

}  // namespace atlas
