#include "foundation/calendar.h"

#include "foundation/date_text.h"
#include "foundation/text.h"
#include "support/locales.h"
#include "support/test.h"

namespace foundation {
namespace {

DateTimeFields Fields(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
  return {year, month, day, hour, minute, second};
}

TEST(Calendar, CountsFrom30December1899AndWeekdaysFromSunday) {
  // 36526 is the serial number that spreadsheets use.
  ExpectRows(DateFromParts, Row(1899, 12, 30, 0), Row(2000, 1, 1, 36526), Row(100, 1, 1, -657434));
  ExpectRows(WeekdayOf, Row(DateFromParts(2011, 3, 6), 1),
             Row(DateFromParts(2011, 3, 5) + 0.999, 7));
}

TEST(Calendar, RoundsAndCarriesFieldsButRejectsYearsOutside100To9999) {
  ExpectRows(DateFromParts, Row(2011, 4, 31, DateFromParts(2011, 5, 1)),
             Row(2011, 3, 0, DateFromParts(2011, 2, 28)),
             Row(2012, -11, -30, DateFromParts(2010, 12, 1)),
             Row(2011, 2.5, 1.5, DateFromParts(2011, 2, 2)));
  ExpectRows(
      FieldsOf, Row(TimeFromParts(-1, 0, 0), Fields(1899, 12, 29, 23)),
      Row(0.999999, Fields(1899, 12, 31)),
      Row(DateFromParts(1737, 5, 20) + TimeFromParts(6, 12, 9), Fields(1737, 5, 20, 6, 12, 9)));
  EXPECT_ERROR(InvalidCall, DateFromParts(99, 12, 31));
  EXPECT_ERROR(InvalidCall, DateFromParts(10000, 1, 1));
  EXPECT_ERROR(InvalidCall, FieldsOf(1e300));
}

TEST(Calendar, CivilTimesAreTheSameMoments) {
  using namespace std::chrono;
  const auto momentOf = [](local_seconds time) {
    EXPECT_EQ(CivilTimeOf(DateTimeOf(time)), time);
    return DateTimeOf(time);
  };
  // Unix time 0, 13 o'clock on the day before number 0, the limits.
  ExpectRows(momentOf, Row(local_seconds(0s), 25569),
             Row(local_days(1899y / 12 / 29) + 13h, -1 + 13 / 24.0),
             Row(local_days(2026y / 11 / 1) + 1h + 30min + 59s,
                 DateFromParts(2026, 11, 1) + TimeFromParts(1, 30, 59)),
             Row(local_days(100y / 1 / 1), DateFromParts(100, 1, 1)),
             Row(local_days(10000y / 1 / 1) - 1s,
                 DateFromParts(9999, 12, 31) + TimeFromParts(23, 59, 59)));
  EXPECT_ERROR(InvalidCall, DateTimeOf(local_days(100y / 1 / 1) - 1s));
  EXPECT_ERROR(InvalidCall, DateTimeOf(local_days(10000y / 1 / 1)));
}

TEST(DateText, ReadsDatesAndTimesWithUserAndEnglishMonths) {
  const auto read = [](std::string_view text) { return FieldsOf(ReadDateTime(text)); };
  ExpectRows(read, Row("5-March-2011 6:12:9", Fields(2011, 3, 5, 6, 12, 9)),
             Row(" 5/march/2011 ", Fields(2011, 3, 5)),
             Row("29 FEBRUARY 2012", Fields(2012, 2, 29)),
             Row("05 - 3 - 2011 12:00 PM", Fields(2011, 3, 5, 12)),
             Row("31/1/29 12:30 am", Fields(2029, 1, 31, 0, 30)), Row("1-1-30", Fields(1930, 1, 1)),
             Row("7:0", Fields(1899, 12, 30, 7)));
  // Names that start with a number or with each other, contain a blank, or start an English one.
  LocaleNames names = EnglishNames();
  names.months = {"tháng 1", "Februar", "März", "मई",   "5月",      "6月",
                  "7月",     "8月",     "9月",  "10月", "tháng 11", "12月"};
  const support::UserNamesScope scope(names);
  ExpectRows(read, Row("5 Tháng 11 2011", Fields(2011, 11, 5)),
             Row("5 february 2011", Fields(2011, 2, 5)), Row("5-MÄRZ-2011", Fields(2011, 3, 5)),
             Row("5 मई 2011", Fields(2011, 4, 5)), Row("5 5月 2011", Fields(2011, 5, 5)),
             Row("5 7 2011", Fields(2011, 7, 5)));
}

TEST(DateText, RejectsInvalidTexts) {
  constexpr std::string_view kTexts =
      "| "
      "|5|5-March|29-February-2011|31-4-2011|0-1-2011|1-13-2011|5-Marchy-2011|5-März-2011|24:00|24:"
      "0|6:60|"
      "6:12:60|6:|13:00 PM|0:30 AM|5-March-2011 24:00|5-March-2011x|5-March-20116:12|99999-1-1|"
      "1-1-99999|{invalid latitude}";
  for (const auto text : Split(kTexts, '|')) {
    EXPECT_EQ(TryReadDateTime(text), std::nullopt) << text;
    EXPECT_ERROR(TypeMismatch, ReadDateTime(text));
  }
  EXPECT_EQ(TryReadTime("5-March-2011"), std::nullopt);
}

TEST(DateText, ReadsTypedDates) {
  const auto read = [](auto text) { return FieldsOf(TryReadTypedDate(text).value_or(0)); };
  ExpectRows(read, Row("05/March/2011", Fields(2011, 3, 5)), Row("1/12/2026", Fields(2026, 12, 1)),
             Row("5. mar. 2011", Fields(2011, 3, 5)), Row("5.3.2011", Fields(2011, 3, 5)),
             Row(" 30-SEPT-11 ", Fields(2011, 9, 30)), Row("31/de/9999", Fields(9999, 12, 31)),
             Row("1 ja 100", Fields(100, 1, 1)));
  constexpr std::string_view kTexts =
      "|5/3|5/ma/2011|1/j/2011|31/d/2011|5/marchs/2011|mar 5 2011|5 6 mar|5 mar 6 2011|29/feb/2011|"
      "1/1/10000|6:12|5/3/2011 6:12|2011-3-5|12.30";
  for (const auto text : Split(kTexts, '|')) EXPECT_FALSE(TryReadTypedDate(text)) << text;

  LocaleNames names = EnglishNames();  // Finnish, where "mar" is November; and a Hindi July
  names.months[2] = "maaliskuu";
  names.months[5] = "kesäkuu";
  names.months[6] = "जुलाई";
  names.months[10] = "marraskuu";
  names.datedMonths[5] = "kesäkuuta";
  const support::UserNamesScope scope(names);
  ExpectRows(read, Row("5/mar/2011", Fields(2011, 11, 5)), Row("5 MAA 2011", Fields(2011, 3, 5)),
             Row("5. KESÄKUUTA 2011", Fields(2011, 6, 5)), Row("5 जु 2011", Fields(2011, 7, 5)),
             Row("5 jul 2011", Fields(2011, 7, 5)));
}

}  // namespace
}  // namespace foundation
