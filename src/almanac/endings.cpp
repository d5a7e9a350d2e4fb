// When tithi, nakshatra, yoga and karana end.

#include <functional>

#include "almanac/moment_chart.h"
#include "dayperiods/clsBirthDetails.h"
#include "engine/zodiac.h"
#include "foundation/date_text.h"

namespace dayperiods {
namespace {

using foundation::DateTime;

// Number of an element at given longitudes of Moon and Sun.
using Element = std::function<std::int16_t(double moon, double sun)>;

// "18/November/1990 6:11:25", with the user's month name.
std::string MomentText(const foundation::DateTimeFields& at) {
  return foundation::DayMonthYear(at.day, at.month, at.year, '/') + " " +
         foundation::HourMinuteSecond(at.hour, at.minute, at.second);
}

// Steps forward by hours past the end, back by minutes, then forward by seconds: at most some 150
// charts, instead of one per second of the element.
std::string EndOf(const Element& element, const foundation::DateTimeFields& from,
                  const foundation::SessionTable& session) {
  const DateTime start = foundation::ReadDateTime(MomentText(from));
  const foundation::SessionRecord& record = session.Current();
  const almanac::ChartPlace place = {record.LongitudeText, record.LatitudeText,
                                     record.ZoneMeridianText, record.WarTimeCorrection};
  const auto fieldsAfter = [&](int seconds) {
    return foundation::FieldsOf(start + seconds / 86400.0);
  };
  const auto numberAfter = [&](int seconds) {
    const engine::clsPP chart = almanac::ChartOf(fieldsAfter(seconds), place, session);
    return element(chart.pp_Moon, chart.pp_Sun);
  };

  const std::int16_t number = numberAfter(0);
  int seconds = 0;
  do seconds += 3600;
  while (numberAfter(seconds) == number);
  do seconds -= 60;
  while (numberAfter(seconds) != number);
  do seconds += 1;
  while (numberAfter(seconds) == number);
  return MomentText(fieldsAfter(seconds));
}

std::int16_t NumberOf(const ElementResult& result) {
  return std::get<std::int16_t>(result);
}

}  // namespace

std::string clsBirthDetails::GetTITHIending(std::int16_t day, std::int16_t month, std::int16_t year,
                                            std::int16_t hour, std::int16_t minute,
                                            std::int16_t second,
                                            const foundation::SessionTable& session) {
  const auto tithi = [&](double moon, double sun) { return NumberOf(getTITHI(moon, sun, true)); };
  return EndOf(tithi, {year, month, day, hour, minute, second}, session);
}

std::string clsBirthDetails::GetNakshatraending(std::int16_t day, std::int16_t month,
                                                std::int16_t year, std::int16_t hour,
                                                std::int16_t minute, std::int16_t second,
                                                const foundation::SessionTable& session) {
  const auto nakshatra = [](double moon, double) { return engine::NakNumber(moon); };
  return EndOf(nakshatra, {year, month, day, hour, minute, second}, session);
}

std::string clsBirthDetails::GetYogEnding(std::int16_t day, std::int16_t month, std::int16_t year,
                                          std::int16_t hour, std::int16_t minute,
                                          std::int16_t second,
                                          const foundation::SessionTable& session) {
  const auto yoga = [&](double moon, double sun) { return NumberOf(getYOG(moon, sun, true)); };
  return EndOf(yoga, {year, month, day, hour, minute, second}, session);
}

std::string clsBirthDetails::GetKaranEnding(std::int16_t day, std::int16_t month, std::int16_t year,
                                            std::int16_t hour, std::int16_t minute,
                                            std::int16_t second,
                                            const foundation::SessionTable& session) {
  const auto karana = [&](double moon, double sun) { return NumberOf(GetKaran(moon, sun, true)); };
  return EndOf(karana, {year, month, day, hour, minute, second}, session);
}

}  // namespace dayperiods
