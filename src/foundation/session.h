// Session records: how screens pass a moment and place to calculators.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "foundation/bounded_array.h"
#include "foundation/calendar.h"
#include "foundation/numbers.h"

namespace foundation {

// The moment and place of a calculation. The moment is 0 until first set. Reserved fields are
// unused; they preserve the layout of the record.
struct SessionRecord {
  std::int32_t RecordTag = 0;
  std::string PersonName;  // for a report's header
  Boolean16 RecordFlag = kFalse16;
  double Day = 0;
  double Month = 0;  // 1 to 12
  double Year = 0;
  double Hour = 0;
  double Minute = 0;
  double Second = 0;
  std::string LatitudeText;      // degrees.minutes and hemisphere, "28.40N"
  std::string LongitudeText;     // "77.13E"
  std::string ZoneMeridianText;  // the zone's standard meridian, "82.30E"
  std::string ZoneTimeText;      // hours.minutes, minus east of Greenwich, "-5.30"
  double WarTimeCorrection = 0;  // hours
  std::array<std::int32_t, 3> Reserved = {};
  std::int32_t AyanamsaChoice = 0;    // a mode of the engine, 0 Lahiri
  Boolean16 RahuKetuFlag = kFalse16;  // use the corrected node instead of the mean one
  std::string CityName;
  std::string ReservedText;
  std::string CountryName;
};

class SessionTable {
 public:
  // Records 0 to 1000; Subscript outside.
  BoundedArray<SessionRecord, 0, 1000> Records;

  std::int16_t CurrentRecord = 0;
  std::int32_t CurrentLanguage = 0;
  std::int32_t DefaultAyanamsa = 0;
  Boolean16 DefaultNodeFlag = kFalse16;

  SessionRecord& Current() { return Records[CurrentRecord]; }
  const SessionRecord& Current() const { return Records[CurrentRecord]; }
};

// Fills the current record if its Day is still 0: the moment from `now`, no name, both flags true,
// ayanamsa 0. Subscript if there is no such record.
void InitSessionRecord(SessionTable& session, DateTime now);

}  // namespace foundation
