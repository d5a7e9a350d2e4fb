// The dashboard's labels by the country's clock, second by second. The NOAA solar calculator gives
// the sunrise and sunset of these days in Delhi to within a minute; the segments were worked out by
// hand from the weekday.

#include <gtest/gtest.h>

#include "support/dashboard.h"
#include "support/locales.h"

namespace screens {
namespace {

struct ByCountrysClock : Dashboard {
  ByCountrysClock() { atlas::SaveClockChoice(settings, atlas::ClockChoice::Country); }
};

// A Saturday: the third eighth of 06:43 to 18:23.
constexpr const char* kSaturday = "06:43:00 18:23:00 09:38:00-11:05:30";

TEST(Tick, ShowsTodayAtTheDefaultPlace) {
  ByCountrysClock d;
  d.TickAt(2011, 3, 5, 11, 12, 9);
  EXPECT_EQ(Words(d.form.lblDate.caption, d.form.lblTime.caption), "5 March 2011 11:12:9 ");
  EXPECT_EQ(PlaceOf(d.form), "India Delhi 28.40N 77.13E 82.30E -5.30 ");
  EXPECT_EQ(d.Figures(), kSaturday);
}

TEST(Tick, MovesOnAtTheMomentOfSunrise) {
  ByCountrysClock d;
  // Before sunrise: the sun of Friday the 4th, with the weekday of Saturday the 5th.
  d.TickAt(2011, 3, 5, 6, 42, 59);
  EXPECT_EQ(d.Figures(), "06:44:00 18:23:00 09:38:45-11:06:07");
  d.TickAt(2011, 3, 5, 6, 43, 0);
  EXPECT_EQ(d.Figures(), kSaturday);
}

TEST(Tick, FallsBackIntoThePreviousMonth) {
  ByCountrysClock d;
  // The sun of Monday, 28 February, divided for Tuesday: the seventh eighth.
  d.TickAt(2011, 3, 1, 0, 0, 0);
  EXPECT_EQ(d.Figures(), "06:48:00 18:20:00 15:27:00-16:53:30");
}

TEST(Tick, ShowsZerosBeyond63Degrees) {
  ByCountrysClock d;
  d.SaveDefault("lat", "64.00N");
  d.TickAt(2011, 6, 21, 12, 0, 0);
  EXPECT_EQ(d.Figures(), "00:00:00 00:00:00 00:00:00-00:00:00");
}

TEST(Tick, KeepsSunriseAndClearsDurvelaIfTheSunDoesNotSet) {
  ByCountrysClock d;
  d.TickAt(2011, 6, 21, 12, 0, 0);
  d.SaveDefault("lat", "70.00N");
  d.TickAt(2011, 6, 21, 12, 0, 1);
  EXPECT_EQ(Words(d.form.lblTime.caption, d.form.lblLat.caption), "12:0:1 70.00N ");
  EXPECT_EQ(d.Figures(), "05:24:00 19:22:00 -");  // Delhi's
}

TEST(Tick, ReadsItsDateBackInTheUsersLanguage) {
  const support::UserNamesScope names(support::Hindi());
  ByCountrysClock d;
  d.TickAt(2011, 3, 5, 11, 12, 9);
  EXPECT_EQ(d.form.lblDate.caption, "5 मार्च 2011");
  EXPECT_EQ(d.Figures(), kSaturday);
}

TEST(Tick, ShowsTheDateEvenIfTheSessionIndexIsOutOfBounds) {
  ByCountrysClock d;
  d.session.CurrentRecord = 1001;
  d.TickAt(2011, 3, 5, 11, 12, 9);
  EXPECT_EQ(d.form.lblDate.caption + d.form.lblDurvela.caption, "5 March 2011-");
}

}  // namespace
}  // namespace screens
