// A session with a place in its current record.
#pragma once

#include "foundation/session.h"

namespace support {

inline foundation::SessionTable SessionAt(const char* latitude, const char* longitude,
                                          const char* zone) {
  foundation::SessionTable session;
  session.Current().LatitudeText = latitude;
  session.Current().LongitudeText = longitude;
  session.Current().ZoneMeridianText = zone;
  return session;
}

inline foundation::SessionTable Delhi() {
  return SessionAt("28.40N", "77.13E", "82.30E");
}

}  // namespace support
