// The clock that a place keeps: its own, with daylight saving and history, or its country's.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "clocks/zone_clock.h"
#include "foundation/settings.h"

namespace atlas {

inline constexpr std::string_view kClockSection = "clock";  // of the settings store

// Whose clock the user wants to read at a place. Errors of the store are passed on by everything
// here that takes settings; a save raises FileAccess if the store cannot be written.
enum class ClockChoice { Own, Country };

ClockChoice ReadClockChoice(foundation::Settings& settings);  // Own unless the store says otherwise
void SaveClockChoice(foundation::Settings& settings, ClockChoice choice);

// A place by the texts that labels, settings and session records hold: "India", "Delhi(Delhi)",
// "28.40N", "77.13E", and its country's zone in hours and minutes, minus east of Greenwich:
// "-5.30".
struct PlaceTexts {
  std::string country, city, latitude, longitude, zone;

  friend bool operator==(const PlaceTexts&, const PlaceTexts&) = default;
};

// The IANA zone that the user chose for this place; nothing if none was chosen, or it was chosen
// for another place.
std::optional<std::string> ChosenZone(foundation::Settings& settings, const PlaceTexts& place);

// Replaces the last choice, for whatever place. An empty zone goes back to the place's.
void SaveChosenZone(foundation::Settings& settings, const PlaceTexts& place, std::string_view zone);

struct PlaceClock {
  enum class Source { Chosen, Place, Neighbour, Country };

  clocks::ZoneClock clock;
  std::string zone;  // IANA; empty if the clock keeps the country's one offset
  Source source;
};

// The place's own clock: of the zone that the user chose for it, or else the index's zone for the
// place, or for the nearest place of its country. CountryClock if there is no index, a coordinate
// cannot be read, or the system does not know the zone. Reads the index, in up to 3 ms: keep the
// answer by place and chosen zone when asking often.
PlaceClock ClockOfPlace(foundation::Settings& settings, const PlaceTexts& place);
PlaceClock ClockOfPlace(const PlaceTexts& place, const std::optional<std::string>& chosenZone);

// The country's one clock, without daylight saving: the offset of the zone text. If that cannot be
// read, the offset that the table of countries has; Universal Time for an unknown country.
PlaceClock CountryClock(const PlaceTexts& place);

}  // namespace atlas
