// Places as numbers and as the texts of labels, settings and session records.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "atlas/place.h"
#include "atlas/place_clock.h"

namespace atlas {

// Minutes of arc of "28.40N", 28 degrees 40 minutes; negative at the other letter. Unlike in a
// calculation, "77.00E" is 77 degrees. Nothing if the text is no such angle.
std::optional<std::int32_t> ArcMinutes(std::string_view text, char positive, char negative);

// The default place of the settings. Errors of the store.
PlaceTexts DefaultPlace(foundation::Settings& settings);

// "Delhi(Delhi)" is a name and a state. The zone is left empty. Nothing if a coordinate cannot be
// read, or is beyond 90 or 180 degrees.
std::optional<Place> PlaceOfTexts(const PlaceTexts& texts);

// To the minute of arc, and with its country's zone from the built-in table.
PlaceTexts TextsOfPlace(const Place& place);

}  // namespace atlas
