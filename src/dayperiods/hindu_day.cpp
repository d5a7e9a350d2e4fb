// Assigns a moment to a Hindu day, which runs from sunrise to sunrise.

#include <cmath>

#include "dayperiods/clsBirthDetails.h"
#include "foundation/angle_text.h"
#include "foundation/checked.h"
#include "foundation/date_text.h"
#include "foundation/numbers.h"
#include "foundation/time_text.h"

namespace dayperiods {
namespace {

using foundation::DateTime;
using foundation::Divide;
using foundation::NumberText;
using foundation::SquareRoot;

constexpr double kDegreesPerRadian = 57.29577951;

double SinDegrees(double x) {
  return std::sin(x / kDegreesPerRadian);
}
double CosDegrees(double x) {
  return std::cos(x / kDegreesPerRadian);
}
double TanDegrees(double x) {
  return std::tan(x / kDegreesPerRadian);
}

// Arc sine in degrees. Fails if |x| is 1 or more.
double ArcSinDegrees(double x) {
  return std::atan(Divide(x, SquareRoot(1 - x * x))) * kDegreesPerRadian;
}

// Computes the ascensional difference of an approximate Sun only to fail early if the Sun does not
// cross the horizon.
void RequireHorizonCrossing(double latitude, int day, int month, int year) {
  double y = year;
  double m = month + 1;
  if (m < 4) {
    m += 12;
    y -= 1;
  }
  const double days = std::floor(365.25 * y) + day - 715937.5 + std::floor(30.6 * m) +
                      std::floor(y / 400) - std::floor(y / 100);
  const double t = days / 10000;
  const double obliquity = 23.4445 - t / 281;
  const double anomaly = 360 * foundation::FracPart(27.377785 * t) - 2.813;
  const double centre = (1.9166 - t / 760 + CosDegrees(anomaly) / 25) * SinDegrees(anomaly);
  const double longitude = 0.471 * t + anomaly - 77.747 + centre;
  const double declination = ArcSinDegrees(SinDegrees(obliquity) * SinDegrees(longitude));
  ArcSinDegrees(foundation::Finite(TanDegrees(latitude) * TanDegrees(declination)));
}

// Reads degrees.minutes; negative if the last character is one of `negative`.
double SignedDegrees(std::string_view text, std::string_view negative) {
  double degrees = foundation::LeadingNumber(text);
  foundation::DegMinToDecimal(degrees);
  const bool isNegative = !text.empty() && negative.find(text.back()) != std::string_view::npos;
  return isNegative ? -degrees : degrees;
}

struct RiseAndSet {
  double rise, set;  // decimal hours
};

RiseAndSet TimesOf(clsBirthDetails& details, int day, int month, int year, double latitude,
                   double longitude, double zone) {
  const auto time = [&](std::string_view riseOrSet) {
    return std::get<double>(
        details.GetRISESET(static_cast<std::int16_t>(day), static_cast<std::int16_t>(month),
                           static_cast<std::int16_t>(year), riseOrSet, NumberText(latitude),
                           NumberText(longitude), zone, true, true));
  };
  const double rise = time("R");
  return {rise, time("S")};
}

}  // namespace

std::variant<std::string, double> clsBirthDetails::GetRISESET(
    std::int16_t nDay, std::int16_t nMonth, std::int16_t nYear, std::string_view RiseOrSet,
    std::string_view Latitude, std::string_view Longitude, double ZoneRelativeGMT, bool blnDEC,
    bool blnDecConvdata) {
  const double latitude =
      blnDecConvdata ? foundation::LeadingNumber(Latitude) : SignedDegrees(Latitude, "Ss");
  const double longitude =
      blnDecConvdata ? foundation::LeadingNumber(Longitude) : SignedDegrees(Longitude, "Ww");
  const std::string text =
      SRS(latitude, longitude, ZoneRelativeGMT, RiseOrSet, nYear, nMonth, nDay);
  if (!blnDEC) return text;
  if (!foundation::TryReadTime(text)) return 0.0;
  return foundation::LeadingNumber(foundation::TimeTextHour(text)) +
         foundation::LeadingNumber(foundation::TimeTextMinute(text)) / 60;
}

SunriseRows clsBirthDetails::Sunrise(double& Latitude, double& Longitude, double& ZoneRelativeGMT,
                                     std::int16_t& nDay, std::int16_t& nMonth, std::int16_t& nYear,
                                     std::int16_t& nHour, std::int16_t& nMin, std::int16_t& nSec) {
  RequireHorizonCrossing(Latitude, nDay, nMonth, nYear);

  RiseAndSet sun = TimesOf(*this, nDay, nMonth, nYear, Latitude, Longitude, ZoneRelativeGMT);
  if (sun.rise > sun.set) {
    sun.rise -= 12;
    sun.set += 12;
  }

  const DateTime moment =
      foundation::ReadDateTime(foundation::DateTimeText(nDay, nMonth, nYear, nHour, nMin, nSec));
  const DateTime sunriseMoment = foundation::DateFromParts(nYear, nMonth, nDay) +
                                 foundation::ReadDateTime(foundation::DecimalToTimeText(sun.rise));
  if (moment < sunriseMoment) {
    nDay -= 1;
    const auto before = foundation::FieldsOf(foundation::DateFromParts(nYear, nMonth, nDay));
    // The 12-hour correction is deliberately not applied here.
    sun =
        TimesOf(*this, before.day, before.month, before.year, Latitude, Longitude, ZoneRelativeGMT);
  }

  const double lmtShift = ZoneRelativeGMT - Longitude * 4 / 60;
  return {sun.rise - lmtShift, sun.set - lmtShift, sun.rise, sun.set,
          foundation::DayMonthYear(nDay, nMonth, nYear, ' ')};
}

}  // namespace dayperiods
