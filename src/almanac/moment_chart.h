// The chart of a moment with the almanac's own ayanamsa and node.
#pragma once

#include <string_view>

#include "engine/clsPP.h"
#include "foundation/calendar.h"
#include "foundation/session.h"

namespace almanac {

// Texts as GenHoro reads them; the correction in hours.
struct ChartPlace {
  std::string_view longitude, latitude, zone;
  double warTimeCorrection = 0;
};

// Reckoned by the session's default ayanamsa and node, whatever its record has.
inline engine::clsPP ChartOf(const foundation::DateTimeFields& at, const ChartPlace& place,
                             const foundation::SessionTable& session) {
  engine::clsPP chart;
  chart.GenHoro(at.day, at.month, at.year, at.hour, at.minute, at.second, place.longitude,
                place.latitude, place.zone, session.DefaultAyanamsa, session.DefaultNodeFlag,
                place.warTimeCorrection);
  return chart;
}

}  // namespace almanac
