// The user's persistent settings, and the keys of the default place.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace foundation {

struct Setting {
  std::string_view key, value;
};

// Text values by application, section and key. Section names are case-sensitive.
class Settings {
 public:
  virtual ~Settings() = default;

  // The stored value, including changes by other processes; or the fallback.
  virtual std::string GetSetting(std::string_view application, std::string_view section,
                                 std::string_view key, std::string_view fallback) = 0;
  // Saves all or none: FileAccess if the store cannot be written.
  virtual void SaveSettings(std::string_view application, std::string_view section,
                            std::span<const Setting> settings) = 0;

  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view value) {
    const Setting setting = {key, value};
    SaveSettings(application, section, {&setting, 1});
  }
};

inline constexpr std::string_view kPlaceSection = "settings";
inline constexpr std::string_view kFooterSection = "Setting";  // footer lines of a report

struct PlaceSetting {
  std::string_view key;
  std::string_view fallback;
};

// In the order of the place labels: country, city, latitude, longitude, standard meridian, zone
// offset.
inline constexpr std::array<PlaceSetting, 6> kPlaceSettings = {{
    {"country", "India"},
    {"city", "Delhi"},
    {"lat", "28.40N"},
    {"long", "77.13E"},
    {"zone", "82.30E"},
    {"zonetime", "-5.30"},
}};

}  // namespace foundation
