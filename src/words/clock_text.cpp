#include "words/clock_text.h"

#include <cstdint>

#include "foundation/numbers.h"
#include "foundation/time_text.h"

namespace words {
namespace {

using foundation::NumberText;
using foundation::PadDigits;
using std::chrono::seconds;

std::string TwoDigits(std::int64_t number) {
  return PadDigits(static_cast<double>(number), 2);
}

std::string Plain(std::int64_t number) {
  return NumberText(static_cast<double>(number));
}

// To the nearest multiple, half away from zero.
std::int64_t InUnits(seconds east, std::int64_t unit) {
  const std::int64_t half = east.count() < 0 ? -unit / 2 : unit / 2;
  return (east.count() + half) / unit;
}

}  // namespace

std::string UtcText(seconds east) {
  if (east == seconds(0)) return "UTC";
  const std::chrono::hh_mm_ss parts(abs(east));
  std::string text = (east < seconds(0) ? "UTC-" : "UTC+") + Plain(parts.hours().count());
  if (east % 3600 == seconds(0)) return text;
  text += ":" + TwoDigits(parts.minutes().count());
  if (east % 60 == seconds(0)) return text;
  return text + ":" + TwoDigits(parts.seconds().count());
}

std::string ClockName(const clocks::Offset& offset) {
  const std::string utc = UtcText(offset.east);
  return offset.letters.empty() || offset.letters == utc ? utc : offset.letters + ", " + utc;
}

std::string TimeText(const clocks::ZoneClock& clock, clocks::Instant instant) {
  const clocks::CivilTime time = clock.CivilAt(instant);
  const std::chrono::hh_mm_ss parts(time - std::chrono::floor<std::chrono::days>(time));
  return TwoDigits(parts.hours().count()) + ":" + TwoDigits(parts.minutes().count()) + ":" +
         TwoDigits(parts.seconds().count());
}

std::string MomentText(const clocks::ZoneClock& clock, clocks::Instant instant) {
  const auto east = std::chrono::duration_cast<std::chrono::minutes>(clock.OffsetAt(instant).east);
  const clocks::CivilTime time(instant.time_since_epoch() + east);
  const auto date = std::chrono::floor<std::chrono::days>(time);
  const std::chrono::hh_mm_ss clockTime(time - date);
  const std::chrono::hh_mm_ss offset(abs(east));
  return DateText(date) + "T" + TwoDigits(clockTime.hours().count()) + ":" +
         TwoDigits(clockTime.minutes().count()) + ":" + TwoDigits(clockTime.seconds().count()) +
         (east.count() < 0 ? "-" : "+") + TwoDigits(offset.hours().count()) + ":" +
         TwoDigits(offset.minutes().count());
}

std::string DateText(std::chrono::local_days date) {
  const std::chrono::year_month_day fields(date);
  const std::string year = Plain(static_cast<int>(fields.year()));
  return (year.size() < 4 ? PadDigits(year, 4) : year) + "-" +
         TwoDigits(static_cast<unsigned>(fields.month())) + "-" +
         TwoDigits(static_cast<unsigned>(fields.day()));
}

// A minute of arc is four seconds of time.
std::string MeridianText(seconds east) {
  const std::int64_t arcMinutes = std::abs(InUnits(east, 4));
  return Plain(arcMinutes / 60) + "." + TwoDigits(arcMinutes % 60) +
         (east < seconds(0) ? "W" : "E");
}

std::string ZoneText(seconds east) {
  const std::int64_t minutes = std::abs(InUnits(east, 60));
  const std::string sign = minutes == 0 ? "" : east < seconds(0) ? "+" : "-";
  const std::string hours = sign + Plain(minutes / 60);
  return minutes % 60 == 0 ? hours : hours + "." + TwoDigits(minutes % 60);
}

}  // namespace words
