// The chart of a moment with the session's default ayanamsa and node.
#pragma once

#include <string_view>

#include "engine/clsPP.h"
#include "foundation/calendar.h"
#include "foundation/session.h"

namespace almanac {

// Texts as GenHoro reads them; the correction is in hours.
struct ChartPlace {
  std::string_view longitude, latitude, zone;
  double warTimeCorrection = 0;
};

// Uses the session's defaults even if its current record has another ayanamsa or node.
inline engine::clsPP ChartOf(const foundation::DateTimeFields& at, const ChartPlace& place,
                             const foundation::SessionTable& session) {
  engine::clsPP chart;
  chart.GenHoro(at.day, at.month, at.year, at.hour, at.minute, at.second, place.longitude,
                place.latitude, place.zone, session.DefaultAyanamsa, session.DefaultNodeFlag,
                place.warTimeCorrection);
  return chart;
}

}  // namespace almanac
