// ZoneClock: the civil clock of one time zone, with its daylight saving and its history.
#pragma once

#include <cctz/time_zone.h>

#include <chrono>
#include <optional>
#include <string>

namespace clocks {

using Instant = std::chrono::sys_seconds;
using CivilTime = std::chrono::local_seconds;  // means nothing without its clock

// How far a clock is from Universal Time at some instant.
struct Offset {
  std::chrono::seconds east{};  // clock minus Universal Time
  bool daylightSaving = false;
  std::string letters;  // "EDT"; empty in zones that are named by numbers only
};

// The instants at which a clock shows a civil time. If the clock skips that time, both are outside:
// `earlier` by the offset after the gap, `later` by the one before it.
struct Reading {
  enum class Kind { Unique, Skipped, Repeated };
  Kind kind;
  Instant earlier, later;  // the same if the time is unique
};

// A clock put forward or back.
struct Change {
  Instant at;
  std::chrono::seconds before{}, after{};  // offsets, east of Greenwich
};

class ZoneClock {
 public:
  // The zone by its IANA name, such as "Asia/Kolkata", from the system's zone files. Nothing for
  // any other name, and if the system does not know the zone.
  static std::optional<ZoneClock> Named(const std::string& zone);

  // A clock that never changes; offsets below 24 hours.
  static ZoneClock Fixed(std::chrono::seconds east);

  Offset OffsetAt(Instant instant) const;
  CivilTime CivilAt(Instant instant) const;
  Reading Read(CivilTime time) const;

  // The first instant of a civil date, also if the clock skips its midnight.
  Instant BeginOf(std::chrono::local_days date) const;

  // The civil noon of a date, by which the offset of a whole day is taken.
  Instant NoonOf(std::chrono::local_days date) const;

  // Whether the clock shows a civil date at all: a zone that moves over the date line skips one.
  bool HasDate(std::chrono::local_days date) const;

  // The first change after an instant; nothing if there is none.
  std::optional<Change> NextChange(Instant instant) const;

 private:
  explicit ZoneClock(cctz::time_zone zone) : zone_(zone) {}

  cctz::time_zone zone_;
};

}  // namespace clocks
