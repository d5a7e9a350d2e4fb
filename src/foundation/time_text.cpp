#include "foundation/time_text.h"

#include <cmath>

#include "foundation/calendar.h"
#include "foundation/checked.h"
#include "foundation/date_text.h"
#include "foundation/numbers.h"
#include "foundation/resume.h"
#include "foundation/text.h"

namespace foundation {
namespace {

std::string_view TimeField(std::string_view text, std::size_t number) {
  const auto fields = Split(text, ':');
  if (number >= fields.size()) throw Error(ErrorKind::Subscript);
  return fields[number];
}

struct TimeParts {
  double hours, minutes, seconds;  // seconds may be 60
};

TimeParts SplitHours(double x) {
  const double hours = std::floor(Finite(x));
  const double m = (x - hours) * 60;
  const double minutes = std::floor(m);
  return {hours, minutes, std::floor((m - minutes) * 60 + 0.5)};
}

// Wraps hours into 0 to the limit; both ends are kept.
double HoursWithin(double hours, double limit) {
  if (hours >= 0 && hours <= limit) return hours;
  if (!(limit > 0)) throw Error(ErrorKind::InvalidCall);
  const double rest = std::fmod(hours, limit);
  if (rest < 0) return rest + limit;
  return rest == 0 && hours > 0 ? limit : rest;
}

}  // namespace

double FracPart(double x) {
  return x - FloorToInt32(x);
}

std::string PadDigits(std::string_view value, int width) {
  if (width < 0) throw Error(ErrorKind::InvalidCall);
  const auto length = static_cast<int>(Characters(value).size());
  const std::string fill(static_cast<std::size_t>(length < width ? width - length : 0), '0');
  return std::string(FirstCharacters(fill + std::string(value), width));
}

std::string PadDigits(double value, int width) {
  return PadDigits(NumberText(value), width);
}

double SecondsOfHours(double x) {
  const auto [hours, minutes, seconds] = SplitHours(x);
  return (hours * 60 + minutes) * 60 + seconds;
}

std::string DecimalToTimeText(double x, double limit, bool noSeconds) {
  const auto [whole, minutes, seconds] = SplitHours(x);
  const double hours = HoursWithin(whole, Finite(limit));

  const auto joined = [&](double h, double min, double s) {
    std::string text = PadDigits(h, 2) + ":" + PadDigits(min, 2);
    if (!noSeconds) text += ":" + PadDigits(s, 2);
    return text;
  };
  if (limit != 24) return joined(hours, minutes, seconds);
  const DateTimeFields time = FieldsOf(TimeFromParts(hours, minutes, seconds));
  return joined(time.hour, time.minute, time.second);
}

std::string TimeTextHour(std::string_view text) {
  return std::string(TimeField(text, 0));
}

std::string TimeTextMinute(std::string_view text) {
  std::string minute;
  Resume([&] { minute = TimeField(text, 1); });
  return minute;
}

double TimeTextSecond(std::string_view text) {
  double second = 0;
  Resume([&] { second = LeadingNumber(TimeField(text, 2)); });
  return second;
}

double TimeTextToDecimal(std::string_view text) {
  return Finite(LeadingNumber(TimeTextHour(text)) + LeadingNumber(TimeTextMinute(text)) / 60 +
                TimeTextSecond(text) / 3600);
}

std::string DateTimeText(double day, double month, double year, double hour, double minutes,
                         double seconds) {
  if (seconds >= 60) {
    seconds -= 60;
    minutes += 1;
  }
  if (minutes >= 60) {
    minutes -= 60;
    hour += 1;
  }
  if (hour >= 24) {
    hour -= 24;
    day += 1;
  }
  const DateTimeFields date = FieldsOf(DateFromParts(year, month, day));
  return DayMonthYear(date.day, date.month, date.year, '-') + " " +
         HourMinuteSecond(hour, minutes, seconds);
}

}  // namespace foundation
