// The dashboard by the place's own clock. Sunrise and sunset are PyEphem's (horizon -0:50, pressure
// 0, use_center), offsets and letters those of Python's zoneinfo.

#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "foundation/time_text.h"
#include "support/app_folder.h"
#include "support/dashboard.h"
#include "support/table.h"

namespace screens {
namespace {

using namespace std::chrono;
using clocks::Instant;
using support::Row;

constexpr const char* kIndex =
    "state\tX\n"
    "zone\tAsia/Kolkata\tEurope/London\tAmerica/New_York\tAsia/Kathmandu\tAustralia/Sydney\t"
    "Atlantic/Reykjavik\tAmerica/Argentina/Ushuaia\tAmerica/Guayaquil\tPacific/Apia\t"
    "Europe/Helsinki\tPacific/Kiritimati\tEurope/Oslo\n"
    "\n"
    "place\tstate\tlatitude\tlongitude\tzone\n"
    "Delhi\t1\t1720\t4633\t1\n"
    "Ujjain\t1\t1391\t4546\t1\n"
    "London\t1\t3091\t-8\t2\n"
    "New York\t1\t2443\t-4440\t3\n"
    "Kathmandu\t1\t1663\t5119\t4\n"
    "Sydney\t1\t-2033\t9072\t5\n"
    "Reykjavik\t1\t3849\t-1317\t6\n"
    "Ushuaia\t1\t-3288\t-4098\t7\n"
    "Quito\t1\t-13\t-4710\t8\n"
    "Apia\t1\t-830\t-10306\t9\n"
    "Uusikaupunki\t1\t3648\t1285\t10\n"
    "Kiritimati\t1\t112\t-9444\t11\n"
    "Tromso\t1\t4179\t1137\t12\n";

const std::map<std::string, std::pair<std::string, std::string>> kCoordinates = {
    {"Delhi", {"28.40N", "77.13E"}},        {"Ujjain", {"23.11N", "75.46E"}},
    {"London", {"51.31N", "0.08W"}},        {"New York", {"40.43N", "74.00W"}},
    {"Kathmandu", {"27.43N", "85.19E"}},    {"Sydney", {"33.53S", "151.12E"}},
    {"Reykjavik", {"64.09N", "21.57W"}},    {"Ushuaia", {"54.48S", "68.18W"}},
    {"Quito", {"0.13S", "78.30W"}},         {"Apia", {"13.50S", "171.46W"}},
    {"Uusikaupunki", {"60.48N", "21.25E"}}, {"Kiritimati", {"1.52N", "157.24W"}},
    {"Tromso", {"69.39N", "18.57E"}}};

constexpr auto kJuly = 2026y / 7 / 1;

// On a machine in India, with a country that is taken to keep India's time.
struct ByOwnClock : Dashboard {
  ByOwnClock() { folder.Write("atlas/World.index", kIndex); }
  explicit ByOwnClock(const std::string& place) : ByOwnClock() { GoTo(place); }

  void GoTo(const std::string& place) {
    const auto& [latitude, longitude] = kCoordinates.at(place);
    SaveDefault("country", "World");
    SaveDefault("city", place + "(X)");
    SaveDefault("lat", latitude);
    SaveDefault("long", longitude);
  }
  void TickAtUtc(year_month_day date, seconds time) {
    clock.SetInstant(sys_days(date) + time);
    form.Timer1_Timer();
  }
  std::string Moment() const { return form.lblDate.caption + " " + form.lblTime.caption; }
  std::string RecordZone() const {
    return session.Current().ZoneMeridianText + " " + session.Current().ZoneTimeText;
  }
  std::string Picture() const { return WordsOf(*form.Image1.picture); }

