// The chart of a moment at the place of a session record.
#pragma once

#include "engine/clsPP.h"
#include "foundation/calendar.h"
#include "foundation/session.h"

namespace engine {

// GenHoro with the record's place, ayanamsa, node and war-time correction. Errors as for GenHoro.
inline void GenRecordHoro(clsPP& chart, const foundation::SessionRecord& record, double day,
                          double month, double year, double hour, double minute, double second) {
  chart.GenHoro(day, month, year, hour, minute, second, record.LongitudeText, record.LatitudeText,
                record.ZoneMeridianText, record.AyanamsaChoice, record.RahuKetuFlag,
                record.WarTimeCorrection);
}

inline void GenRecordHoro(clsPP& chart, const foundation::SessionRecord& record,
                          const foundation::DateTimeFields& at) {
  GenRecordHoro(chart, record, at.day, at.month, at.year, at.hour, at.minute, at.second);
}

}  // namespace engine
