#include "screens/day_scene.h"

#include <cmath>

#include "screens/day_sky.h"
#include "support/session_at.h"
#include "support/test.h"

namespace screens {
namespace {

DayScene SceneAt(int hour, int minute, const char* latitude = "28.40N") {
  return SceneOf(foundation::DateFromParts(2011, 3, 5) + foundation::TimeFromParts(hour, minute, 0),
                 support::SessionAt(latitude, "77.13E", "82.30E"));
}

std::string WordsAt(int hour, const char* latitude = "28.40N") {
  return WordsOf(*SkyPicture(SceneAt(hour, 0, latitude), 840, 560));
}

// On a Saturday, Durvela is the third part, Gulik the eighth and Yum the sixth.
TEST(DayScene, ShowsTheCalendarDayEvenBeforeSunrise) {
  for (const int hour : {0, 6, 12, 23}) {
    EXPECT_EQ(WordsAt(hour),
              "06:43 18:23\nDurvela\n09:38 - 11:06\nGulik\n16:55 - 18:23\nYum\n14:00 - 15:28");
  }
}

// The comments give the periods to the second, worked out independently.
TEST(DayScene, RoundsPeriodsOutward) {
  const auto labels = [](const char* latitude, const char* longitude, int year, int month,
                         int day) {
    const DayScene scene = SceneOf(foundation::DateFromParts(year, month, day) + 0.5,
                                   support::SessionAt(latitude, longitude, "82.30E"));
    return scene.durvela.times + ", " + scene.gulik.times + ", " + scene.yum.times;
  };
  ExpectRows(labels,
             // 09:49:15 to 11:06:52, 16:17:22 to 17:35:00, 13:42:07 to 14:59:45
             Row("28.40N", "77.13E", 2011, 1, 1, "09:49 - 11:07, 16:17 - 17:35, 13:42 - 15:00"),
             // 12:09:30 to 13:28:08, 10:50:52 to 12:09:30, 08:13:37 to 09:32:15
             Row("28.40N", "77.13E", 2011, 11, 30, "12:09 - 13:29, 10:50 - 12:10, 08:13 - 09:33"),
             // Whole minutes throughout.
             Row("19.04N", "72.52E", 2037, 3, 13, "11:18 - 12:48, 08:18 - 09:48, 15:48 - 17:18"));
}

TEST(DayScene, PlacesTheSunByTheTime) {
  EXPECT_NEAR(SceneAt(6, 42).sun, 2 - 1 / 740.0, 1e-9);  // of 740 minutes of night
  EXPECT_NEAR(SceneAt(6, 43).sun, 0, 1e-9);
  EXPECT_NEAR(SceneAt(12, 33).sun, 0.5, 1e-9);
  EXPECT_NEAR(SceneAt(18, 23).sun, 1, 1e-9);
  EXPECT_NEAR(SceneAt(18, 24).sun, 1 + 1 / 740.0, 1e-9);
}

TEST(DayScene, IsUndividedBeyond63Degrees) {
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
      // Clear of the clock, which takes 213 to 334 of 560 in the middle of the arc.
      const bool beside = std::abs(text->at.x - 290 * width / 840) > 100 * width / 840;
      const bool above = text->at.y < 213 * height / 560;
      EXPECT_TRUE(beside || above) << text->text << " at " << width << " by " << height;
    }
  }
}

}  // namespace
}  // namespace screens
