// Sunrise and sunset of the Hindu day that holds a moment.
#pragma once

#include "dayperiods/clsBirthDetails.h"
#include "engine/clsPP.h"
#include "foundation/calendar.h"

namespace dayperiods {

// By the place that a chart has decoded. The errors of Sunrise.
SunriseRows SunriseAt(const engine::clsPP& place, const foundation::DateTimeFields& moment);

}  // namespace dayperiods
