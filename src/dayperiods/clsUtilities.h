// clsUtilities: the three inauspicious periods of a day at the place of the session record.
#pragma once

#include <string>

#include "foundation/session.h"

namespace dayperiods {

// The eight equal parts of one day's light.
struct DaylightSegments {
  double sunrise = 0;  // decimal hours by the zone's clock
  double segment = 0;  // hours in one part
  int weekday = 0;     // of the calendar date, 1 = Sunday, also before sunrise

  // Where part `number` (1 to 8) begins, and for 9 where the last one ends: a running sum, one
  // rounding a step.
  double Boundary(int number) const;
};

// The periods of one day; make one, call a method, read the fields.
class clsUtilities {
 public:
  explicit clsUtilities(const foundation::SessionTable& session) : session_(session) {}

  std::string DurvelaStart;  // "hh:mm:ss", as the other five
  std::string DurvelaEnd;
  std::string GulikStart;
  std::string GulikEnd;
  std::string YumStart;
  std::string YumEnd;

  // Both take the moment by its clock. The sun is that of the Hindu day which holds the moment, the
  // weekday that of the calendar date.
  // TypeMismatch for a date or time that does not exist; the errors of GenHoro and Sunrise.
  void CalcDurvela(double nDay, double nMonth, double nYear, double nHour, double nMin,
                   double nSec);
  void CalcGulikYum(double nDay, double nMonth, double nYear, double nHour, double nMin,
                    double nSec);

  // The road that both share.
  DaylightSegments SegmentsOf(double nDay, double nMonth, double nYear, double nHour, double nMin,
                              double nSec) const;

 private:
  const foundation::SessionTable& session_;
};

}  // namespace dayperiods
