// clsPP: from a moment and a place, given as texts, to what the sky shows there.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/numbers.h"

namespace engine {

// A place text split at its letter: "28N40".
struct LatLongParts {
  double degrees = 0;
  double minutes = 0;
  std::string hemisphere;  // the last character that is no digit; empty if there is none
};

// Made afresh by each caller; a call of GenHoro overwrites everything.
class clsPP {
 public:
  double ppStdLongitude = 0;   // the zone's meridian, decimal degrees, east positive
  double ppLatitude = 0;       // decimal degrees, north positive
  double ppLongitude = 0;      // decimal degrees, east positive
  std::string ppLatitudeText;  // the place as it was given
  std::string ppLongitudeText;
  std::string ppZoneText;
  std::int16_t ppDay = 0;  // the moment as it was given, rounded half to even
  std::int16_t ppMonth = 0;
  std::int32_t ppYear = 0;
  std::int16_t ppHour = 0;
  std::int16_t ppMin = 0;
  double ppSec = 0;              // not rounded
  double ppZoneHours = 0;        // ppZoneDegrees / 15
  double ppZoneDegrees = 0;      // as ppStdLongitude
  double WarTimeCorrection = 0;  // hours

  // Decodes the place ("28.40N", "77.13E", standard meridian "82.30E") and the civil moment at
  // its clock. nAyan chooses the ayanamsa mode, blnRahuKetu the corrected node; WarTimeCorrection
  // is in hours. A text that begins with no number counts as 0. Overflow where a field of the
  // moment does not fit its 16 or 32 bits.
  //
  // A longitude of whole degrees ("77.00E") loses its point on the way and is read as so many
  // minutes, east; a latitude of whole degrees is not. That is how places are read here, and it
  // stays: the sunrise of every such place is reckoned from it.
  void GenHoro(double day, double month, double year, double hour, double minute, double second,
               std::string_view Longitude, std::string_view Lattitude, std::string_view zone,
               std::int32_t nAyan, foundation::Boolean16 blnRahuKetu, double warTimeCorrection);

  // Splits a text at characters that are no digits; the last of them wins. The digits behind it
  // are the minutes, a single one being the tens: "28N4" is 28 degrees 40 minutes.
  static LatLongParts SepLatLong(std::string_view text);

 private:
  void DecodeZone(std::string_view zone);

  std::int16_t ayanMode_ = 0;
  foundation::Boolean16 nodeModeA_ = foundation::kFalse16;
  foundation::Boolean16 nodeModeB_ = foundation::kFalse16;
};

}  // namespace engine
