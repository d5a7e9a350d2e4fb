// The place that the user asks for, and its clock.
#pragma once

#include <string>

#include "atlas/place.h"
#include "cli/arguments.h"
#include "clocks/zone_clock.h"
#include "foundation/settings.h"

namespace cli {

struct ChosenPlace {
  atlas::Place place;  // its zone is empty if none is known
  clocks::ZoneClock clock;
  bool countryClock = false;  // rather than the place's
  std::string note;           // what the user should know about the choice; may be empty
};

// Failure if there is no such place, or the default place cannot be read.
ChosenPlace FindPlace(const PlaceRequest& request, foundation::Settings& settings);

// "Edison, New Jersey, USA"; its position if it has no name.
std::string PlaceName(const atlas::Place& place);

// "40.52 N, 74.42 W"
std::string PositionText(const atlas::Place& place);

}  // namespace cli
