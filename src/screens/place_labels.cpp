#include "screens/place_labels.h"

#include "foundation/resume.h"
#include "foundation/version.h"

namespace screens {

void ShowDefaultPlace(foundation::Settings& settings, const PlaceLabels& labels) {
  for (std::size_t i = 0; i < labels.size(); ++i) {
    const auto& [key, fallback] = foundation::kPlaceSettings[i];
    foundation::Resume([&, key = key, fallback = fallback] {
      labels[i]->caption =
          settings.GetSetting(foundation::kProgramName, foundation::kPlaceSection, key, fallback);
    });
  }
}

void SaveDefaultPlace(foundation::Settings& settings, const PlaceLabels& labels) {
  std::array<foundation::Setting, foundation::kPlaceSettings.size()> place;
  for (std::size_t i = 0; i < labels.size(); ++i) {
    place[i] = {foundation::kPlaceSettings[i].key, labels[i]->caption};
  }
  settings.SaveSettings(foundation::kProgramName, foundation::kPlaceSection, place);
}

atlas::PlaceTexts TextsOf(const PlaceLabels& labels) {
  const auto& [country, city, latitude, longitude, zone, zoneTime] = labels;
  return {country->caption, city->caption, latitude->caption, longitude->caption,
          zoneTime->caption};
}

void CopyPlace(const PlaceLabels& labels, foundation::SessionRecord& record) {
  const auto& [country, city, latitude, longitude, zone, zoneTime] = labels;
  record.LatitudeText = latitude->caption;
  record.LongitudeText = longitude->caption;
  record.ZoneMeridianText = zone->caption;
  record.ZoneTimeText = zoneTime->caption;
  record.CityName = city->caption;
  record.CountryName = country->caption;
}

}  // namespace screens
