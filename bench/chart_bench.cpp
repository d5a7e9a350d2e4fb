// Charts and what is derived from them, compared with the Swiss Ephemeris and libnova if installed.

#include "bench/figure.h"
#include "cli/day_json.h"
#include "day/day.h"
#include "dayperiods/clsBirthDetails.h"
#include "dayperiods/clsUtilities.h"
#include "engine/clsPP.h"
#include "foundation/calendar.h"
#include "foundation/numbers.h"
#include "support/dashboard.h"
#include "support/session_at.h"

#ifdef HAVE_SWISSEPH
#include "bench/ephemeris.h"
#endif
#ifdef HAVE_NOVA
#include <libnova/libnova.h>
#endif

namespace {

using foundation::DateFromParts;
using foundation::DateTime;

#define CHART "a chart: all longitudes at two moments an hour apart, houses, divisions"
#define YEAR "a year's sunrises and sunsets"
#define PERIODS "a year's three periods, with a chart per call"

// Each chart gets another moment, some days and hours later, so that nothing can be served from a
// cache.
class Moments {
 public:
  DateTime Next() {
    constexpr double kStride = 5.37;  // days
    at_ += kStride;
    if (at_ > last_) at_ = first_;
    return at_;
  }

 private:
  const DateTime first_ = DateFromParts(1950, 1, 1);
  const DateTime last_ = DateFromParts(2050, 12, 31);
  DateTime at_ = first_;
};

constexpr double kLatitude = 28 + 40 / 60.0, kLongitude = 77 + 13 / 60.0, kZone = 5.5;

std::int16_t Field(int x) {
  return static_cast<std::int16_t>(x);
}

// Works on every day of a year; each iteration takes the next year.
template <typename Work>
void EachDayOfAYear(benchmark::State& state, const Work& work) {
  int year = 1950;
  for (auto _ : state) {
    const DateTime first = DateFromParts(year, 1, 1);
    for (int day = 0; day < 365; ++day) work(first + day);
    year = year == 2050 ? 1950 : year + 1;
  }
}

void GenHoro(benchmark::State& state) {
  Moments moments;
  for (auto _ : state) {
    const auto at = foundation::FieldsOf(moments.Next());
    engine::clsPP pp;
    pp.GenHoro(at.day, at.month, at.year, at.hour, at.minute, at.second, "77.13E", "28.40N", "0.0E",
               0, foundation::kTrue16, 0);
    benchmark::DoNotOptimize(pp);
  }
}
FIGURE(GenHoro, CHART, "Durvela");

#ifdef HAVE_SWISSEPH

// Eleven bodies, with Ketu derived from the node, and houses from trisected quadrants.
void ChartBySwissEphemeris(benchmark::State& state) {
  constexpr std::int32_t kFlags = SEFLG_MOSEPH | SEFLG_SIDEREAL;
  swe_set_sid_mode(SE_SIDM_LAHIRI, 0, 0);
  Moments moments;
  for (auto _ : state) {
    const double julianDay = peer::JulianDay(moments.Next());
    for (const double moment : {julianDay, julianDay + 1 / 24.0}) {
      for (const peer::Body& body : peer::kBodies) {
        double longitude = peer::Longitude(moment, body.theirs, kFlags);
        benchmark::DoNotOptimize(longitude);
        if (body.ours == engine::Rahu) longitude = swe_degnorm(longitude + 180);
        benchmark::DoNotOptimize(longitude);
      }
    }
    double cusps[13], angles[10], cuspSpeeds[13], angleSpeeds[10];
    char error[AS_MAXCH];
    swe_houses_ex2(julianDay, kFlags, kLatitude, kLongitude, 'O', cusps, angles, cuspSpeeds,
                   angleSpeeds, error);
    benchmark::DoNotOptimize(cusps);
  }
}
FIGURE(ChartBySwissEphemeris, CHART, "Swiss Ephemeris, analytic");

#endif
#ifdef HAVE_NOVA

// The ten bodies that libnova has, the planets in equatorial coordinates; it has no houses.
void ChartByNova(benchmark::State& state) {
  Moments moments;
  for (auto _ : state) {
    const double julianDay = moments.Next() + 2415018.5;
    for (const double moment : {julianDay, julianDay + 1 / 24.0}) {
      ln_lnlat_posn place;
      ln_get_solar_ecl_coords(moment, &place);
      benchmark::DoNotOptimize(place);
      ln_get_lunar_ecl_coords(moment, &place, 0);
      benchmark::DoNotOptimize(place);
      ln_equ_posn equatorial;
      for (const auto body :
           {ln_get_mercury_equ_coords, ln_get_venus_equ_coords, ln_get_mars_equ_coords,
            ln_get_jupiter_equ_coords, ln_get_saturn_equ_coords, ln_get_uranus_equ_coords,
            ln_get_neptune_equ_coords, ln_get_pluto_equ_coords}) {
        body(moment, &equatorial);
        benchmark::DoNotOptimize(equatorial);
      }
    }
  }
}
FIGURE(ChartByNova, CHART, "libnova, no houses");

#endif

void YearOfSunrises(benchmark::State& state) {
  dayperiods::clsBirthDetails details;
  EachDayOfAYear(state, [&](DateTime day) {
    const auto at = foundation::FieldsOf(day);
    double latitude = kLatitude, longitude = kLongitude, zone = kZone;
    std::int16_t dayOfMonth = Field(at.day), month = Field(at.month), year = Field(at.year);
    std::int16_t hour = 12, minute = 0, second = 0;
    benchmark::DoNotOptimize(
        details.Sunrise(latitude, longitude, zone, dayOfMonth, month, year, hour, minute, second));
  });
}
FIGURE(YearOfSunrises, YEAR, "Durvela")->Unit(benchmark::kMillisecond);

#ifdef HAVE_SWISSEPH

// A Julian Day.
double RiseOrSetBySwissEphemeris(DateTime day, int which) {
  double at[3] = {kLongitude, kLatitude, 0};
  double found = 0;
  char error[AS_MAXCH];
  swe_rise_trans(peer::JulianDay(day - kZone / 24), SE_SUN, nullptr, SEFLG_MOSEPH, which, at,
                 1013.25, 15, &found, error);
  return found;
}

void YearBySwissEphemeris(benchmark::State& state) {
  EachDayOfAYear(state, [](DateTime day) {
    benchmark::DoNotOptimize(RiseOrSetBySwissEphemeris(day, SE_CALC_RISE));
    benchmark::DoNotOptimize(RiseOrSetBySwissEphemeris(day, SE_CALC_SET));
  });
}
FIGURE(YearBySwissEphemeris, YEAR, "Swiss Ephemeris, analytic")->Unit(benchmark::kMillisecond);

#endif
#ifdef HAVE_NOVA

void YearByNova(benchmark::State& state) {
  EachDayOfAYear(state, [](DateTime day) {
    ln_lnlat_posn at = {kLongitude, kLatitude};
    ln_rst_time found;
    ln_get_solar_rst(day + 2415018.5, &at, &found);
    benchmark::DoNotOptimize(found);
  });
}
FIGURE(YearByNova, YEAR, "libnova")->Unit(benchmark::kMillisecond);

#endif

void YearOfPeriods(benchmark::State& state) {
  const foundation::SessionTable session = support::Delhi();
  EachDayOfAYear(state, [&](DateTime day) {
    const auto at = foundation::FieldsOf(day);
    dayperiods::clsUtilities periods(session);
    periods.CalcDurvela(at.day, at.month, at.year, 12, 0, 0);
    periods.CalcGulikYum(at.day, at.month, at.year, 12, 0, 0);
    benchmark::DoNotOptimize(periods);
  });
}
FIGURE(YearOfPeriods, PERIODS, "Durvela")->Unit(benchmark::kMillisecond);

#ifdef HAVE_SWISSEPH

void PeriodsBySwissEphemeris(benchmark::State& state) {
  EachDayOfAYear(state, [](DateTime day) {
    const double rise = RiseOrSetBySwissEphemeris(day, SE_CALC_RISE);
    const double eighth = (RiseOrSetBySwissEphemeris(day, SE_CALC_SET) - rise) / 8;
    for (const int part : {2, 7, 5}) {  // as on a Saturday
      double start = rise + part * eighth;
      benchmark::DoNotOptimize(start);
    }
  });
}
FIGURE(PeriodsBySwissEphemeris, PERIODS, "Swiss Ephemeris, analytic, no chart")
    ->Unit(benchmark::kMillisecond);

#endif

// What the windows and `durvela-cli` ask for.
const atlas::Place kPlace = {"Delhi", "Delhi", "India", kLatitude, kLongitude, "Asia/Kolkata"};

day::Day DayAt(const clocks::ZoneClock& clock, DateTime date) {
  return day::DayOf(kPlace, clock,
                    std::chrono::floor<std::chrono::days>(foundation::CivilTimeOf(date)));
}

void OneDay(benchmark::State& state) {
  const auto clock = clocks::ZoneClock::Named(kPlace.zone).value();
  Moments moments;
  for (auto _ : state) {
    day::Day value = DayAt(clock, moments.Next());
    benchmark::DoNotOptimize(value);
  }
}
FIGURE(OneDay, "a day by the place's own clock: sun and periods", "Durvela");

void YearAsJson(benchmark::State& state) {
  const auto clock = clocks::ZoneClock::Named(kPlace.zone).value();
  EachDayOfAYear(state, [&](DateTime date) {
    std::string line = cli::DayJson(kPlace, clock, DayAt(clock, date));
    benchmark::DoNotOptimize(line);
  });
}
FIGURE(YearAsJson, "a year of such days as JSON", "Durvela")->Unit(benchmark::kMillisecond);

// Calculates 21 charts by hours, 60 by minutes and 59 by seconds, since this tithi ends at 19:24:19
// on the next day: close to the worst case.
void TithiEnding(benchmark::State& state) {
  const foundation::SessionTable session = support::Delhi();
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        dayperiods::clsBirthDetails().GetTITHIending(14, 4, 2011, 23, 23, 20, session));
  }
}
FIGURE(TithiEnding, "the end of a tithi, to the second, worst case", "Durvela");

// Updates the texts of all labels.
void OneTick(benchmark::State& state) {
  screens::Dashboard dashboard;
  day::KeptPlace place;
  const clocks::Instant noon = dashboard.clock.InstantNow();
  const std::chrono::seconds east = dashboard.clock.OffsetAt(noon);
  for (auto _ : state) {
    screens::TickByOwnClock(noon, east, dashboard.settings, dashboard.session, place,
                            dashboard.form);
    benchmark::DoNotOptimize(dashboard.form.lblDurvela.caption);
  }
}
FIGURE(OneTick, "one tick of the dashboard, all labels", "Durvela");

}  // namespace
