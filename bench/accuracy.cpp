// Fills in the template of docs/accuracy.md: differences between this program's results and those
// of the Swiss Ephemeris.

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "bench/ephemeris.h"
#include "dayperiods/clsBirthDetails.h"
#include "engine/ayanamsa.h"
#include "engine/clsPP.h"
#include "foundation/date_text.h"
#include "foundation/numbers.h"
#include "support/session_at.h"

namespace {

using dayperiods::clsBirthDetails;
using foundation::DateFromParts;
using foundation::DateTime;
using foundation::FixedText;

constexpr std::int32_t kAsSeen = SEFLG_MOSEPH;

// Differences, ours minus theirs.
class Differences {
 public:
  void Add(double x) {
    sum_ += x;
    sizes_ += std::abs(x);
    worst_ = std::max(worst_, std::abs(x));
    ++count_;
  }
  int Count() const { return count_; }
  double Mean() const { return sum_ / count_; }

  // A new line "| name | mean | mean size | worst |", with values times `scale`.
  std::string Row(const std::string& name, double scale, int decimals) const {
    std::string row = "\n| " + name;
    for (const double x : {Mean(), sizes_ / count_, worst_}) {
      row += " | " + FixedText(x * scale, decimals);
    }
    return row + " |";
  }

 private:
  double sum_ = 0, sizes_ = 0, worst_ = 0;
  int count_ = 0;
};

std::string Head(const std::string& title) {
  return "| " + title + " | mean | mean size | worst |\n|---|---|---|---|";
}

// The signed distance from b to a on a circle.
double Apart(double a, double b, double circle) {
  return std::remainder(a - b, circle);
}

constexpr double kStep = 5.37;  // days

// Applies `measure` to charts and their Julian Days.
template <typename Measure>
Differences Over1950To2050(const Measure& measure) {
  Differences differences;
  const DateTime end = DateFromParts(2050, 12, 31);
  for (DateTime moment = DateFromParts(1950, 1, 1); moment < end; moment += kStep) {
    const DateTime second = std::round(moment * 86400) / 86400;
    const auto at = foundation::FieldsOf(second);
    engine::clsPP pp;
    pp.GenHoro(at.day, at.month, at.year, at.hour, at.minute, at.second, "0.0E", "0.0N", "0.0E", 0,
               foundation::kFalse16, 0);
    differences.Add(measure(pp, peer::JulianDay(second)));
  }
  return differences;
}

struct Compared {
  std::string table;
  int moments = 0;
  double constant = 0;  // degrees: the Sun's mean difference, subtracted from all
};

Compared Positions() {
  Compared compared = {Head("minutes of arc")};
  auto& [table, moments, constant] = compared;
  for (const peer::Body& body : peer::kBodies) {
    const auto difference = [&](const engine::clsPP& pp, double julianDay) {
      return Apart(pp.getPLNT()[body.ours] + pp.pp_AYAN - constant,
                   peer::Longitude(julianDay, body.theirs, body.flags), 360);
    };
    if (body.ours == engine::Sun) constant = Over1950To2050(difference).Mean();
    const Differences differences = Over1950To2050(difference);
    table += differences.Row(body.name, 60, 3);
    moments = differences.Count();
  }
  return compared;
}

std::string SiderealPositions() {
  std::string table = Head("minutes of arc");
  swe_set_sid_mode(SE_SIDM_LAHIRI, 0, 0);
  for (const peer::Body& body : {peer::kSun, peer::kMoon}) {
    const auto difference = [&](const engine::clsPP& pp, double julianDay) {
      return Apart(pp.getPLNT()[body.ours],
                   peer::Longitude(julianDay, body.theirs, kAsSeen | SEFLG_SIDEREAL), 360);
    };
    table += Over1950To2050(difference).Row(body.name + std::string(", sidereal"), 60, 3);
  }
  return table;
}

std::string SiderealTime() {
  const auto difference = [](const engine::clsPP& pp, double julianDay) {
    return Apart(pp.ppSidTime, swe_sidtime(julianDay), 24);
  };
  return Head("seconds") + Over1950To2050(difference).Row("Sidereal time", 3600, 3);
}

constexpr double kDelhiZone = 5.5 / 24;  // days

// The Moon and the Sun at a time of Delhi's clock.
struct Sky {
  double moon, sun;  // degrees

