#include "clocks/zone_clock.h"

#include <cctz/civil_time.h>

#include <algorithm>
#include <string_view>

namespace clocks {
namespace {

using std::chrono::seconds;

const cctz::civil_second kEpoch;  // 1970-01-01 00:00:00, as CivilTime counts from

CivilTime FromCctz(const cctz::civil_second& time) {
  return CivilTime(seconds(time - kEpoch));
}

cctz::civil_second ToCctz(CivilTime time) {
  return kEpoch + time.time_since_epoch().count();
}

// The zone files have "+0545" for zones that have no letters.
bool IsNumber(std::string_view abbreviation) {
  return abbreviation.find_first_of("0123456789") != std::string_view::npos;
}

// The system's folder of zones also has other files, among them the machine's own zone, and CCTZ
// adds names with a colon. Names of zones begin with a capital.
bool IsZoneName(std::string_view name) {
  return !name.empty() && name.front() >= 'A' && name.front() <= 'Z' &&
         name.find("..") == name.npos && name.find(':') == name.npos;
}

}  // namespace

std::optional<ZoneClock> ZoneClock::Named(const std::string& zone) {
  cctz::time_zone found;
  if (!IsZoneName(zone) || !cctz::load_time_zone(zone, &found)) return std::nullopt;
  return ZoneClock(found);
}

ZoneClock ZoneClock::Fixed(seconds east) {
  return ZoneClock(cctz::fixed_time_zone(east));
}

Offset ZoneClock::OffsetAt(Instant instant) const {
  const auto found = zone_.lookup(instant);
  return {seconds(found.offset), found.is_dst, IsNumber(found.abbr) ? "" : found.abbr};
}

CivilTime ZoneClock::CivilAt(Instant instant) const {
  return FromCctz(zone_.lookup(instant).cs);
}

Reading ZoneClock::Read(CivilTime time) const {
  const auto found = zone_.lookup(ToCctz(time));
  const Reading::Kind kind = found.kind == found.SKIPPED    ? Reading::Kind::Skipped
                             : found.kind == found.REPEATED ? Reading::Kind::Repeated
                                                            : Reading::Kind::Unique;
  return {kind, std::min(found.pre, found.post), std::max(found.pre, found.post)};
}

Instant ZoneClock::BeginOf(std::chrono::local_days date) const {
  const auto found = zone_.lookup(ToCctz(date));
  return found.kind == found.SKIPPED ? found.trans : found.pre;
}

Instant ZoneClock::NoonOf(std::chrono::local_days date) const {
  return Read(CivilTime(date) + std::chrono::hours(12)).earlier;
}

bool ZoneClock::HasDate(std::chrono::local_days date) const {
  return BeginOf(date) < BeginOf(date + std::chrono::days(1));
}

// Changes of letters only are passed over.
std::optional<Change> ZoneClock::NextChange(Instant instant) const {
  cctz::time_zone::civil_transition civil;
  while (zone_.next_transition(instant, &civil)) {
    instant = zone_.lookup(civil.to).trans;
    if (civil.from == civil.to) continue;
    const seconds before = OffsetAt(instant - seconds(1)).east;
    return Change{instant, before, OffsetAt(instant).east};
  }
  return std::nullopt;
}

}  // namespace clocks
