#include "atlas/place_texts.h"

#include <cstdlib>
#include <string>

#include "atlas/getCountryZone.h"
#include "foundation/angle_text.h"
#include "foundation/error.h"
#include "foundation/numbers.h"
#include "foundation/time_text.h"
#include "foundation/version.h"

namespace atlas {
namespace {

constexpr int kMinutes = 60;  // in a degree

std::string AngleText(double degrees, char positive, char negative) {
  const std::int32_t minutes = foundation::RoundToInt32(degrees * kMinutes);
  return foundation::NumberText(std::abs(minutes) / kMinutes) + "." +
         foundation::PadDigits(std::abs(minutes) % kMinutes, 2) +
         (minutes < 0 ? negative : positive);
}

// Where the state begins in "Chita(Zabaykalskiy (Transbaikal) Kray)": at the parenthesis that the
// last one closes. The end of the text if it has no state.
std::size_t BeginOfState(std::string_view city) {
  int open = 0;
  for (std::size_t at = city.size(); city.ends_with(')') && at-- > 1;) {
    if (city[at] == ')') ++open;
    if (city[at] == '(' && --open == 0) return at;
  }
  return city.size();
}

}  // namespace

std::optional<std::int32_t> ArcMinutes(std::string_view text, char positive, char negative) try {
  if (!text.ends_with(positive) && !text.ends_with(negative)) return std::nullopt;
  auto number = foundation::WholeNumber(text.substr(0, text.size() - 1));
  if (!number || *number < 0) return std::nullopt;
  const auto minutes = foundation::RoundToInt32(foundation::DegMinToDecimal(*number) * kMinutes);
  return text.ends_with(negative) ? -minutes : minutes;
} catch (const foundation::Error&) {  // a number too large
  return std::nullopt;
}

PlaceTexts DefaultPlace(foundation::Settings& settings) {
  const auto read = [&](std::size_t i) {
    const auto& [key, fallback] = foundation::kPlaceSettings[i];
    return settings.GetSetting(foundation::kProgramName, foundation::kPlaceSection, key, fallback);
  };
  return {read(0), read(1), read(2), read(3), read(5)};  // without the meridian
}

std::optional<Place> PlaceOfTexts(const PlaceTexts& texts) {
  const auto latitude = ArcMinutes(texts.latitude, 'N', 'S');
  const auto longitude = ArcMinutes(texts.longitude, 'E', 'W');
  if (!latitude || !longitude || std::abs(*latitude) > 90 * kMinutes ||
      std::abs(*longitude) > 180 * kMinutes) {
    return std::nullopt;
  }
  const std::size_t end = BeginOfState(texts.city);
  Place place = {.name = texts.city.substr(0, end), .state = {}, .country = texts.country};
  if (end < texts.city.size()) {
    place.state = texts.city.substr(end + 1, texts.city.size() - end - 2);
  }
  place.latitude = static_cast<double>(*latitude) / kMinutes;
  place.longitude = static_cast<double>(*longitude) / kMinutes;
  return place;
}

PlaceTexts TextsOfPlace(const Place& place) {
  const std::string state = place.state.empty() ? "" : "(" + place.state + ")";
  return {place.country, place.name + state, AngleText(place.latitude, 'N', 'S'),
          AngleText(place.longitude, 'E', 'W'), getCountryZone(place.country)};
}

}  // namespace atlas
