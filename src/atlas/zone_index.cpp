#include "atlas/zone_index.h"

#include <cmath>
#include <limits>
#include <numbers>

#include "atlas/index_file.h"
#include "atlas/place_texts.h"
#include "foundation/error.h"

namespace atlas {
namespace {

// In whole minutes of arc, north and east positive.
struct Position {
  double latitude, longitude;
  friend bool operator==(const Position&, const Position&) = default;
};

// Grows with the distance over the globe: the square of half the chord, on a globe of radius 1.
double Farness(const Position& a, const Position& b) {
  constexpr double kMinute = std::numbers::pi / 180 / 60;
  const double north = std::sin((a.latitude - b.latitude) * kMinute / 2);
  const double east = std::sin((a.longitude - b.longitude) * kMinute / 2);
  return north * north +
         std::cos(a.latitude * kMinute) * std::cos(b.latitude * kMinute) * east * east;
}

// Sources put the middle of a city a little apart.
constexpr double kSamePlace = 5;  // minutes of arc

// "Delhi(Delhi)", or "Delhi" as the default place has it.
bool IsNamed(std::string_view city, std::string_view name, std::string_view state) {
  if (!city.starts_with(name)) return false;
  city.remove_prefix(name.size());
  return city.empty() || (city.size() == state.size() + 2 && city.front() == '(' &&
                          city.substr(1, state.size()) == state && city.back() == ')');
}

std::optional<PlaceZone> Search(IndexFile& index, std::string_view city, const Position& wanted) {
  const std::size_t place = index.Column("place"), state = index.Column("state");
  const std::size_t latitude = index.Column("latitude"), longitude = index.Column("longitude");
  const std::size_t zone = index.Column("zone");
  const double around = Farness({0, 0}, {kSamePlace, 0});
  std::optional<PlaceZone> nearest;
  double least = std::numeric_limits<double>::infinity(), leastNamed = around;
  while (index.Next()) {
    const Position here = {index.Number(latitude), index.Number(longitude)};
    const double farness = Farness(here, wanted);
    if (farness <= leastNamed && IsNamed(city, index.Text(place), index.Text(state))) {
      nearest = {std::string(index.Text(zone)), true};
      if (here == wanted) return nearest;
      leastNamed = farness;
      least = -1;  // no neighbour counts any more
    } else if (farness < least) {
      least = farness;
      nearest = {std::string(index.Text(zone)), false};
    }
  }
  return nearest;
}

}  // namespace

std::optional<PlaceZone> ZoneOfPlace(std::string_view country, std::string_view city,
                                     std::string_view latitude, std::string_view longitude) {
  const auto north = ArcMinutes(latitude, 'N', 'S'), east = ArcMinutes(longitude, 'E', 'W');
  if (!north || !east) return std::nullopt;
  try {
    IndexFile index(country);
    return Search(index, city, {static_cast<double>(*north), static_cast<double>(*east)});
  } catch (const foundation::Error&) {
    return std::nullopt;
  }
}

}  // namespace atlas