  Sky(DateTime clock, std::int32_t flags, double zeroPoint) {
    const double julianDay = peer::JulianDay(clock - kDelhiZone);
    moon = peer::Longitude(julianDay, SE_MOON, flags) - zeroPoint;
    sun = peer::Longitude(julianDay, SE_SUN, flags) - zeroPoint;
  }
};

// On the mean equinox, from the zero point that the fixed corrections refer Moon and Sun to: that
// of N.C. Lahiri, 17 seconds of arc beyond the ayanamsa that a chart shows.
Sky SiderealSky(DateTime clock) {
  return {clock, kAsSeen | SEFLG_NONUT, engine::AyanamsaAt(0, clock)};
}

double Elongation(DateTime clock) {
  const Sky sky(clock, kAsSeen, 0);
  return sky.moon - sky.sun;
}

// An element ends when the angle it depends on has grown by `step` degrees.
struct Element {
  const char* name;
  decltype(&clsBirthDetails::GetTITHIending) ending;
  double step;
  double (*angle)(DateTime clock);
};
constexpr Element kElements[] = {
    {"Tithi", &clsBirthDetails::GetTITHIending, 12, Elongation},
    {"Nakshatra", &clsBirthDetails::GetNakshatraending, 40 / 3.0,
     [](DateTime clock) { return SiderealSky(clock).moon; }},
    {"Yoga", &clsBirthDetails::GetYogEnding, 40 / 3.0,
     [](DateTime clock) {
       const Sky sky = SiderealSky(clock);
       return sky.moon + sky.sun;
     }},
    {"Karana", &clsBirthDetails::GetKaranEnding, 6, Elongation},
};

// By bisection.
DateTime TheirEnd(const Element& element, DateTime from) {
  const auto number = [&](DateTime clock) {
    return std::floor(swe_degnorm(element.angle(clock)) / element.step);
  };
  const double begun = number(from);
  DateTime before = from, after = from;
  while (number(after) == begun) after += 1 / 24.0;
  while (after - before > 0.1 / 86400) {
    const DateTime middle = (before + after) / 2;
    (number(middle) == begun ? before : after) = middle;
  }
  return after;
}

// All elements ending in 2011; each search starts an hour after the previous end.
std::string Endings() {
  const foundation::SessionTable session = support::Delhi();
  std::string table = Head("seconds of time, Delhi 2011");
  for (const Element& element : kElements) {
    Differences differences;
    DateTime from = DateFromParts(2011, 1, 1);
    while (from < DateFromParts(2012, 1, 1)) {
      const auto at = foundation::FieldsOf(from);
      const auto field = [](int x) { return static_cast<std::int16_t>(x); };
      clsBirthDetails details;
      const DateTime end = foundation::ReadDateTime(
          (details.*element.ending)(field(at.day), field(at.month), field(at.year), field(at.hour),
                                    field(at.minute), field(at.second), session));
      differences.Add(end - TheirEnd(element, from));
      from = end + 1 / 24.0;
    }
    table += differences.Row(element.name, 86400, 0);
  }
  return table;
}

struct Place {
  const char* name;
  double latitude, longitude;  // degrees, north and east
  double zone;                 // hours, east
};
constexpr Place kPlaces[] = {
    {"Ålesund, 62.5° N", 62.47, 6.15, 1},        {"London, 51.5° N", 51.5, -0.13, 0},
    {"New York, 40.7° N", 40.7, -74.0, -5},      {"Delhi, 28.7° N", 28.67, 77.22, 5.5},
    {"Macapá, 0.0°", 0.0, -51.07, -3},           {"Lima, 12.1° S", -12.05, -77.05, -5},
    {"Sydney, 33.9° S", -33.87, 151.2, 10},      {"Ushuaia, 54.8° S", -54.8, -68.3, -3},
    {"Maxwell Bay, 62.2° S", -62.2, -58.97, -3},
};

// The next rise or set of the sun's upper limb after midnight, in hours of local clock time.
double TheirHours(const Place& place, DateTime midnight, int riseOrSet) {
  double at[3] = {place.longitude, place.latitude, 0};
  double found = 0;
  char error[AS_MAXCH];
  const double from = peer::JulianDay(midnight - place.zone / 24);
  if (swe_rise_trans(from, SE_SUN, nullptr, kAsSeen, riseOrSet, at, 1013.25, 15, &found, error) < 0)
    peer::Fail(error);
  return (found - from) * 24;
}

std::string Sunrises() {
  std::string table = Head("seconds of time, 2011: sunrise");
  std::string sets = Head("sunset");
  for (const Place& place : kPlaces) {
    Differences rise, set;
    for (DateTime day = DateFromParts(2011, 1, 1); day < DateFromParts(2012, 1, 1); ++day) {
      const auto at = foundation::FieldsOf(day);
      auto dayOfMonth = static_cast<std::int16_t>(at.day);
      auto month = static_cast<std::int16_t>(at.month);
      auto year = static_cast<std::int16_t>(at.year);
      std::int16_t hour = 12, minute = 0, second = 0;
      double latitude = place.latitude, longitude = place.longitude, zone = place.zone;
      const auto rows = clsBirthDetails().Sunrise(latitude, longitude, zone, dayOfMonth, month,
                                                  year, hour, minute, second);
      rise.Add(Apart(rows.clockRise, TheirHours(place, day, SE_CALC_RISE), 24));
      set.Add(Apart(rows.clockSet, TheirHours(place, day, SE_CALC_SET), 24));
    }
    table += rise.Row(place.name, 3600, 0);
    sets += set.Row(place.name, 3600, 0);
  }
  return table + "\n\n" + sets;
}

// Replaces each "@name@" in the text by its value.
void FillIn(std::string& text, const std::string& name, const std::string& value) {
  const std::string mark = "@" + name + "@";
  for (std::size_t at = 0; (at = text.find(mark, at)) != text.npos; at += value.size()) {
    text.replace(at, mark.size(), value);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) peer::Fail("usage: accuracy TEMPLATE");
  std::ifstream file(argv[1]);
  if (!file) peer::Fail("the template cannot be read");
  std::string page{std::istreambuf_iterator<char>(file), {}};
  const Compared positions = Positions();
  FillIn(page, "moments", foundation::GroupedText(positions.moments));
  FillIn(page, "step", foundation::NumberText(kStep));
  FillIn(page, "constant", FixedText(positions.constant * 60, 3));
  FillIn(page, "positions", positions.table);
  FillIn(page, "sidereal_positions", SiderealPositions());
  FillIn(page, "sidereal_time", SiderealTime());
  FillIn(page, "endings", Endings());
  FillIn(page, "sunrises", Sunrises());
  std::cout << page;
}
