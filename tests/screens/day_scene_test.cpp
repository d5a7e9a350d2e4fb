#include "screens/day_scene.h"

#include <gtest/gtest.h>

#include <cmath>

#include "screens/dashboard.h"
#include "screens/day_sky.h"
#include "support/session_at.h"

namespace screens {
namespace {

DayScene SceneAt(int hour, int minute, const char* latitude = "28.40N") {
  return SceneOf(foundation::DateFromParts(2011, 3, 5) + foundation::TimeFromParts(hour, minute, 0),
                 support::SessionAt(latitude, "77.13E", "82.30E"));
}

TEST(DayScene, ShowsTheCalendarDayAlsoBeforeSunrise) {
  for (const int hour : {0, 6, 12, 23}) {
    const DayScene scene = SceneAt(hour, 0);
    EXPECT_TRUE(scene.divided);
    EXPECT_EQ(Words(scene.sunrise, scene.sunset, scene.durvela.times),
              "06:43 18:23 09:38 - 11:05 ");
    const int segments[] = {scene.durvela.segment, scene.gulik.segment, scene.yum.segment};
    EXPECT_EQ(segments[0] * 100 + segments[1] * 10 + segments[2], 386);  // a Saturday
  }
}

TEST(DayScene, PutsTheSunWhereItStands) {
  EXPECT_NEAR(SceneAt(6, 42).sun, 2 - 1 / 740.0, 1e-9);  // of 740 minutes of night
  EXPECT_NEAR(SceneAt(6, 43).sun, 0, 1e-9);
  EXPECT_NEAR(SceneAt(12, 33).sun, 0.5, 1e-9);
  EXPECT_NEAR(SceneAt(18, 23).sun, 1, 1e-9);
  EXPECT_NEAR(SceneAt(18, 24).sun, 1 + 1 / 740.0, 1e-9);
}

TEST(DayScene, IsUndividedWhereThereIsNoSunriseToGoBy) {
  for (const char* latitude : {"64.00N", "89.59N"}) {
    EXPECT_FALSE(SceneAt(12, 0, latitude).divided) << latitude;
  }
}

TEST(SkyPicture, NamesThePeriodsReadablyAtAnySize) {
  const double kSizes[][2] = {{840, 560}, {630, 420}, {630, 1000}, {1920, 800}};
  for (const auto& [width, height] : kSizes) {
    std::string words;
    const forms::PicturePtr picture = SkyPicture(SceneAt(12, 0), width, height);
    for (const auto& item : picture->items) {
      const auto* lettering = std::get_if<forms::Lettering>(&item);
      if (lettering == nullptr) continue;
      words += "|" + lettering->text + "|";
      EXPECT_GE(lettering->size, 10);  // 7.5 points
      EXPECT_TRUE(lettering->at.x > 0 && lettering->at.x < width);
      // Clear of the clock, which stands at 213 to 334 of 560 in the middle of the arc.
      const bool beside = std::abs(lettering->at.x - 290 * width / 840) > 100 * width / 840;
      const bool above = lettering->at.y < 213 * height / 560;
      EXPECT_TRUE(beside || above) << lettering->text << " at " << width << " by " << height;
    }
    for (const char* word :
         {"|Durvela|", "|Gulik|", "|Yum|", "|06:43|", "|18:23|", "|09:38 - 11:05|"}) {
      EXPECT_NE(words.find(word), std::string::npos) << word;
    }
  }
  EXPECT_EQ(WordsOf(*SkyPicture(SceneAt(12, 0, "64.00N"), 840, 560)),
            "Daylight is not divided here today");
}

}  // namespace
}  // namespace screens
