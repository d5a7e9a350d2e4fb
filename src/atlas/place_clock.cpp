#include "atlas/place_clock.h"

#include <array>
#include <chrono>

#include "atlas/getCountryZone.h"
#include "atlas/zone_index.h"
#include "foundation/error.h"
#include "foundation/numbers.h"
#include "foundation/version.h"

namespace atlas {
namespace {

using clocks::ZoneClock;
using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

constexpr std::string_view kChoiceKey = "clock";
constexpr std::string_view kOwn = "own", kCountry = "country";
constexpr std::string_view kZoneKey = "zone";

struct PlaceKey {
  std::string_view key;
  std::string PlaceTexts::*text;
};

// What identifies the place of a chosen zone. The country is left out: several of them have
// two spellings.
constexpr std::array<PlaceKey, 3> kPlaceKeys = {{{"zonecity", &PlaceTexts::city},
                                                 {"zonelat", &PlaceTexts::latitude},
                                                 {"zonelong", &PlaceTexts::longitude}}};

std::string Read(foundation::Settings& settings, std::string_view key) {
  return settings.GetSetting(foundation::kProgramName, kClockSection, key, "");
}

std::optional<PlaceClock> ClockOfZone(const std::string& zone, PlaceClock::Source source) {
  const auto clock = ZoneClock::Named(zone);
  if (!clock) return std::nullopt;
  return PlaceClock{*clock, zone, source};
}

// A number of one or two digits.
std::optional<int> ShortNumber(std::string_view digits) {
  if (digits.size() > 2 || digits.find_first_not_of("0123456789") != std::string_view::npos) {
    return std::nullopt;
  }
  const auto number = foundation::WholeNumber(digits);
  if (!number) return std::nullopt;
  return foundation::RoundToInt32(*number);
}

// East of Greenwich, of "-5.30" for five hours and thirty minutes.
std::optional<seconds> OffsetOf(std::string_view zone) {
  const bool east = zone.starts_with('-');
  if (east || zone.starts_with('+')) zone.remove_prefix(1);
  const std::size_t point = zone.find('.');
  const auto hour = ShortNumber(zone.substr(0, point));
  const auto minute =
      point == std::string_view::npos ? std::optional(0) : ShortNumber(zone.substr(point + 1));
  if (!hour || !minute || *hour > 23 || *minute > 59) return std::nullopt;
  const seconds offset = hours(*hour) + minutes(*minute);
  return east ? offset : -offset;
}

}  // namespace

ClockChoice ReadClockChoice(foundation::Settings& settings) {
  return Read(settings, kChoiceKey) == kCountry ? ClockChoice::Country : ClockChoice::Own;
}

void SaveClockChoice(foundation::Settings& settings, ClockChoice choice) {
  settings.SaveSetting(foundation::kProgramName, kClockSection, kChoiceKey,
                       choice == ClockChoice::Country ? kCountry : kOwn);
}

std::optional<std::string> ChosenZone(foundation::Settings& settings, const PlaceTexts& place) {
  std::string zone = Read(settings, kZoneKey);
  if (zone.empty()) return std::nullopt;
  for (const auto& [key, text] : kPlaceKeys) {
    if (Read(settings, key) != place.*text) return std::nullopt;
  }
  return zone;
}

void SaveChosenZone(foundation::Settings& settings, const PlaceTexts& place,
                    std::string_view zone) {
  std::array<foundation::Setting, kPlaceKeys.size() + 1> saved;
  saved.back() = {kZoneKey, zone};
  for (std::size_t i = 0; i < kPlaceKeys.size(); ++i) {
    saved[i] = {kPlaceKeys[i].key, place.*kPlaceKeys[i].text};
  }
  settings.SaveSettings(foundation::kProgramName, kClockSection, saved);
}

PlaceClock ClockOfPlace(foundation::Settings& settings, const PlaceTexts& place) {
  return ClockOfPlace(place, ChosenZone(settings, place));
}

PlaceClock ClockOfPlace(const PlaceTexts& place, const std::optional<std::string>& chosenZone) {
  using Source = PlaceClock::Source;
  if (chosenZone) {
    if (const auto clock = ClockOfZone(*chosenZone, Source::Chosen)) return *clock;
  }
  const auto found = ZoneOfPlace(place.country, place.city, place.latitude, place.longitude);
  if (found) {
    const Source source = found->exact ? Source::Place : Source::Neighbour;
    if (const auto clock = ClockOfZone(found->name, source)) return *clock;
  }
  return CountryClock(place);
}

PlaceClock CountryClock(const PlaceTexts& place) {
  auto east = OffsetOf(place.zone);
  if (!east) east = OffsetOf(getCountryZone(place.country));
  return {ZoneClock::Fixed(east.value_or(seconds(0))), "", PlaceClock::Source::Country};
}

}  // namespace atlas
