// The report from its range of days to its page files.

#include <gtest/gtest.h>

#include "foundation/text.h"
#include "report/reporting.h"
#include "support/errors.h"
#include "support/locales.h"

namespace report {
namespace {

using foundation::DateFromParts;

using Report = ReportingTest;
using ReportPage = ReportingTest;

bool Has(const std::vector<std::string>& calls, const std::string& call) {
  return std::find(calls.begin(), calls.end(), call) != calls.end();
}

// 44 letters of 100 twips, to the left of 12465.
constexpr char kPlace[] = "Print 8065 360 (Delhi  Long:77.13E  Lat:28.40N  Zone:-5.30)";

// Figures worked out independently for Delhi at noon; each at its column and row.
TEST_F(ReportPage, TellsTheFiguresOfEachDay) {
  const struct {
    int month, day;
    std::string_view row;
  } days[] = {
      {1, 1,
       "1-Sat 07:14:00 17:35:00 10:21:00 09:49:15 11:06:52 16:17:22 17:35:00 13:42:07 14:59:45"},
      {1, 10,
       "10-Mon 07:15:00 17:42:00 10:27:00 08:33:23 09:51:45 13:46:53 15:05:15 11:10:08 12:28:30"},
      {11, 30,
       "30-Wed 06:55:00 17:24:00 10:29:00 12:09:30 13:28:08 10:50:52 12:09:30 08:13:37 09:32:15"},
  };
  const int columns[] = {1125, 2250, 3420, 4500, 5730, 6810, 8010, 9120, 10320, 11460};
  for (const auto& [month, day, row] : days) {
    Reporting reporting;
    reporting.Make(DateFromParts(2011, month, 1), DateFromParts(2011, month, day));
    const auto figures = foundation::Split(row, ' ');
    for (std::size_t i = 0; i < 10; ++i) {
      const int left = columns[i] - (day >= 28 ? 15 : 0), top = 1320 + 270 * (day - 1);
      const std::string call = "Print " + std::to_string(left) + " " + std::to_string(top) + " ";
      EXPECT_TRUE(Has(reporting.Printed(), call + std::string(figures[i]))) << figures[i];
    }
  }
}

TEST_F(ReportPage, HasItsHeadsAndItsPlace) {
  Make(DateFromParts(2011, 3, 5), DateFromParts(2011, 3, 5));
  const auto printed = Printed();
  EXPECT_TRUE(Has(printed, "Print 1110 240 nqosZyk ¼ekpZ 2011½"));
  EXPECT_TRUE(Has(printed, "Print 10770 720 ;e?kaVd dky"));
  EXPECT_TRUE(Has(printed, kPlace));
  EXPECT_EQ(printed.size(), 2 + 3 + 10 + 1 + 10U);  // one row
  for (const char* rule : {"PaintPicture 720 270 12150 15", "PaintPicture 720 9750 12150 15",
                           "PaintPicture 12870 270 15 9480", "PaintPicture 2160 690 15 9060"}) {
    EXPECT_TRUE(Has(host.target.calls, rule)) << rule;
  }
}

TEST_F(ReportPage, CountsWeekdaysFromTheUsersFirst) {
  foundation::LocaleNames names = foundation::EnglishNames();
  names.firstWeekday = 2;
  const support::UserNamesScope scope(names);
  Make(DateFromParts(2011, 3, 5), DateFromParts(2011, 3, 5));
  EXPECT_TRUE(Has(Printed(), "Print 1125 1320 5-Sun"));  // a Saturday
}

TEST_F(Report, MakesAPageAMonth) {
  const auto makes = [](double from, double to, const char* pages, std::size_t calls) {
    Reporting reporting;
    reporting.Make(from, to);
    EXPECT_EQ(reporting.Pages(), pages);
    EXPECT_EQ(reporting.Printed().size(), calls) << pages;
    EXPECT_EQ(reporting.preview.PIC.place.width, 13635);
    EXPECT_EQ(reporting.status.caption, "");
  };
  makes(DateFromParts(2011, 1, 28), DateFromParts(2011, 2, 2),
        "1: Durvela January 2011 ..P1|2: Durvela February 2011 ..P2|", 16 + 10 * 2);
  makes(DateFromParts(2010, 12, 31), DateFromParts(2011, 1, 31),
        "1: Durvela December 2011 ..P1|2: Durvela January 2011 ..P2|", 16 + 10 * 31);
  // Of an empty page the static heads, and row 0 as it is made.
  makes(DateFromParts(2011, 3, 1), DateFromParts(2011, 2, 28), "1: Durvela March 2011 ..P1|",
        14 + 10);
}

// Where a day and a time added up are rounded another way than the days before.
TEST_F(Report, HasItsLastDayAtAnyTime) {
  const foundation::DateTime twoSeconds = foundation::TimeFromParts(0, 0, 2);
  MakeReport({DateFromParts(1989, 9, 1), DateFromParts(1989, 9, 30), twoSeconds, "28.40N", "77.13E",
              "82.30E", "-5.30", "Delhi", "India", status},
             preview, services);
  EXPECT_EQ(Printed().size(), 16 + 10 * 30U);
}

TEST_F(Report, LeavesAFileAMonthUntilTheNext) {
  folder.Write("temp/foreign.tmp", "x");
  folder.Write("temp/kept.txt", "x");
  Make(DateFromParts(2011, 1, 1), DateFromParts(2011, 12, 31));
  EXPECT_EQ(Files(), 13);  // one of them kept.txt
  EXPECT_TRUE(std::filesystem::exists(folder.path / "temp/prv12.tmp"));
  EXPECT_EQ(host.calls, (std::vector<std::string>{"Unload frmSPkun", "Show frmSPkun"}));
  Make(DateFromParts(2011, 1, 1), DateFromParts(2011, 1, 2));
  EXPECT_EQ(Files(), 2);
}

TEST_F(Report, KeepsItsPlaceWhateverComesInBetween) {
  yielder.between = [&](int turn) {
    EXPECT_EQ(status.caption, turn == 1   ? "Loading.. 6 March 2011"
                              : turn == 2 ? "Loading.. 7 March 2011"
                                          : "");
    session.Current().LatitudeText = "60.00N";
    session.Current().CityName = "Elsewhere";
  };
  Make(DateFromParts(2011, 3, 5), DateFromParts(2011, 3, 6));
  EXPECT_TRUE(Has(Printed(), "Print 2250 1590 06:42:00"));
  EXPECT_TRUE(Has(Printed(), kPlace));
}

TEST_F(Report, SurvivesASecondPress) {
  yielder.between = [&](int turn) {
    if (turn == 2) Make(DateFromParts(2011, 5, 1), DateFromParts(2011, 5, 2));
  };
  Make(DateFromParts(2011, 3, 5), DateFromParts(2011, 3, 9));
  EXPECT_EQ(Pages(), "1: Durvela May 2011 ..P1|2: Durvela March 2011 ..P1|");
}

TEST_F(Report, FailsWhereADayHasNoSun) {
  const foundation::DateTime day = DateFromParts(2011, 6, 5);
  const ReportInput polar = {day,     day + 1, 0.5,      "70.00N", "25.30E",
                             "30.0E", "-2",    "Tromso", "Norway", status};
  EXPECT_ERROR(InvalidCall, MakeReport(polar, preview, services));
}

}  // namespace
}  // namespace report
