// Sunrise and sunset of the Hindu day that contains a moment.
#pragma once

#include "dayperiods/clsBirthDetails.h"
#include "engine/clsPP.h"
#include "foundation/calendar.h"

namespace dayperiods {

// Uses the decoded place of a chart. Errors of Sunrise.
SunriseRows SunriseAt(const engine::clsPP& place, const foundation::DateTimeFields& moment);

}  // namespace dayperiods
