#include "atlas/zone_index.h"

#include <cmath>
#include <limits>
#include <numbers>

#include "atlas/index_file.h"
#include "foundation/angle_text.h"
#include "foundation/error.h"
#include "foundation/numbers.h"

namespace atlas {
namespace {

// In whole minutes of arc, north and east positive.
struct Position {
  double latitude, longitude;
  friend bool operator==(const Position&, const Position&) = default;
};

// Of "28.40N", 28 degrees 40 minutes.
double Minutes(std::string_view text, char positive, char negative) {
  const bool signedByLetter = text.ends_with(positive) || text.ends_with(negative);
  auto number = foundation::WholeNumber(text.substr(0, text.size() - (signedByLetter ? 1 : 0)));
  if (!signedByLetter || !number || *number < 0) {
    throw foundation::Error(foundation::ErrorKind::TypeMismatch);
  }
  const double minutes = foundation::RoundToInt32(foundation::DegMinToDecimal(*number) * 60);
  return text.ends_with(negative) ? -minutes : minutes;
}

// Grows with the distance over the globe: the square of half the chord, on a globe of radius 1.
double Farness(const Position& a, const Position& b) {
  constexpr double kMinute = std::numbers::pi / 180 / 60;
  const double north = std::sin((a.latitude - b.latitude) * kMinute / 2);
  const double east = std::sin((a.longitude - b.longitude) * kMinute / 2);
  return north * north +
         std::cos(a.latitude * kMinute) * std::cos(b.latitude * kMinute) * east * east;
}

std::optional<PlaceZone> Search(IndexFile& index, std::string_view city, const Position& wanted) {
  const std::size_t place = index.Column("place"), state = index.Column("state");
  const std::size_t latitude = index.Column("latitude"), longitude = index.Column("longitude");
  const std::size_t zone = index.Column("zone");
  std::optional<PlaceZone> nearest;
  double least = std::numeric_limits<double>::infinity();
  while (index.Next()) {
    const Position here = {index.Number(latitude), index.Number(longitude)};
    if (here == wanted &&
        city == std::string(index.Text(place)) + "(" + std::string(index.Text(state)) + ")") {
      return PlaceZone{std::string(index.Text(zone)), true};
    }
    if (const double farness = Farness(here, wanted); farness < least) {
      least = farness;
      nearest = {std::string(index.Text(zone)), false};
    }
  }
  return nearest;
}

}  // namespace

std::optional<PlaceZone> ZoneOfPlace(std::string_view country, std::string_view city,
                                     std::string_view latitude, std::string_view longitude) {
  try {
    const Position wanted = {Minutes(latitude, 'N', 'S'), Minutes(longitude, 'E', 'W')};
    IndexFile index(country);
    return Search(index, city, wanted);
  } catch (const foundation::Error&) {
    return std::nullopt;
  }
}

}  // namespace atlas
