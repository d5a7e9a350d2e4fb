// Reports without a window, from a range of days to drawn pages.

#include "report/receiver.h"
#include "support/locales.h"

namespace report {
namespace {

using foundation::DateFromParts;
using foundation::DateTime;
using Texts = std::vector<std::string>;

const DateTime k5March = DateFromParts(2011, 3, 5);

// For Delhi.
struct Report : Receiver {
  void MakeFor(DateTime from, DateTime to, DateTime time = 0.5) {
    Make({from, to, time, "28.40N", "77.13E", "82.30E", "-5.30", "Delhi", "India"});
  }
};
using ReportPage = Report;

// 44 letters of 100 twips each, ending at 12465.
constexpr char kPlace[] = "Print 8065 360 (Delhi  Long:77.13E  Lat:28.40N  Zone:-5.30)";

TEST_F(ReportPage, ShowsHeadingsPlaceAndRules) {
  MakeFor(k5March, k5March);
  for (const char* call :
       {"Print 1110 240 nqosZyk ¼ekpZ 2011½", "Print 10770 720 ;e?kaVd dky", kPlace,
        "PaintPicture 720 270 12150 15", "PaintPicture 720 9750 12150 15",
        "PaintPicture 12870 270 15 9480", "PaintPicture 2160 690 15 9060"}) {
    EXPECT_EQ(target.After(call), Texts{""}) << call;
  }
  EXPECT_EQ(target.After("Print ").size(), 2 + 3 + 10 + 1 + 10U);  // one row
}

// The times were calculated independently.
TEST_F(ReportPage, HasOneRowPerDay) {
  const auto lastRow = [&](int month, int day) {
    MakeFor(DateFromParts(2011, month, 1), DateFromParts(2011, month, day));
    return RowOf(day - 1);
  };
  ExpectRows(lastRow,
             Row(1, 10,
                 " 10-Mon 07:15:00 17:42:00 10:27:00 08:33:23 09:51:45 13:46:53 15:05:15 11:10:08 "
                 "12:28:30"),
             Row(3, 5,
                 " 5-Sat 06:43:00 18:23:00 11:40:00 09:38:00 11:05:30 16:55:30 18:23:00 14:00:30 "
                 "15:28:00"),
             Row(11, 30,
                 " 30-Wed 06:55:00 17:24:00 10:29:00 12:09:30 13:28:08 10:50:52 12:09:30 08:13:37 "
                 "09:32:15"));
}

TEST_F(ReportPage, CountsWeekdaysFromTheUsersFirst) {
  foundation::LocaleNames names = support::Hindi();
  names.firstWeekday = 2;
  const support::UserNamesScope scope(names);
  const DateTime thursday = DateFromParts(2026, 11, 26);
  MakeFor(thursday, thursday);
  EXPECT_EQ(target.After("Print 1125 1320 "), Texts{"26-शुक्रवा"});  // Friday, in three letters
  EXPECT_EQ(foundation::ShortWeekdayName(5), "गुरुवा");
}

TEST_F(Report, MakesOnePagePerMonth) {
  const auto made = [&](DateTime from, DateTime to, DateTime time) {
    MakeFor(from, to, time);
    return titles + std::to_string(target.After("Print ").size()) + ", " +
           std::to_string(target.After("Cls").size());
  };
  // An empty page has its fixed headings and the placeholders of row 0. In the last range, the last
  // day plus the time rounds differently from the days before.
  ExpectRows(made,
             Row(DateFromParts(2011, 1, 28), DateFromParts(2011, 2, 2), 0.5,
                 "1: Durvela January 2011 ..P1|2: Durvela February 2011 ..P2|92, 2"),
             Row(DateFromParts(2010, 12, 31), DateFromParts(2011, 1, 31), 0.5,
                 "1: Durvela December 2011 ..P1|2: Durvela January 2011 ..P2|352, 2"),
             Row(k5March, k5March - 1, 0.5, "1: Durvela March 2011 ..P1|24, 1"),
             Row(DateFromParts(1989, 9, 1), DateFromParts(1989, 9, 30), 2.0 / 86400,
                 "1: Durvela September 1989 ..P1|316, 1"));
}

TEST_F(Report, FailsOnADayWithoutSunrise) {
  const DateTime day = DateFromParts(2011, 6, 21);
  EXPECT_ERROR(InvalidCall,
               Make({day, day, 0.5, "69.40N", "18.57E", "15.0E", "-1", "Tromso", "Norway"}));
}

// Another report may begin while one is being made.
TEST_F(Report, KeepsItsPlaceIfTheRecordChanges) {
  yielder.between = [&](int turn) {
    if (turn == 1) MakeFor(DateFromParts(2011, 5, 1), DateFromParts(2011, 5, 1));
    session.Current().LatitudeText = "60.00N";
    session.Current().CityName = "Elsewhere";
  };
  MakeFor(k5March, k5March + 1);
  EXPECT_EQ(shown, "Loading.. 6 March 2011|Loading.. 2 May 2011||Loading.. 7 March 2011||");
  EXPECT_EQ(titles, "1: Durvela May 2011 ..P1|1: Durvela March 2011 ..P1|");
  EXPECT_EQ(target.After("Print 2250 1590 "), Texts{"06:42:00"});
  EXPECT_EQ(target.After(kPlace).size(), 2U);
}

}  // namespace
}  // namespace report
