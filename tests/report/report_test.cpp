// Reports, from a range of days to drawn pages.

#include <gtest/gtest.h>

#include <algorithm>

#include "report/reporting.h"
#include "support/errors.h"
#include "support/locales.h"
#include "support/table.h"

namespace report {
namespace {

using foundation::DateFromParts;
using support::Row;

const foundation::DateTime k5March = DateFromParts(2011, 3, 5);

struct Report : ReportingTest {
  // Counts the calls that begin with these words.
  auto Drawn(const std::string& what) const {
    return std::ranges::count_if(target.calls, [&](const std::string& call) {
      return (call + " ").starts_with(what + " ");
    });
  }
};
using ReportPage = Report;

// 44 letters of 100 twips each, ending at 12465.
constexpr char kPlace[] = "Print 8065 360 (Delhi  Long:77.13E  Lat:28.40N  Zone:-5.30)";

TEST_F(ReportPage, ShowsHeadingsPlaceAndTimes) {
  Make(InDelhi(k5March, k5March));
  // The times were calculated independently.
  for (const char* call :
       {"Print 1110 240 nqosZyk ¼ekpZ 2011½", "Print 10770 720 ;e?kaVd dky", kPlace,
        "Print 1125 1320 5-Sat", "Print 2250 1320 06:43:00", "Print 3420 1320 18:23:00",
        "Print 4500 1320 11:40:00", "Print 5730 1320 09:38:00", "Print 6810 1320 11:05:30",
        "Print 8010 1320 16:55:30", "Print 9120 1320 18:23:00", "Print 10320 1320 14:00:30",
        "Print 11460 1320 15:28:00", "PaintPicture 720 270 12150 15",
        "PaintPicture 720 9750 12150 15", "PaintPicture 12870 270 15 9480",
        "PaintPicture 2160 690 15 9060"}) {
    EXPECT_EQ(Drawn(call), 1) << call;
  }
  EXPECT_EQ(Drawn("Print"), 2 + 3 + 10 + 1 + 10);  // one row
}

// The times of further days, calculated independently.
TEST_F(ReportPage, HasOneRowPerDay) {
  const struct {
    int month, day;
    const char* row;
  } days[] = {
      {1, 1, "07:14:00 17:35:00 10:21:00 09:49:15 11:06:52 16:17:22 17:35:00 13:42:07 14:59:45"},
      {1, 10, "07:15:00 17:42:00 10:27:00 08:33:23 09:51:45 13:46:53 15:05:15 11:10:08 12:28:30"},
      {11, 30, "06:55:00 17:24:00 10:29:00 12:09:30 13:28:08 10:50:52 12:09:30 08:13:37 09:32:15"}};
  for (const auto& [month, day, row] : days) {
    target.calls.clear();
    Make(InDelhi(DateFromParts(2011, month, 1), DateFromParts(2011, month, day)));
    const int top = 1320 + 270 * (day - 1);
    std::string drawn;
    for (const int left : {2250, 3420, 4500, 5730, 6810, 8010, 9120, 10320, 11460}) {
      const std::string at =
          "Print " + std::to_string(left - (day >= 28 ? 15 : 0)) + " " + std::to_string(top) + " ";
      for (const std::string& call : target.calls) {
        if (call.starts_with(at)) drawn += (drawn.empty() ? "" : " ") + call.substr(at.size());
      }
    }
    EXPECT_EQ(drawn, row);
  }
}

TEST_F(ReportPage, CountsWeekdaysFromTheUsersFirst) {
  foundation::LocaleNames names = foundation::EnglishNames();
  names.firstWeekday = 2;
  const support::UserNamesScope scope(names);
  Make(InDelhi(k5March, k5March));
  EXPECT_EQ(Drawn("Print 1125 1320 5-Sun"), 1);  // a Saturday
}

TEST_F(ReportPage, ShortensWeekdaysToThreeLetters) {
  const support::UserNamesScope scope(support::Hindi());
  Make(InDelhi(DateFromParts(2026, 11, 26), DateFromParts(2026, 11, 27)));
  EXPECT_EQ(Drawn("Print 1125 1320 26-गुरुवा"), 1);
  EXPECT_EQ(Drawn("Print 1125 1590 27-शुक्रवा"), 1);
  EXPECT_EQ(foundation::ShortWeekdayName(5), "गुरुवा");
}

TEST_F(Report, MakesOnePagePerMonth) {
  const auto made = [&](double from, double to) {
    target.calls.clear();
    titles.clear();
    Make(InDelhi(from, to));
    std::string pages;
    for (const std::string& title : titles) pages += title + "|";
    return pages + std::to_string(Drawn("Print")) + ", " + std::to_string(Drawn("Cls"));
  };
  // An empty page has its fixed headings and the placeholders of row 0.
  ExpectRows(made,
             Row(DateFromParts(2011, 1, 28), DateFromParts(2011, 2, 2),
                 "1: Durvela January 2011 ..P1|2: Durvela February 2011 ..P2|92, 2"),
             Row(DateFromParts(2010, 12, 31), DateFromParts(2011, 1, 31),
                 "1: Durvela December 2011 ..P1|2: Durvela January 2011 ..P2|352, 2"),
             Row(k5March, k5March - 1, "1: Durvela March 2011 ..P1|24, 1"));
  EXPECT_EQ(width, 13635);
}

// In this range, the last day plus the time rounds differently from the days before.
TEST_F(Report, IncludesItsLastDayAtAnyTime) {
  Make(InDelhi(DateFromParts(1989, 9, 1), DateFromParts(1989, 9, 30),
               foundation::TimeFromParts(0, 0, 2)));
  EXPECT_EQ(Drawn("Print 1110 9150 30-Sat"), 1);  // the last four rows are further left
}

TEST_F(Report, FailsOnADayWithoutSunrise) {
  const foundation::DateTime day = DateFromParts(2011, 6, 21);
  EXPECT_ERROR(InvalidCall,
               Make({day, day, 0.5, "69.40N", "18.57E", "15.0E", "-1", "Tromso", "Norway"}));
}

TEST_F(Report, KeepsItsPlaceIfTheRecordChanges) {
  std::string shown;
  yielder.between = [&](int turn) {
    shown += progress + "|";
    if (turn == 1) Make(InDelhi(DateFromParts(2011, 5, 1), DateFromParts(2011, 5, 1)));
    session.Current().LatitudeText = "60.00N";
    session.Current().CityName = "Elsewhere";
  };
  Make(InDelhi(k5March, k5March + 1));
  EXPECT_EQ(shown, "Loading.. 6 March 2011|Loading.. 2 May 2011|Loading.. 7 March 2011|");
  EXPECT_EQ(progress, "");
  EXPECT_EQ(titles,
            (std::vector<std::string>{"1: Durvela May 2011 ..P1", "1: Durvela March 2011 ..P1"}));
  EXPECT_EQ(Drawn("Print 2250 1590 06:42:00"), 1);
  EXPECT_EQ(Drawn(kPlace), 2);
}

}  // namespace
}  // namespace report
