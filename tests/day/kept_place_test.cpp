// A place by its texts and a small index, second by second around sunrise.
#include "day/kept_place.h"

#include "support/app_folder.h"
#include "support/machine_fakes.h"
#include "support/test.h"

namespace {

using namespace std::chrono;
using clocks::Instant;

constexpr const char* kIndex =
    "state\tOne\n"
    "zone\tAmerica/New_York\tEurope/Oslo\n"
    "\n"
    "place\tstate\tlatitude\tlongitude\tzone\n"
    "New York\t1\t2443\t-4440\t1\n"
    "Tromso\t1\t4179\t1137\t2\n";

const atlas::PlaceTexts kNewYork = {"USA", "New York(One)", "40.43N", "74.00W", "+6"};
const atlas::PlaceTexts kTromso = {"USA", "Tromso(One)", "69.39N", "18.57E", "+6"};

struct KeptPlace : testing::Test {
  KeptPlace() { folder.Write("atlas/USA.index", kIndex); }

  void Set(const atlas::PlaceTexts& texts) { place.Set(settings, texts); }

  support::FakeSettings settings;
  support::AppFolderScope folder;
  day::KeptPlace place;
};

// The sun of New York rises at 05:29 EDT on 1 July and at 06:26 EST on 1 November 2026 (PyEphem).
TEST_F(KeptPlace, ADayBeginsAtSunriseByItsClock) {
  const auto sunDate = [&](const atlas::PlaceTexts& texts, year_month_day date, seconds utc) {
    Set(texts);
    return year_month_day(place.SunDate(sys_days(date) + utc));
  };
  ExpectRows(sunDate, Row(kNewYork, 2026y / 7 / 1, 9h + 29min - 1s, 2026y / 6 / 30),
             Row(kNewYork, 2026y / 7 / 1, 9h + 29min, 2026y / 7 / 1),
             Row(kNewYork, 2026y / 7 / 2, 4h, 2026y / 7 / 1),  // midnight
             Row(kNewYork, 2026y / 11 / 1, 11h + 26min - 1s, 2026y / 10 / 31),
             Row(kNewYork, 2026y / 11 / 1, 11h + 26min, 2026y / 11 / 1),
             // Without a sun it begins at midnight.
             Row(kTromso, 2026y / 6 / 20, 22h - 1s, 2026y / 6 / 20),
             Row(kTromso, 2026y / 6 / 20, 22h, 2026y / 6 / 21));
}

TEST_F(KeptPlace, TheFirstSunriseBehindThePolarNightHasNoDayBeforeIt) {
  Set(kTromso);
  local_days first(2026y / 1 / 10);
  while (!place.On(first)->sun.rise) first += days(1);
  EXPECT_LT(first, local_days(2026y / 1 / 20));
  EXPECT_EQ(place.SunDate(*place.On(first)->sun.rise - 1s), first);
}

TEST_F(KeptPlace, KeepsItsClockUntilTheTextsOrTheChosenZoneChange) {
  Set(kNewYork);
  const local_days date(2026y / 7 / 1);
  const Instant rise = place.On(date)->sun.rise.value();
  folder.Write("atlas/USA.index", "");
  Set(kNewYork);
  EXPECT_EQ(place.Clock().zone, "America/New_York");
  atlas::SaveChosenZone(settings, kNewYork, "Asia/Kathmandu");
  Set(kNewYork);
  EXPECT_EQ(place.Clock().zone, "Asia/Kathmandu");
  EXPECT_NE(place.On(date)->sun.rise, rise);  // whole minutes by the other clock
  Set(kTromso);
  EXPECT_EQ(place.Clock().source, atlas::PlaceClock::Source::Country);
}

TEST_F(KeptPlace, KeepsTheDaysAroundTheOneAskedFor) {
  Set(kNewYork);
  const local_days first(2026y / 1 / 1);
  for (local_days date = first; date < first + days(40); date += days(1)) {
    const day::Day* const of = place.On(date);
    ASSERT_EQ(place.On(date - days(1))->date, date - days(1));
    ASSERT_EQ(of->date, date);
  }
}

TEST_F(KeptPlace, HasNoDaysWithoutCoordinatesOrInOtherYears) {
  Set(kNewYork);
  EXPECT_EQ(place.On(local_days(99y / 12 / 31)), nullptr);
  EXPECT_EQ(place.On(local_days(10000y / 1 / 1)), nullptr);
  Set({"USA", "Nowhere", "91.00N", "74.00W", "+6"});
  EXPECT_EQ(place.On(local_days(2026y / 7 / 1)), nullptr);
  EXPECT_EQ(place.SunDate(sys_days(2026y / 7 / 1) + 5h), local_days(2026y / 7 / 1));
}

}  // namespace
