#include "foundation/calendar.h"

#include <cmath>
#include <cstdint>

#include "foundation/error.h"
#include "foundation/numbers.h"

namespace foundation {
namespace {

using std::chrono::days;
using std::chrono::sys_days;

constexpr std::int64_t kSecondsPerDay = 86400;

constexpr sys_days kDayZero =
    std::chrono::year(1899) / std::chrono::December / std::chrono::day(30);
constexpr sys_days kFirstDay = std::chrono::year(100) / std::chrono::January / std::chrono::day(1);
constexpr sys_days kLastDay =
    std::chrono::year(9999) / std::chrono::December / std::chrono::day(31);

sys_days InRange(sys_days day) {
  if (day < kFirstDay || day > kLastDay) throw Error(ErrorKind::InvalidCall);
  return day;
}

// A moment rounded to the nearest second, split into day and second of the day.
struct DaySeconds {
  sys_days day;
  int second;
};
DaySeconds Split(DateTime moment) {
  if (!(std::abs(moment) < 1e7)) throw Error(ErrorKind::InvalidCall);
  const auto total = static_cast<std::int64_t>(std::llround(moment * kSecondsPerDay));
  std::int64_t day = total / kSecondsPerDay;
  if (total % kSecondsPerDay < 0) --day;
  return {InRange(kDayZero + days(day)), static_cast<int>(total - day * kSecondsPerDay)};
}

}  // namespace

DateTime DateFromParts(double year, double month, double day) {
  const int wholeYear = RoundToInt16(year);
  const int wholeMonth = RoundToInt16(month);
  const int wholeDay = RoundToInt16(day);
  const sys_days first = std::chrono::year(wholeYear) / std::chrono::January / std::chrono::day(1) +
                         std::chrono::months(wholeMonth - 1);
  return static_cast<double>((InRange(first + days(wholeDay - 1)) - kDayZero).count());
}

DateTime TimeFromParts(double hour, double minute, double second) {
  const std::int64_t total = RoundToInt16(hour) * std::int64_t{3600} +
                             RoundToInt16(minute) * std::int64_t{60} + RoundToInt16(second);
  return static_cast<double>(total) / kSecondsPerDay;
}

DateTimeFields FieldsOf(DateTime moment) {
  const DaySeconds at = Split(moment);
  const std::chrono::year_month_day date(at.day);
  return {static_cast<int>(date.year()),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          at.second / 3600,
          at.second / 60 % 60,
          at.second % 60};
}

std::chrono::local_seconds CivilTimeOf(DateTime moment) {
  const DaySeconds at = Split(moment);
  return std::chrono::local_days(at.day.time_since_epoch()) + std::chrono::seconds(at.second);
}

DateTime DateTimeOf(std::chrono::local_seconds time) {
  const auto date = std::chrono::floor<days>(time);
  const sys_days day = InRange(sys_days(date.time_since_epoch()));
  return static_cast<double>((day - kDayZero).count()) +
         static_cast<double>((time - date).count()) / kSecondsPerDay;
}

int WeekdayOf(DateTime moment) {
  return static_cast<int>(std::chrono::weekday(Split(moment).day).c_encoding()) + 1;
}

}  // namespace foundation
