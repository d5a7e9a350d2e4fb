// The user's settings, kept between runs, and the keys of the default place in them.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace foundation {

// Text values under an application, a section and a key; sections that differ in case differ.
class Settings {
 public:
  virtual ~Settings() = default;

  // The value as the store holds it now, other processes' changes included; or the default.
  virtual std::string GetSetting(std::string_view application, std::string_view section,
                                 std::string_view key, std::string_view fallback) = 0;
  virtual void SaveSetting(std::string_view application, std::string_view section,
                           std::string_view key, std::string_view value) = 0;
};

inline constexpr std::string_view kPlaceSection = "settings";
inline constexpr std::string_view kFooterSection = "Setting";  // lines of a report's foot

struct PlaceSetting {
  std::string_view key;
  std::string_view fallback;
};

// In the order in which the place labels take them: country, city, latitude, longitude, standard
// meridian, zone offset.
inline constexpr std::array<PlaceSetting, 6> kPlaceSettings = {{
    {"country", "India"},
    {"city", "Delhi"},
    {"lat", "28.40N"},
    {"long", "77.13E"},
    {"zone", "82.30E"},
    {"zonetime", "-5.30"},
}};

}  // namespace foundation
