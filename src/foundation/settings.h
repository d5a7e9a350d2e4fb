// The user's settings, kept between runs, and the keys of the default place in them.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace foundation {

struct Setting {
  std::string_view key, value;
};

// Text values under an application, a section and a key; sections that differ in case differ.
class Settings {
 public:
  virtual ~Settings() = default;

  // The value as the store holds it now, other processes' changes included; or the default.
  virtual std::string GetSetting(std::string_view application, std::string_view section,
                                 std::string_view key, std::string_view fallback) = 0;
  // All of them, or none: FileAccess where the store cannot be written.
  virtual void SaveSettings(std::string_view application, std::string_view section,
                            std::span<const Setting> settings) = 0;

  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view value) {
    const Setting setting = {key, value};
    SaveSettings(application, section, {&setting, 1});
  }
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
