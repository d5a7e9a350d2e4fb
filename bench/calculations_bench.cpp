// What the dashboard's figures cost.

#include <benchmark/benchmark.h>

#include "dayperiods/clsUtilities.h"
#include "screens/dashboard.h"

namespace {

foundation::DateTime Noon() {
  return foundation::DateFromParts(2011, 3, 5) + 0.5;
}

// Both methods for one day.
void OneDaysPeriods(benchmark::State& state) {
  foundation::SessionTable session;
  session.Current().LatitudeText = "28.40N";
  session.Current().LongitudeText = "77.13E";
  session.Current().ZoneMeridianText = "82.30E";
  for (auto _ : state) {
    dayperiods::clsUtilities periods(session);
    periods.CalcDurvela(5, 3, 2011, 12, 0, 0);
    periods.CalcGulikYum(5, 3, 2011, 12, 0, 0);
    benchmark::DoNotOptimize(periods);
  }
}
BENCHMARK(OneDaysPeriods)->Unit(benchmark::kMicrosecond);

// The texts of all labels.
void OneTick(benchmark::State& state) {
  screens::Dashboard dashboard;
  for (auto _ : state) {
    screens::Tick(Noon(), dashboard.settings, dashboard.session, dashboard.form);
    benchmark::DoNotOptimize(dashboard.form.lblDurvela.caption);
  }
}
BENCHMARK(OneTick)->Unit(benchmark::kMicrosecond);

// The texts and the sky, as the timer runs them.
void OneTimerEvent(benchmark::State& state) {
  screens::Dashboard dashboard;
  dashboard.clock.now = Noon();
  for (auto _ : state) dashboard.form.Timer1_Timer();
}
BENCHMARK(OneTimerEvent)->Unit(benchmark::kMicrosecond);

}  // namespace
