// The command line.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "atlas/find_place.h"

namespace cli {

struct Coordinates {
  double latitude, longitude;  // degrees, north and east positive
  std::string zone, name;
};
struct DefaultPlace {};  // of the settings

struct PlaceRequest {
  std::variant<DefaultPlace, atlas::PlaceQuery, Coordinates> place;
  bool countryClock = false;
};

struct DaysRequest {
  PlaceRequest place;
  // Both dates or, for today, none.
  std::optional<std::chrono::local_days> from, to;
  bool oneDay = false;  // `day` rather than `days`
  bool json = false;
};

struct TextRequest {  // for help and version
  std::string text;
};

using Request = std::variant<DaysRequest, TextRequest>;

// What the arguments after the program's name ask for. Failure if they are invalid, or if a date
// lies outside the years 100 to 9999.
Request ReadArguments(std::vector<std::string> arguments);

}  // namespace cli
