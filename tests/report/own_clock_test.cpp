// Rows and pages by a place's own clock.

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
                 "state\tX\nzone\tAmerica/New_York\tEurope/Oslo\n\n"
                 "place\tstate\tlatitude\tlongitude\tzone\n"
                 "Edison\t1\t2431\t-4464\t1\nTromso\t1\t4179\t1137\t2\n");
  }

  day::KeptPlace PlaceOf(const atlas::PlaceTexts& texts) {
    day::KeptPlace place;
    place.Set(settings, texts);
    session.Current().LatitudeText = texts.latitude;
    session.Current().LongitudeText = texts.longitude;
    return place;
  }

  void MakeFor(const atlas::PlaceTexts& of, DateTime from, DateTime to) {
    Make({from, to, 0.5, of.latitude, of.longitude, "0.0E", of.zone, of.city, of.country,
          PlaceOf(of)});
  }

  support::AppFolderScope folder;
  support::FakeSettings settings;
};

// The calculations from the record, with the zone that a row gives it, have the same times; in
// summer before sunrise, their hours are 12 off. Before sunrise the sun is that of the day before.
TEST_F(ReportByOwnClock, ARowAgreesWithTheRecord) {
  const auto texts = [](const words::DayRow& row) {
    std::string all = row.sunrise + " " + row.sunset + " " + row.daylight;
    for (const auto& [start, end] : {row.durvela, row.gulik, row.yum})
      all += " " + start + " " + end;
    return all;
  };
  day::KeptPlace place = PlaceOf(kEdison);
  for (DateTime day = DateFromParts(2026, 10, 1); day < DateFromParts(2027, 3, 1); day += 1) {
    for (const double hour : {3, 12}) {
      const std::string row = texts(RowByOwnClock(place, day + hour / 24, session).times);
      EXPECT_EQ(row, texts(RowByRecord(day + hour / 24, session))) << day;
    }
  }
  const DateTime summer = DateFromParts(2026, 6, 15) + 3 / 24.0;
  EXPECT_EQ(RowByOwnClock(place, summer, session).times.sunrise.substr(0, 2), "05");
  EXPECT_EQ(RowByRecord(summer, session).sunrise.substr(0, 2), "17");
}

// The sun's hour in Edison, by NOAA's solar calculator, and what the row notes.
TEST_F(ReportByOwnClock, ARowHasTheClockOfItsDay) {
  day::KeptPlace place = PlaceOf(kEdison);
  const auto row = [&](int month, int day, int hour) {
    const auto at = RowByOwnClock(place, DateFromParts(2026, month, day) + hour / 24.0, session);
    return at.times.sunrise.substr(0, 2) + " " + session.Current().ZoneTimeText + " " +
           std::string(at.change);
  };
  ExpectRows(row, Row(11, 1, 5, "07 +4 clocks go back"), Row(11, 1, 12, "06 +5 clocks go back"),
             Row(11, 2, 5, "06 +5 "), Row(3, 8, 12, "07 +4 clocks go forward"));
}

TEST_F(ReportByOwnClock, APageNamesTheClockAndNotesItsChange) {
  MakeFor(kEdison, DateFromParts(2026, 10, 25), DateFromParts(2026, 11, 10));
  const std::string place = "(Edison(X)  Long:74.24W  Lat:40.31N  Zone:UTC-4";
  EXPECT_EQ(target.After("Print 7665 360 "), Texts{place + ")"});
  EXPECT_EQ(target.After("Print 5365 360 "), Texts{place + ", from 1 November UTC-5)"});
  EXPECT_EQ(target.After("Print 12915 "), (Texts{"1280 clocks", "1520 go", "1760 back"}));

  atlas::PlaceTexts wordy = kEdison;
  wordy.city = "Mosynopolis - Maximianopolis - Maximianoupolis(East Macedonia and Thrace)";
  MakeFor(wordy, DateFromParts(2026, 11, 1), DateFromParts(2026, 11, 2));
  EXPECT_EQ(target.After("Print 3765 360 (Mosynopolis - Maximianop…  Long:").size(), 1U);
}

TEST_F(ReportByOwnClock, ARowWithoutSunHasDashesAndTheReportGoesOn) {
  MakeFor(kTromso, DateFromParts(2026, 5, 17), DateFromParts(2026, 5, 19));
  EXPECT_EQ(RowOf(0).find(" -"), std::string::npos);
  EXPECT_EQ(RowOf(1).substr(17), "- - - - - - - -") << RowOf(1);  // rises for the last time
  EXPECT_EQ(RowOf(2), " 19-Tue - - - - - - - - -");
  EXPECT_EQ(shown,
            "Loading.. 18 May 2026|Loading.. 19 May 2026|"
            "Loading.. 20 May 2026. No sunset on 1 day|No sunset on 1 day|");
  MakeFor(kTromso, DateFromParts(2026, 12, 30), DateFromParts(2027, 1, 2));
  EXPECT_TRUE(shown.ends_with("|No sunrise on 4 days|")) << shown;
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
