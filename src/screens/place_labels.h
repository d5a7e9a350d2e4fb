// The six labels in which a screen keeps its place, and their exchange with settings and session.
#pragma once

#include <array>

#include "atlas/place_clock.h"
#include "forms/control.h"
#include "foundation/session.h"
#include "foundation/settings.h"

namespace screens {

// In the order of the settings' keys: country, city, latitude, longitude, standard meridian, zone
// offset.
using PlaceLabels = std::array<forms::Control*, foundation::kPlaceSettings.size()>;

// The labels of a form that has them under their usual names.
template <typename Form>
PlaceLabels PlaceLabelsOf(Form& form) {
  return {&form.lblCountry, &form.lblCity, &form.lblLat,
          &form.lblLong,    &form.lblZone, &form.lblZoneTime};
}

// Shows the default place; a setting that cannot be read leaves its label unchanged.
void ShowDefaultPlace(foundation::Settings& settings, const PlaceLabels& labels);

// Saves the labels' place as the default. FileAccess if it cannot be saved.
void SaveDefaultPlace(foundation::Settings& settings, const PlaceLabels& labels);

// The labels' place for the atlas, which knows its clock.
atlas::PlaceTexts TextsOf(const PlaceLabels& labels);

// Copies the labels' place to a record.
void CopyPlace(const PlaceLabels& labels, foundation::SessionRecord& record);

}  // namespace screens
