// The dashboard by the place's own clock. Sunrise and sunset are PyEphem's (horizon -0:50, pressure
// 0, use_center), offsets and letters those of Python's zoneinfo.

#include "foundation/time_text.h"
#include "support/app_folder.h"
#include "support/dashboard.h"
#include "support/test.h"

namespace screens {
namespace {

using namespace std::chrono;

struct Site {
  const char *latitude, *longitude, *zone;
};
constexpr Site kKathmandu = {"27.43N", "85.19E", "Asia/Kathmandu"};
constexpr Site kLondon = {"51.31N", "0.08W", "Europe/London"};
constexpr Site kNewYork = {"40.43N", "74.00W", "America/New_York"};
constexpr Site kSydney = {"33.53S", "151.12E", "Australia/Sydney"};
constexpr Site kKiritimati = {"1.52N", "157.24W", "Pacific/Kiritimati"};
constexpr Site kUusikaupunki = {"60.48N", "21.25E", "Europe/Helsinki"};
constexpr Site kTromso = {"69.39N", "18.57E", "Europe/Oslo"};

constexpr auto kJuly = 2026y / 7 / 1;

// On a machine in India, with a country that is taken to keep India's time.
struct ByOwnClock : Dashboard {
  explicit ByOwnClock(const Site& site) {
    SaveDefault("country", "World");
    SaveDefault("city", "Home");
    SaveDefault("lat", site.latitude);
    SaveDefault("long", site.longitude);
    atlas::SaveChosenZone(settings, {"", "Home", site.latitude, site.longitude, ""}, site.zone);
  }

