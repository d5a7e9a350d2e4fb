// What a chart and what follows from many of them cost, and beside it, where it is installed, the
// same work by the Swiss Ephemeris.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "dayperiods/clsBirthDetails.h"
#include "engine/clsPP.h"
#include "foundation/calendar.h"
#include "foundation/numbers.h"

#ifdef HAVE_SWISSEPH
#include "bench/ephemeris.h"
#endif

namespace {

using foundation::DateFromParts;
using foundation::DateTime;

// Every chart has a moment of its own, some days and hours on, so that neither side meets what it
// has just worked out.
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

void GenHoro(benchmark::State& state) {
  const auto correctedNode = static_cast<foundation::Boolean16>(state.range(0));
  Moments moments;
  for (auto _ : state) {
    const auto at = foundation::FieldsOf(moments.Next());
    engine::clsPP pp;
    pp.GenHoro(at.day, at.month, at.year, at.hour, at.minute, at.second, "77.13E", "28.40N", "0.0E",
               0, correctedNode, 0);
    benchmark::DoNotOptimize(pp);
  }
}
BENCHMARK(GenHoro)
    ->ArgName("corrected_node")
    ->Arg(foundation::kFalse16)
    ->Arg(foundation::kTrue16)
    ->Unit(benchmark::kMicrosecond);

// 21 charts by hours, 60 by minutes and 59 by seconds, since this tithi ends at 19:24:19 of the
// next day: nearly the most that an element takes.
void TithiEnding(benchmark::State& state) {
  foundation::SessionTable session;
  session.Current().LatitudeText = "28.40N";
  session.Current().LongitudeText = "77.13E";
  session.Current().ZoneMeridianText = "82.30E";
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        dayperiods::clsBirthDetails().GetTITHIending(14, 4, 2011, 23, 23, 20, session));
  }
}
BENCHMARK(TithiEnding)->Unit(benchmark::kMillisecond);

#ifdef HAVE_SWISSEPH

// Eleven bodies at two moments an hour apart, Ketu from the node, and houses by trisected
// quadrants.
void SwissEphemeris(benchmark::State& state) {
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
    double cusps[13], angles[10];
    swe_houses_ex(julianDay, kFlags, 28 + 40 / 60.0, 77 + 13 / 60.0, 'O', cusps, angles);
    benchmark::DoNotOptimize(cusps);
  }
}
BENCHMARK(SwissEphemeris)->Unit(benchmark::kMicrosecond);

#endif

}  // namespace
