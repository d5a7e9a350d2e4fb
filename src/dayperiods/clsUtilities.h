// clsUtilities: the three inauspicious periods of a day at the place of the session record.
#pragma once

#include <string>

#include "foundation/session.h"

namespace dayperiods {

// The eight equal parts of a day's light.
struct DaylightSegments {
  double sunrise = 0;  // decimal hours by the zone's clock
  double segment = 0;  // hours in one part
  int weekday = 0;     // of the calendar date, 1 = Sunday, even before sunrise

  // Start of part `number`, 1 to 8; 9 gives the end of the last. Adds segment by segment, on which
  // the rounding of a boundary halfway between two seconds depends.
  double Boundary(int number) const;
};

// The periods of one day: call a method, then read the fields.
class clsUtilities {
 public:
  explicit clsUtilities(const foundation::SessionTable& session) : session_(session) {}

  std::string DurvelaStart;  // "hh:mm:ss", as the other five
  std::string DurvelaEnd;
  std::string GulikStart;
  std::string GulikEnd;
  std::string YumStart;
  std::string YumEnd;

  // Both take the moment in clock time. The sun is that of the Hindu day that contains the moment,
  // the weekday that of the calendar date. TypeMismatch for a date or time that does not exist;
  // errors of GenHoro and Sunrise.
  void CalcDurvela(double nDay, double nMonth, double nYear, double nHour, double nMin,
                   double nSec);
  void CalcGulikYum(double nDay, double nMonth, double nYear, double nHour, double nMin,
                    double nSec);

  // Shared by both.
  DaylightSegments SegmentsOf(double nDay, double nMonth, double nYear, double nHour, double nMin,
                              double nSec) const;

 private:
  const foundation::SessionTable& session_;
};

}  // namespace dayperiods
