#include "foundation/calendar.h"

#include <gtest/gtest.h>

#include <string>

#include "foundation/date_text.h"
#include "support/errors.h"
#include "support/locales.h"

namespace foundation {
namespace {

DateTimeFields Fields(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
  return {year, month, day, hour, minute, second};
}

TEST(Calendar, CountsFrom30December1899) {
  EXPECT_EQ(DateFromParts(1899, 12, 30), 0);
  EXPECT_EQ(DateFromParts(1900, 1, 1), 2);
  EXPECT_EQ(DateFromParts(2000, 1, 1), 36526);  // the usual serial of spreadsheets
  EXPECT_EQ(DateFromParts(100, 1, 1), -657434);
  EXPECT_EQ(DateFromParts(9999, 12, 31), 2958465);
}

TEST(Calendar, CarriesFieldsOutOfRange) {
  EXPECT_EQ(FieldsOf(DateFromParts(2011, 4, 31)), Fields(2011, 5, 1));
  EXPECT_EQ(FieldsOf(DateFromParts(2011, 3, 0)), Fields(2011, 2, 28));
  EXPECT_EQ(FieldsOf(DateFromParts(2012, 13, 1)), Fields(2013, 1, 1));
  EXPECT_EQ(FieldsOf(DateFromParts(2012, 2, 31)), Fields(2012, 3, 2));
  EXPECT_EQ(FieldsOf(DateFromParts(2012, -11, -30)), Fields(2010, 12, 1));
  EXPECT_EQ(FieldsOf(DateFromParts(2012, 3, 1) + TimeFromParts(23, 59, 60)), Fields(2012, 3, 2));
  EXPECT_EQ(FieldsOf(TimeFromParts(-1, 0, 0)), Fields(1899, 12, 29, 23));
}

TEST(Calendar, RoundsFieldsAndSecondsToTheNearest) {
  EXPECT_EQ(DateFromParts(2011, 2.5, 1.5), DateFromParts(2011, 2, 2));
  EXPECT_EQ(FieldsOf(0.999999), Fields(1899, 12, 31));
  const DateTime moment = DateFromParts(2011, 3, 5) + TimeFromParts(6, 12, 9);
  EXPECT_EQ(FieldsOf(moment), Fields(2011, 3, 5, 6, 12, 9));
  EXPECT_EQ(FieldsOf(moment - 100000), Fields(1737, 5, 20, 6, 12, 9));
}

TEST(Calendar, RefusesYearsOutside100To9999) {
  EXPECT_ERROR(InvalidCall, DateFromParts(99, 12, 31));
  EXPECT_ERROR(InvalidCall, DateFromParts(10000, 1, 1));
  EXPECT_ERROR(InvalidCall, FieldsOf(1e300));
  EXPECT_ERROR(Overflow, DateFromParts(40000, 1, 1));
}

TEST(Calendar, NumbersWeekdaysFromSunday) {
  EXPECT_EQ(WeekdayOf(DateFromParts(2011, 3, 6)), 1);
  EXPECT_EQ(WeekdayOf(DateFromParts(2011, 3, 5) + 0.999), 7);
  EXPECT_EQ(WeekdayOf(DateFromParts(1582, 10, 15)), 6);  // the first day of this calendar
}

TEST(DateText, ReadsDatesAndTimes) {
  const struct {
    const char* text;
    DateTimeFields fields;
  } kCases[] = {
      {"5-March-2011 6:12:9", Fields(2011, 3, 5, 6, 12, 9)},
      {"5 MARCH 2011", Fields(2011, 3, 5)},
      {" 5/march/2011 ", Fields(2011, 3, 5)},
      {"05 - 3 - 2011 12:00 PM", Fields(2011, 3, 5, 12)},
      {"31/1/11 12:30 am", Fields(2011, 1, 31, 0, 30)},
      {"1-1-29", Fields(2029, 1, 1)},
      {"1-1-30", Fields(1930, 1, 1)},
      {"29-February-2012", Fields(2012, 2, 29)},
      {"7:0", Fields(1899, 12, 30, 7)},
      {"23:59:59", Fields(1899, 12, 30, 23, 59, 59)},
  };
  for (const auto& [text, fields] : kCases) EXPECT_EQ(FieldsOf(ReadDateTime(text)), fields) << text;
}

TEST(DateText, RefusesWhatDoesNotExist) {
  for (const char* text : {"",
                           " ",
                           "5",
                           "5-March",
                           "29-February-2011",
                           "31-4-2011",
                           "0-1-2011",
                           "1-13-2011",
                           "5-Marchy-2011",
                           "24:00",
                           "24:0",
                           "6:60",
                           "6:12:60",
                           "6:",
                           "13:00 PM",
                           "0:30 AM",
                           "5-March-2011 24:00",
                           "5-March-2011x",
                           "5-March-20116:12",
                           "99999-1-1",
                           "1-1-99999",
                           "{invalid latitude}"}) {
    EXPECT_EQ(TryReadDateTime(text), std::nullopt) << text;
    EXPECT_ERROR(TypeMismatch, ReadDateTime(text));
  }
  EXPECT_EQ(TryReadTime("5-March-2011"), std::nullopt);
}

TEST(DateText, KnowsTheUsersMonthsAndTheEnglishOnes) {
  const DateTime date = DateFromParts(2011, 3, 5);
  {
    const support::UserNamesScope names(support::German());
    EXPECT_EQ(ReadDateTime("5-März-2011"), date);
    EXPECT_EQ(ReadDateTime("5 MÄRZ 2011"), date);
    EXPECT_EQ(ReadDateTime("5 january 2011"), DateFromParts(2011, 1, 5));  // "Januar" and a "y"
  }
  {
    const support::UserNamesScope names(support::Hindi());
    EXPECT_EQ(ReadDateTime("5 मार्च 2011"), date);
  }
  {
    // Names that begin with a number.
    LocaleNames japanese = EnglishNames();
    for (int i = 0; i < 12; ++i) {
      japanese.months[static_cast<std::size_t>(i)] = std::to_string(i + 1) + "月";
    }
    const support::UserNamesScope names(japanese);
    EXPECT_EQ(ReadDateTime("5 3月 2011"), date);
    EXPECT_EQ(ReadDateTime("5 11月 2011"), DateFromParts(2011, 11, 5));
    EXPECT_EQ(ReadDateTime("5 3 2011"), date);
  }
  // A name that begins another, and holds a blank.
  LocaleNames numbered = EnglishNames();
  numbered.months[0] = "tháng 1";
  numbered.months[10] = "tháng 11";
  const support::UserNamesScope names(numbered);
  EXPECT_EQ(ReadDateTime("5 Tháng 11 2011"), DateFromParts(2011, 11, 5));
  EXPECT_EQ(ReadDateTime("5 tháng 1 2011"), DateFromParts(2011, 1, 5));
  EXPECT_EQ(TryReadDateTime("5 März 2011"), std::nullopt);
}

}  // namespace
}  // namespace foundation
