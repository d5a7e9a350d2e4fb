// The timetable by the place's own clock.

#include "forms/moment_picker.h"
#include "screens/timetable.h"
#include "support/test.h"

namespace screens {
namespace {

using namespace std::chrono;
using foundation::DateFromParts;

struct TimetableByOwnClock : TimetableByClock {
  TimetableByOwnClock() : TimetableByClock(atlas::ClockChoice::Own) {
    picker.folder.Write("atlas/USA.index",
                        "state\tNew Jersey\n"
                        "zone\tAmerica/New_York\tEurope/Oslo\n"
                        "\n"
                        "place\tstate\tlatitude\tlongitude\tzone\n"
                        "Edison\t1\t2431\t-4464\t1\n"
                        "Tromso\t1\t4179\t1137\t2\n");
    SaveDefault("country", "USA");
    SaveDefault("zonetime", "+6");
    GoTo("Edison(New Jersey)", "40.31N", "74.24W");
  }

  void GoTo(const char* city, const char* latitude, const char* longitude) {
    SaveDefault("city", city);
    SaveDefault("lat", latitude);
    SaveDefault("long", longitude);
    form.Form_Load();
  }

  void SetRange(double from, double to) {
    forms::SetMoment(form.DT1, from);
    forms::SetMoment(form.DT2, to);
  }
};

// At 4 in the morning of 2 November in India, it is half past five in the afternoon of the 1st in
// New Jersey.
TEST_F(TimetableByOwnClock, BeginsOnTheDayOfThePlace) {
  const auto today = [&](atlas::ClockChoice choice) {
    atlas::SaveClockChoice(settings, choice);
    session.Current().Day = 0;
    form.Form_Load();
    const auto& record = session.Current();
    EXPECT_EQ(form.DT1.moment, DateFromParts(record.Year, record.Month, record.Day));
    return std::pair<int, int>(record.Day, record.Hour);
  };
  clock.now = DateFromParts(2026, 11, 2) + 4.0 / 24;
  ExpectRows(today, Row(atlas::ClockChoice::Own, std::pair(1, 17)),
             Row(atlas::ClockChoice::Country, std::pair(2, 4)));
}

TEST_F(TimetableByOwnClock, NamesTheClockInPlaceOfTheZone) {
  SetRange(DateFromParts(2026, 10, 25), DateFromParts(2026, 11, 10));
  EXPECT_EQ(form.lblClock.caption, "EDT, UTC-4, from 1 November UTC-5");
  const auto shown = [&](const char* latitude) {
    GoTo("Edison(New Jersey)", latitude, "74.24W");
    SetRange(DateFromParts(2026, 12, 1), DateFromParts(2026, 11, 1));
    for (const forms::Control* label : {&form.ZoneCaption, &form.lblZone, &form.lblZoneTime}) {
      EXPECT_NE(label->visible, form.lblClock.visible);
    }
    return form.lblClock.visible ? form.lblClock.caption + "|" + form.ClockNote.caption : "zone";
  };
  ExpectRows(shown, Row("40.31N", "EST, UTC-5|"),
             Row("41.31N", "EST, UTC-5|The clock of the nearest place that is known"),
             Row("x", "UTC-6|The country's clock, without daylight saving"));
  atlas::SaveClockChoice(settings, atlas::ClockChoice::Country);
  EXPECT_EQ(shown("40.31N"), "zone");
}

// Sunday's eighth part of 06:28 to 16:54 (NOAA 06:27:38 and 16:54:07).
TEST_F(TimetableByOwnClock, NotesAChangeBesideItsRow) {
  SetRange(DateFromParts(2026, 11, 1), DateFromParts(2026, 11, 2));
  const Calls drawn = QuickView();
  const Calls once = {"FontSize 13",         "Cls",
                      "FontSize 9",          "Print 6060 0 clocks go back",
                      "FontSize 13",         "Print 200 0 1-11-2026",
                      "Print 1700 0 Sunday", "Print 3200 0 15:35:45",
                      "Print 4400 0 to",     "Print 4900 0 16:54:00"};
  // Once more on the wider page.
  EXPECT_EQ(Calls(drawn.begin(), drawn.begin() + 10), once);
  EXPECT_EQ(Calls(drawn.begin() + 10, drawn.end()), once);
  EXPECT_EQ(form.picRes.place.width, 6060 + 14 * 100 + 60);
  SetRange(DateFromParts(2026, 11, 2), DateFromParts(2026, 11, 3));
  QuickView();
  EXPECT_EQ(form.picRes.place.width, 6000);
}

TEST_F(TimetableByOwnClock, GoesOnWithDashesWhereTheSunStaysUp) {
  GoTo("Tromso(New Jersey)", "69.39N", "18.57E");
  SetRange(DateFromParts(2026, 6, 1), DateFromParts(2026, 7, 1));
  QuickView();
  EXPECT_EQ(host.target.After("Print 3200 "), host.target.After("Print 4900 "));
  EXPECT_EQ(host.target.After("Print 3200 9860 "), (Calls{"-", "-"}));
  EXPECT_EQ(host.target.After("Print 6060 9860 "), (Calls(2, "The sun does not set")));
}

TEST_F(TimetableByOwnClock, MarksAListOfAnotherClockAndReportsByIt) {
  const auto reportedBy = [&] {
    form.Form_Activate();
    EXPECT_TRUE(form.picRes.faded);
    form.cmdShow.onClick();
    EXPECT_FALSE(form.picRes.faded);
    form.cmdPreview.onClick();
    return reported.substr(reported.find("USA"));
  };
  const atlas::PlaceTexts edison = {"USA", "Edison(New Jersey)", "40.31N", "74.24W", "+6"};
  atlas::SaveChosenZone(settings, edison, "Asia/Kolkata");
  EXPECT_EQ(reportedBy(), "USA Asia/Kolkata ");
  atlas::SaveClockChoice(settings, atlas::ClockChoice::Country);
  EXPECT_EQ(reportedBy(), "USA country's ");
}

}  // namespace
}  // namespace screens
