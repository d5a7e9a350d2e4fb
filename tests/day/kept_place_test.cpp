// A place by its texts and a small index, second by second around sunrise.
#include "day/kept_place.h"

#include <gtest/gtest.h>

#include "support/app_folder.h"
#include "support/machine_fakes.h"

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
  Set(kNewYork);
  const Instant july = sys_days(2026y / 7 / 1) + 9h + 29min;
  EXPECT_EQ(place.SunDate(july - 1s), local_days(2026y / 6 / 30));
  EXPECT_EQ(place.SunDate(july), local_days(2026y / 7 / 1));
  EXPECT_EQ(place.SunDate(july + 18h), local_days(2026y / 7 / 1));          // 23:29
  EXPECT_EQ(place.SunDate(july + 18h + 31min), local_days(2026y / 7 / 1));  // midnight
  const Instant november = sys_days(2026y / 11 / 1) + 11h + 26min;
  EXPECT_EQ(place.SunDate(november - 1s), local_days(2026y / 10 / 31));
  EXPECT_EQ(place.SunDate(november), local_days(2026y / 11 / 1));
}

TEST_F(KeptPlace, WithoutASunTheDayBeginsAtMidnight) {
  Set(kTromso);
  const Instant june = sys_days(2026y / 6 / 20) + 22h;  // midnight in Norway
  EXPECT_EQ(place.SunDate(june - 1s), local_days(2026y / 6 / 20));
  EXPECT_EQ(place.SunDate(june), local_days(2026y / 6 / 21));
  // The first sunrise behind the polar night, in the middle of January, has no day before it.
  local_days first(2026y / 1 / 10);
  while (!place.On(first)->sun.rise) first += days(1);
  EXPECT_LT(first, local_days(2026y / 1 / 20));
  EXPECT_EQ(place.SunDate(*place.On(first)->sun.rise - 1s), first);
  const local_days second = first + days(1);
  EXPECT_EQ(place.SunDate(*place.On(second)->sun.rise - 1s), first);
}

TEST_F(KeptPlace, KeepsItsClockUntilTheTextsOrTheChosenZoneChange) {
  EXPECT_EQ(place.Clock().clock.OffsetAt(Instant(0s)).east, 0s);
  Set(kNewYork);
  const day::Day* const today = place.On(local_days(2026y / 7 / 1));
  folder.Write("atlas/USA.index", "");
  Set(kNewYork);
  EXPECT_EQ(place.Clock().zone, "America/New_York");
  EXPECT_EQ(place.On(local_days(2026y / 7 / 1)), today);
  atlas::SaveChosenZone(settings, kNewYork, "Asia/Kathmandu");
  Set(kNewYork);
  EXPECT_EQ(place.Clock().zone, "Asia/Kathmandu");
  // By the other clock it is the same instant.
  const Instant rise = *place.On(local_days(2026y / 7 / 1))->sun.rise;
  EXPECT_LT(abs(rise - (sys_days(2026y / 7 / 1) + 9h + 29min)), 90s);
  Set(kTromso);
  EXPECT_EQ(place.Clock().source, atlas::PlaceClock::Source::Country);
}

TEST_F(KeptPlace, KeepsTheDaysAroundTheOneAskedFor) {
  Set(kNewYork);
  const local_days first(2026y / 1 / 1);
  const day::Day* of = nullptr;
  for (int i = 0; i < 40; ++i) {
    const day::Day* before = of;
    of = place.On(first + days(i));
    ASSERT_EQ(of->date, first + days(i));
    if (before != nullptr) {
      EXPECT_EQ(place.On(first + days(i - 1)), before);
    }
  }
}

TEST_F(KeptPlace, HasNoDaysWithoutCoordinatesOrInOtherYears) {
  Set(kNewYork);
  EXPECT_EQ(place.On(local_days(99y / 12 / 31)), nullptr);
  EXPECT_EQ(place.On(local_days(10000y / 1 / 1)), nullptr);
  atlas::PlaceTexts nowhere = kNewYork;
  nowhere.latitude = "91.00N";
  Set(nowhere);
  EXPECT_EQ(place.On(local_days(2026y / 7 / 1)), nullptr);
  EXPECT_EQ(place.SunDate(sys_days(2026y / 7 / 1) + 5h), local_days(2026y / 7 / 1));
}

}  // namespace
