// Every day of the years 100 to 9999 through all conversions of dates.

#include <gtest/gtest.h>

#include "engine/time_base.h"
#include "foundation/date_text.h"
#include "foundation/numbers.h"
#include "foundation/zzVorin.h"
#include "nightly/days.h"
#include "support/errors.h"
#include "support/locales.h"

namespace nightly {
namespace {

using foundation::DateFromParts;
using foundation::DateTimeFields;
using foundation::FieldsOf;
using foundation::NumberText;

// A time of day that differs from day to day and meets each second in the end.
DateTimeFields MomentOf(const Day& day) {
  const int second = (day.serial + 700000) * 7 % 86400;
  return {day.year, day.month, day.day, second / 3600, second / 60 % 60, second % 60};
}

template <typename Check>
void EachDay(Check check) {
  Day day = kFirstOf100;
  for (; day.year < 10000 && !testing::Test::HasFailure(); day.Advance()) check(day);
  EXPECT_EQ(day.serial, 2958466);
}

TEST(EveryDay, IsItsOwnNumberAndGivesItsMomentsBack) {
  EachDay([](const Day& day) {
    SCOPED_TRACE(day.serial);
    EXPECT_EQ(DateFromParts(day.year, day.month, day.day), day.serial);
    EXPECT_EQ(foundation::WeekdayOf(day.serial), day.weekday);
    EXPECT_EQ(engine::CivilDate(day.day, day.month, day.year), day.serial);
    EXPECT_EQ(engine::DayNumber(day.day, day.month, day.year), day.serial + 694024);
    if (day.IsLastOfMonth()) {
      EXPECT_EQ(DateFromParts(day.year, day.month + 1, 0), day.serial);
      EXPECT_ERROR(TypeMismatch, engine::CivilDate(day.day + 1, day.month, day.year));
    }
    const DateTimeFields moment = MomentOf(day);
    const auto [year, month, date, hour, minute, second] = moment;
    // Days before 30 December 1899 count their time of day forward too.
    const double time = (hour * 3600 + minute * 60 + second) / 86400.0;
    EXPECT_EQ(FieldsOf(day.serial + time), moment);
    EXPECT_EQ(FieldsOf(DateFromParts(year, month, date) +
                       foundation::TimeFromParts(hour, minute, second)),
              moment);
  });
}

void ExpectTextsThereAndBack() {
  EachDay([](const Day& day) {
    const DateTimeFields at = MomentOf(day);
    const std::string written =
        foundation::DateTimeText(at.day, at.month, at.year, at.hour, at.minute, at.second);
    EXPECT_EQ(FieldsOf(foundation::ReadDateTime(written)), at) << written;
    const std::string figures =
        NumberText(at.day) + "/" + NumberText(at.month) + "/" + NumberText(at.year);
    EXPECT_EQ(foundation::ReadDateTime(figures), day.serial) << figures;
  });
}

TEST(EveryDay, IsReadFromItsText) {
  ExpectTextsThereAndBack();
}

TEST(EveryDay, IsReadFromItsTextInAnotherScript) {
  const support::UserNamesScope hindi(support::Hindi());
  ExpectTextsThereAndBack();
}

}  // namespace
}  // namespace nightly