  support::AppFolderScope folder;
};

double SecondsOf(std::string_view time) {
  return 3600 * foundation::TimeTextToDecimal(time);
}

// The series' own accuracy is 132 seconds.
TEST(OwnClock, ShowsTheSunOfCitiesAllOverTheWorld) {
  const struct {
    const char* place;
    bool summer;  // 15 July 2026 instead of 15 January
    int utcOfNoon;
    const char *clock, *rise, *set;
  } kDays[] = {{"Delhi", false, 7, "IST, UTC+5:30", "07:15:03", "17:46:02"},
               {"Delhi", true, 7, "IST, UTC+5:30", "05:33:02", "19:20:58"},
               {"Ujjain", false, 7, "IST, UTC+5:30", "07:10:23", "18:02:16"},
               {"Ujjain", true, 7, "IST, UTC+5:30", "05:49:59", "19:15:40"},
               {"London", false, 12, "GMT, UTC", "07:59:31", "16:20:45"},
               {"London", true, 12, "BST, UTC+1", "05:00:51", "21:11:29"},
               {"New York", false, 17, "EST, UTC-5", "07:17:52", "16:53:21"},
               {"New York", true, 17, "EDT, UTC-4", "05:37:45", "20:25:53"},
               {"Kathmandu", false, 7, "UTC+5:45", "06:55:46", "17:30:30"},
               {"Kathmandu", true, 7, "UTC+5:45", "05:17:38", "19:01:34"},
               {"Sydney", false, 2, "AEDT, UTC+11", "05:59:29", "20:09:02"},
               {"Sydney", true, 2, "AEST, UTC+10", "06:58:16", "17:04:16"},
               {"Reykjavik", false, 13, "GMT, UTC", "10:54:58", "16:20:04"},
               {"Reykjavik", true, 13, "GMT, UTC", "03:40:57", "23:24:18"},
               {"Ushuaia", false, 16, "UTC-3", "05:22:27", "22:01:49"},
               {"Ushuaia", true, 16, "UTC-3", "09:47:21", "17:31:30"},
               {"Quito", false, 17, "UTC-5", "06:19:29", "18:27:27"},
               {"Quito", true, 17, "UTC-5", "06:16:46", "18:23:17"},
               {"Apia", false, -1, "UTC+13", "06:10:33", "19:01:53"},
               {"Apia", true, -1, "UTC+13", "06:51:40", "18:14:27"},
               {"Uusikaupunki", false, 10, "EET, UTC+2", "09:28:27", "15:59:30"},
               {"Uusikaupunki", true, 10, "EEST, UTC+3", "04:29:57", "22:49:13"},
               {"Kiritimati", false, -2, "UTC+14", "06:38:02", "18:39:33"},
               {"Kiritimati", true, -2, "UTC+14", "06:28:59", "18:42:06"}};
  for (const auto& day : kDays) {
    SCOPED_TRACE(std::string(day.place) + (day.summer ? " in July" : " in January"));
    ByOwnClock d(day.place);
    const std::string moments[] = {"15 January 2026", "15 July 2026"};
    d.TickAtUtc(day.summer ? 2026y / 7 / 15 : 2026y / 1 / 15, hours(day.utcOfNoon));
    EXPECT_EQ(d.form.lblDate.caption, moments[day.summer]);
    EXPECT_EQ(d.form.lblClock.caption, day.clock);
    EXPECT_NEAR(SecondsOf(d.form.lblSR.caption), SecondsOf(day.rise), 132);
    EXPECT_NEAR(SecondsOf(d.form.lblSS.caption), SecondsOf(day.set), 132);
  }
}

TEST(OwnClock, ShowsTheInstantWhateverTheMachinesZone) {
  const auto moment = [](const char* place, year_month_day date, seconds utc, hours machine) {
    ByOwnClock d(place);
    d.clock.east = machine;
    d.TickAtUtc(date, utc);
    EXPECT_EQ(PlaceOf(d.form),
              Words("World", std::string(place) + "(X)", kCoordinates.at(place).first,
                    kCoordinates.at(place).second, "82.30E", "-5.30"));
    return d.Moment() + " " + d.form.lblClock.caption;
  };
  for (const hours machine : {-12h, 0h, 14h}) {
    ExpectRows([&](auto... row) { return moment(row..., machine); },
               Row("London", kJuly, 12h + 5s, "1 July 2026 13:0:5 BST, UTC+1"),
               Row("London", 2026y / 3 / 29, 1h - 1s, "29 March 2026 0:59:59 GMT, UTC"),
               Row("London", 2026y / 3 / 29, 1h, "29 March 2026 2:0:0 BST, UTC+1"),
               Row("London", 2026y / 10 / 25, 1h - 1s, "25 October 2026 1:59:59 BST, UTC+1"),
               Row("London", 2026y / 10 / 25, 1h, "25 October 2026 1:0:0 GMT, UTC"),
               // Both half past one of the night when America's clocks go back.
               Row("New York", 2026y / 11 / 1, 5h + 30min, "1 November 2026 1:30:0 EDT, UTC-4"),
               Row("New York", 2026y / 11 / 1, 6h + 30min, "1 November 2026 1:30:0 EST, UTC-5"),
               Row("New York", 2026y / 3 / 8, 7h, "8 March 2026 3:0:0 EDT, UTC-4"),
               Row("Kathmandu", 2025y / 12 / 31, 18h + 15min, "1 January 2026 0:0:0 UTC+5:45"),
               Row("Kiritimati", kJuly, 10h, "2 July 2026 0:0:0 UTC+14"));
  }
}

// The record's zone is the one at noon of the day whose sun is shown.
TEST(OwnClock, BeforeSunriseShowsTheSunOfTheDayBeforeByItsOwnHour) {
  ByOwnClock d("New York");
  d.TickAtUtc(2026y / 11 / 1, 11h + 25min + 59s);  // 06:25:59 EST
  EXPECT_EQ(d.form.lblSR.caption, "07:25:00");     // EDT, as PyEphem
  EXPECT_NEAR(SecondsOf(d.form.lblSS.caption), SecondsOf("17:53:24"), 60);
  EXPECT_EQ(d.RecordZone(), "60.00W +4");
  // Saturday's light by the rule of Sunday: its last eighth.
  EXPECT_EQ(d.form.lblDurvela.caption.substr(9), d.form.lblSS.caption);
  d.TickAtUtc(2026y / 11 / 1, 11h + 26min);
  EXPECT_EQ(d.form.lblSR.caption, "06:26:00");
  EXPECT_EQ(d.RecordZone(), "75.00W +5");

  d.TickAtUtc(2026y / 3 / 8, 10h + 50min);  // 06:50 EDT, half an hour before sunrise
  EXPECT_NEAR(SecondsOf(d.form.lblSR.caption), SecondsOf("06:20:27"), 60);
  EXPECT_NEAR(SecondsOf(d.form.lblSS.caption), SecondsOf("17:54:02"), 60);
  EXPECT_EQ(d.RecordZone(), "75.00W +5");
  d.TickAtUtc(2026y / 3 / 8, 12h);
  EXPECT_NEAR(SecondsOf(d.form.lblSR.caption), SecondsOf("07:18:51"), 60);
  EXPECT_EQ(d.RecordZone(), "60.00W +4");
}

// As by the country's clock, worked out by hand from the weekday.
TEST(OwnClock, DurvelaGoesByTheWeekdayOfTheDateEvenBeforeSunrise) {
  ByOwnClock d("Delhi");
  const auto figures = [&](int month, int day, int hour, int minute, int second) {
    d.TickAt(2011, month, day, hour, minute, second);
    return d.Figures();
  };
  ExpectRows(figures, Row(3, 5, 6, 42, 59, "06:44:00 18:23:00 09:38:45-11:06:07"),
             Row(3, 5, 6, 43, 0, "06:43:00 18:23:00 09:38:00-11:05:30"),
             Row(3, 1, 0, 0, 0, "06:48:00 18:20:00 15:27:00-16:53:30"));
}

TEST(OwnClock, SaysWhyThereIsNoSunriseOrSunset) {
  ByOwnClock d("Tromso");
  d.TickAtUtc(2026y / 6 / 21, 10h);
  EXPECT_EQ(d.Figures(), "none none No sunset today");
  EXPECT_EQ(d.Picture(), "The sun does not set");
  d.TickAtUtc(2026y / 12 / 21, 10h);
  EXPECT_EQ(d.Figures(), "none none No sunrise today");
  EXPECT_EQ(d.Picture(), "The sun does not rise");
  // Beyond 63 degrees, on a day with both.
  d.TickAtUtc(2026y / 1 / 20, 10h);
  EXPECT_EQ(d.Picture().find("The sun"), std::string::npos);
  EXPECT_NE(d.form.lblDurvela.caption.find('-'), std::string::npos);
  d.GoTo("Delhi");
  d.TickAtUtc(2011y / 3 / 5, 6h);
  EXPECT_EQ(d.Figures(), "06:43:00 18:23:00 09:38:00-11:05:30");
}

// At Uusikaupunki the series has a rise at 24:00.
TEST(OwnClock, ShowsTheEnginesSunWhereTheSeriesFails) {
  ByOwnClock d("Uusikaupunki");
  d.TickAtUtc(2026y / 3 / 18, 10h);
  EXPECT_NEAR(SecondsOf(d.form.lblSR.caption), SecondsOf("06:42:28"), 30);
  EXPECT_NEAR(SecondsOf(d.form.lblSS.caption), SecondsOf("18:43:40"), 30);
}

TEST(OwnClock, PictureAndLabelsAgreeInEveryMinute) {
  const std::pair<const char*, year_month_day> kDays[] = {{"New York", 2026y / 11 / 1},
                                                          {"Reykjavik", kJuly},
                                                          {"Uusikaupunki", 2026y / 3 / 18},
                                                          {"Kathmandu", 2026y / 1 / 1}};
  for (const auto& [name, date] : kDays) {
    ByOwnClock d(name);
    day::KeptPlace place;
    const local_days noon(date);
    int seen = 0;
    for (minutes past = -6h; past < 30h; past += 1min) {
      d.TickAtUtc(date, past + 20s);
      const Instant now = sys_days(date) + past + 20s;
      place.Set(d.settings, TextsOf(PlaceLabelsOf(d.form)));
      const DayScene scene = SceneOf(now, place, d.session);
      const std::string moment = d.form.lblTime.caption;
      const std::string& rise = d.form.lblSR.caption;
      ASSERT_TRUE(scene.divided) << name << moment;
      const bool light = place.SunDate(now) == floor<days>(place.Clock().clock.CivilAt(now)) &&
                         SecondsOf(moment) < SecondsOf(d.form.lblSS.caption);
      ASSERT_EQ(scene.sun < 1, light) << name << " " << moment << " " << scene.sun;
      if (!light) continue;
      ++seen;
      ASSERT_EQ(scene.sunrise, rise.substr(0, 5)) << name;
      ASSERT_EQ(scene.sunset, d.form.lblSS.caption.substr(0, 5)) << name;
      ASSERT_EQ(scene.durvela.times.substr(0, 5), d.form.lblDurvela.caption.substr(0, 5)) << name;
      const double part = (SecondsOf(moment) - SecondsOf(rise)) /
                          (SecondsOf(d.form.lblSS.caption) - SecondsOf(rise));
      ASSERT_NEAR(scene.sun, part, 0.005) << name << " " << moment;
    }
    EXPECT_GT(seen, 400) << name;
  }
}

TEST(OwnClock, SaysThereIfTheMachineShowsAnotherTime) {
  ByOwnClock d("London");
  for (const auto& [east, there] : {std::pair(0h, true), std::pair(1h, false)}) {
    d.clock.east = east;
    d.TickAtUtc(kJuly, 12h);
    EXPECT_EQ(d.form.ThereCaption.visible, there) << east.count();
  }
}

// Name, state or spelling that the index lacks; another country; a zone of the user's.
TEST(OwnClock, SaysIfTheClockIsNotThePlacesOwn) {
  ByOwnClock d("New York");
  const auto row = [&] {
    d.TickAtUtc(kJuly, 12h);
    const frmMain& form = d.form;
    EXPECT_EQ(form.ClockCaption.toolTip, form.ClockCaption.spokenName);
    return form.ClockCaption.caption + ": " + form.lblClock.caption +
           (form.ClockCaption.toolTip.empty() ? "" : "; " + form.ClockCaption.toolTip);
  };
  EXPECT_EQ(row(), "Clock: EDT, UTC-4");
  d.SaveDefault("city", "Home");
  EXPECT_EQ(row(), "Clock nearby: EDT, UTC-4; The clock of the nearest place that is known");
  d.SaveDefault("country", "Atlantis");
  EXPECT_EQ(row(), "Country's clock: UTC+5:30; The country's clock, without daylight saving");
  d.SaveDefault("lat", "40.43");  // cannot be read; charts still can
  EXPECT_EQ(row().substr(0, 15), "Country's clock");
  EXPECT_TRUE(d.form.Image1.picture);
  d.SaveDefault("lat", "40.43N");
  atlas::SaveChosenZone(d.settings, TextsOf(PlaceLabelsOf(d.form)), "Europe/London");
  EXPECT_EQ(row().substr(0, 15), "Country's clock");
  atlas::SaveChosenZone(d.settings, {"", "Home", "40.43N", "74.00W", ""}, "Europe/London");
  EXPECT_EQ(row(), "Clock: BST, UTC+1");
}

TEST(OwnClock, TheChoiceHoldsFromTheNextTick) {
  ByOwnClock d("New York");
  const auto shown = [&](atlas::ClockChoice choice) {
    atlas::SaveClockChoice(d.settings, choice);
    d.TickAtUtc(kJuly, 12h);
    const frmMain& form = d.form;
    EXPECT_EQ(form.lblZone.caption + form.lblZoneTime.caption, "82.30E-5.30");
    EXPECT_EQ(form.lblZone.visible, form.lblZoneTime.visible);
    EXPECT_NE(form.lblZone.visible, form.lblClock.visible);
    EXPECT_EQ(form.ClockCaption.visible, form.lblClock.visible);
    EXPECT_EQ(form.ThereCaption.visible, form.lblClock.visible);
    return d.Moment() + ", " + d.RecordZone() + (form.lblZone.visible ? " shown" : "");
  };
  EXPECT_EQ(shown(atlas::ClockChoice::Own), "1 July 2026 8:0:0, 60.00W +4");
  const std::string own = d.Figures(), picture = d.Picture();
  EXPECT_EQ(shown(atlas::ClockChoice::Country), "1 July 2026 17:30:0, 82.30E -5.30 shown");
  EXPECT_NE(d.Figures(), own);
  EXPECT_NE(d.Picture(), picture);
  EXPECT_EQ(shown(atlas::ClockChoice::Own), "1 July 2026 8:0:0, 60.00W +4");
  EXPECT_EQ(d.Figures() + d.Picture(), own + picture);
}

}  // namespace
}  // namespace screens
