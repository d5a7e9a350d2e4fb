// The six labels in which a screen holds its place, and their ways to settings and session.
#pragma once

#include <array>

#include "forms/control.h"
#include "foundation/session.h"
#include "foundation/settings.h"

namespace screens {

// In the order of the settings' keys: country, city, latitude, longitude, standard meridian, zone
// offset.
using PlaceLabels = std::array<forms::Control*, foundation::kPlaceSettings.size()>;

// Of a form that has the labels under their usual names.
template <typename Form>
PlaceLabels PlaceLabelsOf(Form& form) {
  return {&form.lblCountry, &form.lblCity, &form.lblLat,
          &form.lblLong,    &form.lblZone, &form.lblZoneTime};
}

// Shows the default place; a setting that cannot be read leaves its label.
void ShowDefaultPlace(foundation::Settings& settings, const PlaceLabels& labels);

// Makes the labels' place the default. FileAccess where it cannot be saved.
void SaveDefaultPlace(foundation::Settings& settings, const PlaceLabels& labels);

// Makes the labels' place that of a record.
void CopyPlace(const PlaceLabels& labels, foundation::SessionRecord& record);

}  // namespace screens
