// Changes of clocks as published: America on 8 March and 1 November 2026, Britain on 29 March and
// 25 October, Lord Howe by half an hour on 5 April and 4 October. Brazil's last ones were at
// midnight: back from Sunday, 18 February 2018, into Saturday, and forward at the first moment of 4
// November.
#include "words/clock_changes.h"

#include "support/locales.h"
#include "support/test.h"

namespace {

using namespace std::chrono;
using clocks::ZoneClock;

TEST(ClockChanges, BelongToTheirDates) {
  const auto on = [](const char* zone, year_month_day date) {
    return words::ChangeOn(*ZoneClock::Named(zone), local_days(date));
  };
  constexpr const char *kBack = "clocks go back", *kForward = "clocks go forward";
  ExpectRows(
      on, Row("America/New_York", 2026y / 3 / 8, kForward),
      Row("America/New_York", 2026y / 10 / 31, ""), Row("America/New_York", 2026y / 11 / 1, kBack),
      Row("America/New_York", 2026y / 11 / 2, ""), Row("Europe/London", 2026y / 3 / 29, kForward),
      Row("Europe/London", 2026y / 10 / 25, kBack),
      Row("Australia/Lord_Howe", 2026y / 4 / 5, kBack),
      Row("Australia/Lord_Howe", 2026y / 10 / 4, kForward),
      Row("America/Sao_Paulo", 2018y / 2 / 17, kBack), Row("America/Sao_Paulo", 2018y / 2 / 18, ""),
      Row("America/Sao_Paulo", 2018y / 11 / 3, ""),
      Row("America/Sao_Paulo", 2018y / 11 / 4, kForward), Row("Asia/Kolkata", 2026y / 3 / 29, ""));
}

TEST(ClockChanges, AreNamedFromTheFirstDateToTheLast) {
  const auto named = [](const char* zone, year_month_day first, year_month_day last) {
    return words::ClockOfDays(*ZoneClock::Named(zone), local_days(first), local_days(last));
  };
  const auto october = 2026y / 10 / 25, november = 2026y / 11 / 1;
  ExpectRows(named,
             Row("America/New_York", october, 2026y / 11 / 10, "EDT, UTC-4, from 1 November UTC-5"),
             Row("America/New_York", november, november, "EDT, UTC-4, from 1 November UTC-5"),
             Row("America/New_York", october, 2026y / 10 / 31, "EDT, UTC-4"),
             Row("America/New_York", 2026y / 11 / 2, 2026y / 12 / 2, "EST, UTC-5"),
             Row("America/New_York", 2026y / 11 / 2, 2028y / 12 / 2,
                 "EST, UTC-5, from 14 March UTC-4, from 7 November UTC-5, from 12 March UTC-4, …"),
             Row("America/Sao_Paulo", 2018y / 11 / 4, 2018y / 12 / 4, "UTC-2"),
             Row("Asia/Kathmandu", october, 2027y / 10 / 25, "UTC+5:45"));
  const support::UserNamesScope names(support::Hindi());
  EXPECT_EQ(words::ZoneOfDays(*ZoneClock::Named("Australia/Lord_Howe"), local_days(2026y / 9 / 30),
                              local_days(2026y / 10 / 30)),
            "UTC+10:30, from 4 अक्तूबर UTC+11");
}

}  // namespace
