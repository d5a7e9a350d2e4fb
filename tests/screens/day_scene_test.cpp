#include "screens/day_scene.h"

#include <gtest/gtest.h>

#include <cmath>

#include "screens/day_sky.h"
#include "support/session_at.h"

namespace screens {
namespace {

DayScene SceneAt(int hour, int minute, const char* latitude = "28.40N") {
  return SceneOf(foundation::DateFromParts(2011, 3, 5) + foundation::TimeFromParts(hour, minute, 0),
                 support::SessionAt(latitude, "77.13E", "82.30E"));
}

std::string WordsAt(int hour, const char* latitude = "28.40N") {
  return WordsOf(*SkyPicture(SceneAt(hour, 0, latitude), 840, 560));
}

// A Saturday: its third part, its eighth and its sixth.
TEST(DayScene, ShowsTheCalendarDayAlsoBeforeSunrise) {
  for (const int hour : {0, 6, 12, 23}) {
    EXPECT_EQ(WordsAt(hour),
              "06:43 18:23\nDurvela\n09:38 - 11:05\nGulik\n16:55 - 18:23\nYum\n14:00 - 15:28");
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
    EXPECT_EQ(WordsAt(12, latitude), "Daylight is not divided here today");
  }
}

TEST(SkyPicture, NamesThePeriodsReadablyAtAnySize) {
  const double kSizes[][2] = {{840, 560}, {630, 420}, {630, 1000}, {1920, 800}};
  for (const auto& [width, height] : kSizes) {
    const forms::PicturePtr picture = SkyPicture(SceneAt(12, 0), width, height);
    for (const auto& item : picture->items) {
      const auto* text = std::get_if<forms::Lettering>(&item);
      if (text == nullptr) continue;
      EXPECT_GE(text->size, 10);  // 7.5 points
      EXPECT_TRUE(text->at.x > 0 && text->at.x < width);
      // Clear of the clock, which stands at 213 to 334 of 560 in the middle of the arc.
      const bool beside = std::abs(text->at.x - 290 * width / 840) > 100 * width / 840;
      const bool above = text->at.y < 213 * height / 560;
      EXPECT_TRUE(beside || above) << text->text << " at " << width << " by " << height;
    }
  }
}

}  // namespace
}  // namespace screens
