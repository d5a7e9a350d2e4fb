#include "cli/chosen_place.h"

#include <cmath>
#include <utility>
#include <vector>

#include "atlas/city_file.h"
#include "atlas/place_clock.h"
#include "atlas/place_texts.h"
#include "cli/failure.h"
#include "foundation/folders.h"
#include "foundation/numbers.h"

namespace cli {
namespace {

using atlas::PlaceClock;

// With the clock of the country, or the place's: a zone that the user chose for the place, as in
// the windows, or else the atlas's.
ChosenPlace WithClock(atlas::Place place, const atlas::PlaceTexts& texts, bool ofCountry,
                      foundation::Settings& settings) {
  const PlaceClock own = atlas::ClockOfPlace(settings, texts);
  place.zone = own.zone;
  if (ofCountry) return {std::move(place), atlas::CountryClock(texts).clock, true, ""};
  ChosenPlace chosen = {std::move(place), own.clock, own.source == PlaceClock::Source::Country, ""};
  const bool isNeighbours = own.source == PlaceClock::Source::Neighbour;
  if (chosen.countryClock || isNeighbours) {
    chosen.note =
        "no zone is known for " + PlaceName(chosen.place) + "; " +
        (isNeighbours ? "the nearest place's, " + own.zone + "," : "its country's clock") +
        " is used";
  }
  return chosen;
}

ChosenPlace Default(bool ofCountry, foundation::Settings& settings) {
  const atlas::PlaceTexts texts = atlas::DefaultPlace(settings);
  auto place = atlas::PlaceOfTexts(texts);
  if (!place) {
    throw Failure(Status::Impossible, "the default place has no position that can be read: " +
                                          texts.latitude + " " + texts.longitude);
  }
  return WithClock(std::move(*place), texts, ofCountry, settings);
}

std::string QueryText(const atlas::PlaceQuery& query) {
  std::string text = query.name;
  if (!query.state.empty()) text += ", " + query.state;
  if (!query.country.empty()) text += ", " + query.country;
  return text;
}

ChosenPlace Named(const atlas::PlaceQuery& query, bool ofCountry, foundation::Settings& settings) {
  const std::vector<atlas::Place> places = atlas::PlacesNamed(query);
  if (places.empty()) {
    const std::string folder = foundation::AtlasFolder().string();
    throw Failure(Status::Impossible, atlas::Countries().empty()
                                          ? "the atlas is missing: " + folder
                                          : "the atlas has no place \"" + QueryText(query) + "\"");
  }
  const atlas::Place& first = places.front();
  ChosenPlace chosen = WithClock(first, atlas::TextsOfPlace(first), ofCountry, settings);
  if (places.size() > 1) {
    chosen.note = foundation::GroupedText(static_cast<std::int64_t>(places.size())) +
                  " places are called " + query.name + "; this is the most populous, " +
                  PlaceName(first);
  }
  return chosen;
}

ChosenPlace At(const Coordinates& at) {
  return {{.name = at.name,
           .state = {},
           .country = {},
           .latitude = at.latitude,
           .longitude = at.longitude,
           .zone = at.zone},
          *clocks::ZoneClock::Named(at.zone)};
}

// "40.52 N"
std::string AngleText(double degrees, char positive, char negative) {
  return foundation::FixedText(std::abs(degrees), 2) + " " + (degrees < 0 ? negative : positive);
}

}  // namespace

ChosenPlace FindPlace(const PlaceRequest& request, foundation::Settings& settings) {
  if (const auto* query = std::get_if<atlas::PlaceQuery>(&request.place)) {
    return Named(*query, request.countryClock, settings);
  }
  if (const auto* at = std::get_if<Coordinates>(&request.place)) return At(*at);
  return Default(request.countryClock, settings);
}

std::string PlaceName(const atlas::Place& place) {
  std::string name = place.name, before = place.name;
  for (const std::string& part : {place.state, place.country}) {
    if (part.empty() || part == before) continue;  // "Singapore"
    name += (name.empty() ? "" : ", ") + part;
    before = part;
  }
  return name.empty() ? PositionText(place) : name;
}

std::string PositionText(const atlas::Place& place) {
  return AngleText(place.latitude, 'N', 'S') + ", " + AngleText(place.longitude, 'E', 'W');
}

}  // namespace cli