  void TickAtUtc(year_month_day date, seconds time) {
    clock.SetInstant(sys_days(date) + time);
    form.Timer1_Timer();
  }
  // "1 July 2026 8:0:0, 60.00W +4", with the record's zone.
  std::string Moment() const {
    const auto& record = session.Current();
    return form.lblDate.caption + " " + form.lblTime.caption + ", " + record.ZoneMeridianText +
           " " + record.ZoneTimeText;
  }
  std::string Picture() const { return WordsOf(*form.Image1.picture); }
};

double SecondsOf(std::string_view time) {
  return 3600 * foundation::TimeTextToDecimal(time);
}

// Within the series' accuracy of 132 seconds. At Uusikaupunki it fails, with a rise at 24:00.
TEST(OwnClock, ShowsTheSunOfCitiesAllOverTheWorld) {
  const auto expectSun = [](const Site& site, year_month_day date, hours utc, std::string_view rise,
                            std::string_view set) {
    ByOwnClock d(site);
    d.TickAtUtc(date, utc);
    EXPECT_NEAR(SecondsOf(d.form.lblSR.caption), SecondsOf(rise), 132) << site.zone;
    EXPECT_NEAR(SecondsOf(d.form.lblSS.caption), SecondsOf(set), 132) << site.zone;
  };
  expectSun(kKathmandu, 2026y / 1 / 15, 7h, "06:55:46", "17:30:30");
  expectSun(kSydney, 2026y / 1 / 15, 2h, "05:59:29", "20:09:02");
  expectSun(kKiritimati, 2026y / 7 / 15, -2h, "06:28:59", "18:42:06");
  expectSun(kUusikaupunki, 2026y / 3 / 18, 10h, "06:42:28", "18:43:40");
}

// The record's zone is the one at noon of the day whose sun is shown.
TEST(OwnClock, ShowsTheInstantWhateverTheMachinesZone) {
  const auto shown = [](const Site& site, hours machine, year_month_day date, seconds utc) {
    ByOwnClock d(site);
    d.clock.east = machine;
    d.TickAtUtc(date, utc);
    return d.Moment() + ", " + d.form.lblClock.caption +
           (d.form.ThereCaption.visible ? " there" : "");
  };
  ExpectRows(shown, Row(kLondon, 1h, kJuly, 12h + 5s, "1 July 2026 13:0:5, 15.00E -1, BST, UTC+1"),
             Row(kLondon, 0h, 2026y / 3 / 29, 1h, "29 March 2026 2:0:0, 0.00E 0, BST, UTC+1 there"),
             // Both half past one of the night when America's clocks go back.
             Row(kNewYork, -4h, 2026y / 11 / 1, 5h + 30min,
                 "1 November 2026 1:30:0, 60.00W +4, EDT, UTC-4"),
             Row(kNewYork, -4h, 2026y / 11 / 1, 6h + 30min,
                 "1 November 2026 1:30:0, 60.00W +4, EST, UTC-5 there"),
             Row(kKiritimati, -12h, kJuly, 10h, "2 July 2026 0:0:0, 210.00E -14, UTC+14 there"));
}

// PyEphem has 17:53:24 for the sunset of 31 October, 06:20:27 and 17:54:02 for 7 March, and
// 07:18:51 for the sunrise after that.
TEST(OwnClock, BeforeSunriseShowsTheSunOfTheDayBeforeByItsOwnHour) {
  ByOwnClock d(kNewYork);
  const auto sunAt = [&](year_month_day date, seconds utc) {
    d.TickAtUtc(date, utc);
    return d.form.lblSR.caption + d.Moment().substr(d.Moment().find(','));
  };
  ExpectRows(sunAt, Row(2026y / 3 / 8, 10h + 50min, "06:20:00, 75.00W +5"),
             Row(2026y / 3 / 8, 12h, "07:19:00, 60.00W +4"),
             Row(2026y / 11 / 1, 11h + 26min, "06:26:00, 75.00W +5"),
             Row(2026y / 11 / 1, 11h + 26min - 1s, "07:25:00, 60.00W +4"));
  // Saturday's light by the rule of Sunday: its last eighth.
  EXPECT_EQ(d.form.lblSS.caption + d.form.lblDurvela.caption.substr(8), "17:53:00-17:53:00");
}

TEST(OwnClock, SaysWhyThereIsNoSunriseOrSunset) {
  ByOwnClock d(kTromso);
  const auto shown = [&](year_month_day date) {
    d.TickAtUtc(date, 10h);
    return d.Figures() + "; " + d.Picture();
  };
  EXPECT_EQ(shown(2026y / 6 / 21), "none none No sunset today; The sun does not set");
  EXPECT_EQ(shown(2026y / 12 / 21), "none none No sunrise today; The sun does not rise");
  EXPECT_EQ(shown(2026y / 1 / 20).find("The sun"), std::string::npos);  // both, beyond 63 degrees
  EXPECT_NE(d.form.lblDurvela.caption.find('-'), std::string::npos);
}

TEST(OwnClock, PictureAndLabelsAgree) {
  for (const auto& [site, date] :
       {std::pair(kNewYork, 2026y / 11 / 1), std::pair(kUusikaupunki, 2026y / 3 / 18)}) {
    ByOwnClock d(site);
    day::KeptPlace place;
    for (minutes past = -6h; past < 30h; past += 3min) {
      d.TickAtUtc(date, past);
      place.Set(d.settings, TextsOf(PlaceLabelsOf(d.form)));
      const DayScene scene = SceneOf(sys_days(date) + past, place, d.session);
      const double rise = SecondsOf(d.form.lblSR.caption), set = SecondsOf(d.form.lblSS.caption);
      const double part = (SecondsOf(d.form.lblTime.caption) - rise) / (set - rise);
      const bool light = part >= 0 && part <= 1;
      ASSERT_EQ(scene.sun <= 1, light) << d.Moment();
      if (!light) continue;
      ASSERT_NEAR(scene.sun, part, 0.005) << d.Moment();
      const std::string durvela = d.form.lblDurvela.caption.substr(0, 5);
      ASSERT_EQ(d.Picture().find(d.form.lblSR.caption.substr(0, 5) + " " +
                                 d.form.lblSS.caption.substr(0, 5) + "\nDurvela\n" + durvela),
                0U);
      const std::string& times = scene.durvela.times;
      const double later =
          SecondsOf(times.substr(8) + ":00") - SecondsOf(d.form.lblDurvela.caption.substr(9));
      ASSERT_TRUE(later >= 0 && later < 60) << times;
    }
  }
}

// A place that the index lacks; another country.
TEST(OwnClock, SaysIfTheClockIsNotThePlacesOwn) {
  const support::AppFolderScope folder;
  folder.Write("atlas/World.index",
               "state\tX\nzone\tAmerica/New_York\n\n"
               "place\tstate\tlatitude\tlongitude\tzone\nTown\t1\t2443\t-4440\t1\n");
  ByOwnClock d(kNewYork);
  const auto row = [&](const char* key, const char* value) {
    d.SaveDefault(key, value);
    d.TickAtUtc(kJuly, 12h);
    const forms::Control& caption = d.form.ClockCaption;
    EXPECT_EQ(caption.toolTip, caption.spokenName);
    return caption.caption + ": " + d.form.lblClock.caption + "; " + caption.toolTip;
  };
  EXPECT_EQ(row("country", "World"), "Clock: EDT, UTC-4; ");
  EXPECT_EQ(d.form.lblClock.toolTip, "America/New_York");
  EXPECT_EQ(row("city", "Elsewhere"),
            "Clock nearby: EDT, UTC-4; The clock of the nearest place that is known");
  EXPECT_EQ(row("country", "Atlantis"),
            "Country's clock: UTC+5:30; The country's clock, without daylight saving");
  EXPECT_EQ(row("lat", "40.43").substr(0, 15), "Country's clock");  // cannot be read
  EXPECT_TRUE(d.form.Image1.picture);                               // charts still can
}

TEST(OwnClock, TheChoiceHoldsFromTheNextTick) {
  ByOwnClock d(kNewYork);
  const auto shown = [&](atlas::ClockChoice choice) {
    atlas::SaveClockChoice(d.settings, choice);
    d.TickAtUtc(kJuly, 12h);
    std::string visible;
    for (const forms::Control* label : {&d.form.lblZone, &d.form.lblZoneTime, &d.form.ClockCaption,
                                        &d.form.lblClock, &d.form.ThereCaption}) {
      if (label->visible) visible += " " + label->caption;
    }
    return d.Moment() + ":" + visible;
  };
  EXPECT_EQ(shown(atlas::ClockChoice::Own), "1 July 2026 8:0:0, 60.00W +4: Clock EDT, UTC-4 there");
  const std::string own = d.Figures(), picture = d.Picture();
  EXPECT_EQ(shown(atlas::ClockChoice::Country), "1 July 2026 17:30:0, 82.30E -5.30: 82.30E -5.30");
  EXPECT_NE(d.Figures(), own);
  EXPECT_NE(d.Picture(), picture);
}

}  // namespace
}  // namespace screens
