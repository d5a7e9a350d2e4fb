// Rows and pages by a place's own clock. Sunrise and sunset in Edison are those of the NOAA solar
// calculator, to the second; the solar series has whole minutes, up to two of them away.

#include <gtest/gtest.h>

#include "foundation/time_text.h"
#include "report/own_clock_row.h"
#include "report/receiver.h"
#include "support/app_folder.h"

namespace report {
namespace {

using foundation::DateFromParts;
using foundation::DateTime;
using Texts = std::vector<std::string>;

const atlas::PlaceTexts kEdison = {"World", "Edison(X)", "40.31N", "74.24W", "+6"};
const atlas::PlaceTexts kTromso = {"World", "Tromso(X)", "69.39N", "18.57E", "-1"};

struct ReportByOwnClock : Receiver {
  ReportByOwnClock() {
    folder.Write("atlas/World.index",
                 "state\tX\n"
                 "zone\tAmerica/New_York\tEurope/Oslo\n"
                 "\n"
                 "place\tstate\tlatitude\tlongitude\tzone\n"
                 "Edison\t1\t2431\t-4464\t1\n"
                 "Tromso\t1\t4179\t1137\t2\n");
  }

  day::KeptPlace PlaceOf(const atlas::PlaceTexts& texts) {
    day::KeptPlace place;
    place.Set(settings, texts);
    session.Current().LatitudeText = texts.latitude;
    session.Current().LongitudeText = texts.longitude;
    return place;
  }

  void Make(const atlas::PlaceTexts& of, DateTime from, DateTime to, DateTime time = 0.5) {
    Clear();
    MakeReport({from, to, time, of.latitude, of.longitude, "0.0E", of.zone, of.city, of.country,
                PlaceOf(of)},
               session, yielder, *this);
  }

  std::string RecordZone() const {
    return session.Current().ZoneMeridianText + " " + session.Current().ZoneTimeText;
  }

  support::AppFolderScope folder;
  support::FakeSettings settings;
};

// With hour 5 the sun is that of the day before, by the clock of that day.
TEST_F(ReportByOwnClock, ARowHasTheSunAndTheZoneOfItsDay) {
  day::KeptPlace place = PlaceOf(kEdison);
  const struct {
    int month, day, hour;
    const char *rise, *set, *zone, *change;
  } kRows[] = {{10, 31, 12, "07:26:28", "17:55:19", "60.00W +4", ""},
               {11, 1, 5, "07:26:28", "17:55:19", "60.00W +4", "clocks go back"},
               {11, 1, 12, "06:27:38", "16:54:07", "75.00W +5", "clocks go back"},
               {11, 2, 5, "06:27:38", "16:54:07", "75.00W +5", ""},
               {3, 8, 7, "06:21:56", "17:55:47", "75.00W +5", "clocks go forward"},
               {3, 8, 12, "07:20:21", "18:56:53", "60.00W +4", "clocks go forward"}};
  for (const auto& [month, day, hour, rise, set, zone, change] : kRows) {
    SCOPED_TRACE(std::to_string(day) + "." + std::to_string(month) + " " + std::to_string(hour));
    const OwnClockRow row =
        RowByOwnClock(place, DateFromParts(2026, month, day) + hour / 24.0, session);
    const auto apart = [](std::string_view a, std::string_view b) {
      return 3600 * (foundation::TimeTextToDecimal(a) - foundation::TimeTextToDecimal(b));
    };
    EXPECT_NEAR(apart(row.times.sunrise, rise), 0, 132);
    EXPECT_NEAR(apart(row.times.sunset, set), 0, 132);
    EXPECT_EQ(RecordZone(), zone);
    EXPECT_EQ(row.change, change);
  }
}

// The calculations from the record, with the zone that a row gives it, have the same times; in
// summer before sunrise, their hours are 12 off.
TEST_F(ReportByOwnClock, ARowAgreesWithTheRecord) {
  const auto texts = [](const words::DayRow& row) {
    std::string all = row.sunrise + " " + row.sunset + " " + row.daylight;
    for (const auto& [start, end] : {row.durvela, row.gulik, row.yum})
      all += " " + start + " " + end;
    return all;
  };
  day::KeptPlace place = PlaceOf(kEdison);
  for (int day = 0; day < 150; ++day) {
    for (const double hour : {3, 12}) {
      const DateTime moment = DateFromParts(2026, 10, 1) + day + hour / 24;
      const std::string row = texts(RowByOwnClock(place, moment, session).times);
      EXPECT_EQ(row, texts(RowByRecord(moment, session))) << day;
    }
  }
  const DateTime summer = DateFromParts(2026, 6, 15) + 3 / 24.0;
  EXPECT_EQ(RowByOwnClock(place, summer, session).times.sunrise.substr(0, 2), "05");
  EXPECT_EQ(RowByRecord(summer, session).sunrise.substr(0, 2), "17");
}

TEST_F(ReportByOwnClock, APageNamesTheClockAndNotesItsChange) {
  Make(kEdison, DateFromParts(2026, 10, 25), DateFromParts(2026, 11, 10));
  const std::string place = "(Edison(X)  Long:74.24W  Lat:40.31N  Zone:UTC-4";
  EXPECT_EQ(target.After("Print 7665 360 "), Texts{place + ")"});
  EXPECT_EQ(target.After("Print 5365 360 "), Texts{place + ", from 1 November UTC-5)"});
  EXPECT_EQ(target.After("Print 12915 "), (Texts{"1280 clocks", "1520 go back"}));
  EXPECT_EQ(progress, "");

  atlas::PlaceTexts wordy = kEdison;
  wordy.city = "Mosynopolis - Maximianopolis - Maximianoupolis(East Macedonia and Thrace)";
  Make(wordy, DateFromParts(2026, 11, 1), DateFromParts(2026, 11, 2));
  EXPECT_EQ(target.After("Print 3765 360 (Mosynopolis - Maximianop…  Long:").size(), 1U);
}

TEST_F(ReportByOwnClock, ARowWithoutSunHasDashesAndTheReportGoesOn) {
  std::string shown;
  yielder.between = [&](int) { shown += progress + "|"; };
  Make(kTromso, DateFromParts(2026, 5, 17), DateFromParts(2026, 5, 19));
  EXPECT_EQ(RowOf(0).find(" -"), std::string::npos);
  EXPECT_EQ(RowOf(1).substr(17), "- - - - - - - -") << RowOf(1);  // rises for the last time
  EXPECT_EQ(RowOf(2), " 19-Tue - - - - - - - - -");
  EXPECT_EQ(shown + progress,
            "Loading.. 18 May 2026|Loading.. 19 May 2026|"
            "Loading.. 20 May 2026. No sunset on 1 day|No sunset on 1 day");
  Make(kTromso, DateFromParts(2026, 5, 1), DateFromParts(2027, 1, 31));
  EXPECT_TRUE(titles.ends_with("|9: Durvela January 2027 ..P9|")) << titles;
}

// A latitude that cannot be read is 0 in calculations from the record.
TEST_F(ReportByOwnClock, ARowOfAnUnknownPlaceIsTheRecords) {
  day::KeptPlace place = PlaceOf({"World", "Nowhere", "north", "74.24W", "+5"});
  const DateTime noon = DateFromParts(2026, 3, 20) + 0.5;
  const OwnClockRow row = RowByOwnClock(place, noon, session);
  EXPECT_EQ(row.times.sunrise, RowByRecord(noon, session).sunrise);
  session.Current().LatitudeText = "80.00N";
  EXPECT_EQ(RowByOwnClock(place, noon + 90, session).times.durvela.end, "-");
}

}  // namespace
}  // namespace report
