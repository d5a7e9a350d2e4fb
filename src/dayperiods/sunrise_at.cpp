#include "dayperiods/sunrise_at.h"

#include "foundation/numbers.h"

namespace dayperiods {

using foundation::RoundToInt16;

SunriseRows SunriseAt(const engine::clsPP& place, const foundation::DateTimeFields& moment) {
  double latitude = place.ppLatitude, longitude = place.ppLongitude, zone = place.ppZoneHours;
  std::int16_t day = RoundToInt16(moment.day), month = RoundToInt16(moment.month),
               year = RoundToInt16(moment.year), hour = RoundToInt16(moment.hour),
               minute = RoundToInt16(moment.minute), second = RoundToInt16(moment.second);
  return clsBirthDetails().Sunrise(latitude, longitude, zone, day, month, year, hour, minute,
                                   second);
}

}  // namespace dayperiods
