// The table of session records in which screens and calculators meet.
#pragma once

#include <cstdint>
#include <string>

#include "foundation/bounded_array.h"
#include "foundation/calendar.h"
#include "foundation/numbers.h"

namespace foundation {

// The moment and the place of one calculation. The moment is 0 until it is first filled.
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
  std::int32_t AyanamsaChoice = 0;
  Boolean16 RahuKetuFlag = kFalse16;
  std::string CityName;
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

// Fills the moment of the current record from `now` if its Day is still 0; else leaves it alone.
void InitSessionRecord(SessionTable& session, DateTime now);

}  // namespace foundation
