// Passes every day of the years 100 to 9999 through all date conversions.

#include "engine/time_base.h"
#include "foundation/date_text.h"
#include "foundation/time_text.h"
#include "nightly/days.h"
#include "support/locales.h"

namespace foundation {
namespace {

// A time of day that changes daily and covers every second in time.
DateTimeFields MomentOf(const nightly::Day& day) {
  const int second = (day.serial + 700000) * 7 % 86400;
  return {day.year, day.month, day.day, second / 3600, second / 60 % 60, second % 60};
}

TEST(EveryDay, RoundTripsThroughItsSerialNumber) {
  nightly::EachDay(100, 9999, [](const nightly::Day& day) {
    EXPECT_EQ(DateFromParts(day.year, day.month, day.day), day.serial);
    EXPECT_EQ(WeekdayOf(day.serial), day.weekday);
    EXPECT_EQ(engine::CivilDate(day.day, day.month, day.year), day.serial);
    EXPECT_EQ(engine::DayNumber(day.day, day.month, day.year), day.serial + 694024);
    if (day.isLastOfMonth) {
      EXPECT_EQ(DateFromParts(day.year, day.month + 1, 0), day.serial);
      EXPECT_ERROR(TypeMismatch, engine::CivilDate(day.day + 1, day.month, day.year));
    }
    const DateTimeFields at = MomentOf(day);
    const double time = (at.hour * 3600 + at.minute * 60 + at.second) / 86400.0;
    EXPECT_EQ(TimeFromParts(at.hour, at.minute, at.second), time);
    EXPECT_EQ(FieldsOf(day.serial + time), at);  // counts forward even before 30 December 1899
  });
}

TEST(EveryDay, RoundTripsThroughItsText) {
  for (const LocaleNames& names : {EnglishNames(), support::Hindi()}) {
    const support::UserNamesScope scope(names);
    nightly::EachDay(100, 9999, [](const nightly::Day& day) {
      const DateTimeFields at = MomentOf(day);
      const auto written = DateTimeText(at.day, at.month, at.year, at.hour, at.minute, at.second);
      EXPECT_EQ(FieldsOf(ReadDateTime(written)), at) << written;
      const std::string figures =
          std::to_string(at.day) + "/" + std::to_string(at.month) + "/" + std::to_string(at.year);
      EXPECT_EQ(ReadDateTime(figures), day.serial) << figures;
    });
  }
}

}  // namespace
}  // namespace foundation
