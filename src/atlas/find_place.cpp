#include "atlas/find_place.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "atlas/city_file.h"
#include "atlas/index_file.h"
#include "atlas/name_key.h"
#include "foundation/resume.h"
#include "foundation/text.h"

namespace atlas {
namespace {

constexpr double kMinutesPerDegree = 60;
constexpr std::string_view kBetweenStates = " - ";

struct Match {
  Place place;
  double population;
};

class Search {
 public:
  explicit Search(const PlaceQuery& query)
      : names_{NameKey(query.name), NameKey(query.name, Umlauts::Spelled)},
        state_(NameKey(query.state)),
        country_(NameKey(query.country)),
        code_(foundation::UpperAscii(query.country)) {}

  std::vector<Match> Run() {
    if (names_[0].empty()) return {};
    const std::vector<std::string> countries = Countries();
    const auto named = std::ranges::find_if(
        countries, [&](const auto& name) { return NameKey(name) == country_; });
    if (named != countries.end()) {
      code_.clear();
      SearchCountry(*named);
    } else {
      for (const std::string& country : countries) SearchCountry(country);
    }
    std::ranges::stable_sort(matches_, std::ranges::greater(), &Match::population);
    return std::move(matches_);
  }

 private:
  void SearchCountry(const std::string& country) {
    foundation::Resume([&] {
      IndexFile index(country);
      const std::size_t place = index.Column("place"), state = index.Column("state");
      const std::size_t latitude = index.Column("latitude"), longitude = index.Column("longitude");
      const std::size_t iso = index.Column("iso"), zone = index.Column("zone");
      const std::size_t population = index.Column("population");
      while (index.Next()) {
        if (!IsName(index.Text(place)) || !IsState(index.Text(state)) ||
            (!code_.empty() && index.Text(iso) != code_)) {
          continue;
        }
        matches_.push_back(
            {{std::string(index.Text(place)), std::string(index.Text(state)), country,
              index.Number(latitude) / kMinutesPerDegree,
              index.Number(longitude) / kMinutesPerDegree, std::string(index.Text(zone))},
             index.Number(population)});
      }
    });
  }

  // Most names differ in their first letter, which is cheaper to compare than a key.
  bool MayBeName(std::string_view name) const {
    for (const char c : name) {
      if (static_cast<unsigned char>(c) >= 0x80) return true;
      const char small = c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
      if (small == names_[0].front() || small == names_[1].front()) return true;
      if ((small >= 'a' && small <= 'z') || (small >= '0' && small <= '9')) return false;
    }
    return false;
  }

  bool IsName(std::string_view name) const {
    if (!MayBeName(name)) return false;
    const std::string key = NameKey(name);
    return key == names_[0] || key == names_[1];
  }

  bool IsState(std::string_view state) const {
    if (state_.empty() || NameKey(state) == state_) return true;
    for (std::size_t end; (end = state.find(kBetweenStates)) != state.npos;
         state.remove_prefix(end + kBetweenStates.size())) {
      if (NameKey(state.substr(0, end)) == state_) return true;
    }
    return NameKey(state) == state_;
  }

  std::string names_[2], state_, country_, code_;
  std::vector<Match> matches_;
};

}  // namespace

std::vector<Place> PlacesNamed(const PlaceQuery& query) {
  std::vector<Place> places;
  for (Match& match : Search(query).Run()) places.push_back(std::move(match.place));
  return places;
}

}  // namespace atlas
