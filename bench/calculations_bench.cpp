// What the dashboard's figures cost.

#include <benchmark/benchmark.h>

#include "dayperiods/clsUtilities.h"
#include "forms/picture_page.h"
#include "screens/dashboard.h"
#include "screens/quick_view.h"

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

struct PlainMeasure : forms::TextMeasure {
  double TextWidth(std::string_view text, const forms::Font&) const override {
    return 100.0 * static_cast<double>(text.size());
  }
  double LineHeight(const forms::Font&) const override { return 350; }
  double Ascent(const forms::Font&) const override { return 280; }
};

// A year on the timetable's page.
void OneYearsQuickView(benchmark::State& state) {
  screens::Dashboard dashboard;
  screens::Tick(Noon(), dashboard.settings, dashboard.session, dashboard.form);
  const PlainMeasure measure;
  forms::PicturePage page(dashboard.form.PIC[0], measure);
  for (auto _ : state) {
    screens::DrawQuickView(page, Noon(), Noon() + 365, dashboard.session);
  }
}
BENCHMARK(OneYearsQuickView)->Unit(benchmark::kMillisecond);

// The texts and the sky, as the timer runs them.
void OneTimerEvent(benchmark::State& state) {
  screens::Dashboard dashboard;
  dashboard.clock.now = Noon();
  for (auto _ : state) dashboard.form.Timer1_Timer();
}
BENCHMARK(OneTimerEvent)->Unit(benchmark::kMicrosecond);

}  // namespace
