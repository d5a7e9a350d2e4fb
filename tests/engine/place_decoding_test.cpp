#include <gtest/gtest.h>

#include "engine/clsPP.h"
#include "foundation/error.h"
#include "support/errors.h"

namespace engine {
namespace {

struct Angle {
  const char* text;
  double degrees;
};

clsPP Decoded(const char* longitude, const char* latitude, const char* zone) {
  clsPP pp;
  pp.GenHoro(5, 3, 2011, 6, 12, 9.5, longitude, latitude, zone, 0, foundation::kTrue16, 0);
  return pp;
}

TEST(PlaceDecoding, TakesLatitudes) {
  const Angle kCases[] = {
      {"28.40N", 28.666666666666668},
      {"28.40S", -28.666666666666668},
      {"28.00N", 28},
      {"28N", 28},
      {"28.05N", 28 + 5 / 60.0},
      {"0.13S", -13 / 60.0},
      {"89.59N", 89.98333333333333},
      {"28N40", 28.666666666666668},
      {"N", 0},
      {"", 0},
  };
  for (const auto& [text, degrees] : kCases) {
    EXPECT_DOUBLE_EQ(Decoded("77.13E", text, "82.30E").ppLatitude, degrees) << text;
  }
  // No letter at the end: the last digit comes again after it.
  EXPECT_DOUBLE_EQ(Decoded("77.13E", "28.40", "82.30E").ppLatitude, 34.666666666666664);
}

TEST(PlaceDecoding, TakesLongitudes) {
  const Angle kCases[] = {
      {"77.30E", 77.5},
      {"77.05E", 77.08333333333333},
      {"77.10E", 77 + 10 / 60.0},
      {"74.01W", -74.01666666666667},
      {"77E13", 77.21666666666667},
      // Whole degrees lose their point and their letter, and are read as minutes east.
      {"77.00E", 1.2833333333333334},
      {"77.00W", 1.2833333333333334},
      {"100.00W", 1.6666666666666667},
  };
  for (const auto& [text, degrees] : kCases) {
    EXPECT_DOUBLE_EQ(Decoded(text, "28.40N", "82.30E").ppLongitude, degrees) << text;
  }
}

TEST(PlaceDecoding, TakesZones) {
  const Angle kCases[] = {
      {"82.30E", 82.5}, {"75.0W", -75}, {"52.30E", 52.5}, {"180.0E", 180},
      {"82.30", 82.5},  {"W", 0},       {"no zone", 0},
  };
  for (const auto& [text, degrees] : kCases) {
    const clsPP pp = Decoded("77.13E", "28.40N", text);
    EXPECT_DOUBLE_EQ(pp.ppZoneDegrees, degrees) << text;
    EXPECT_DOUBLE_EQ(pp.ppZoneHours, degrees / 15) << text;
    EXPECT_DOUBLE_EQ(pp.ppStdLongitude, degrees) << text;
  }
}

TEST(PlaceDecoding, SplitsAtTheLastCharacterThatIsNoDigit) {
  const struct {
    const char* text;
    double degrees, minutes;
    const char* hemisphere;
  } kCases[] = {
      {"28N4", 28, 40, "N"}, {"28N", 28, 0, "N"}, {"28N04", 28, 4, "N"}, {"28.40N", 40, 0, "N"},
      {"77", 0, 77, ""},     {"", 0, 0, ""},      {"1N2S3", 2, 30, "S"}, {"28°40", 28, 40, "°"},
  };
  for (const auto& expected : kCases) {
    const LatLongParts parts = clsPP::SepLatLong(expected.text);
    EXPECT_EQ(parts.degrees, expected.degrees) << expected.text;
    EXPECT_EQ(parts.minutes, expected.minutes) << expected.text;
    EXPECT_EQ(parts.hemisphere, expected.hemisphere) << expected.text;
  }
}

TEST(PlaceDecoding, KeepsTextsAndRoundsTheMoment) {
  clsPP pp;
  pp.GenHoro(4.5, 2.5, 2011.5, 5.5, 12.4, 9.5, "77.13E", "28.40N", "82.30E", 0, foundation::kTrue16,
             0.5);
  EXPECT_EQ(pp.ppLongitudeText, "77.13E");
  EXPECT_EQ(pp.ppLatitudeText, "28.40N");
  EXPECT_EQ(pp.ppZoneText, "82.30E");
  EXPECT_EQ(pp.ppDay, 4);
  EXPECT_EQ(pp.ppMonth, 2);
  EXPECT_EQ(pp.ppYear, 2012);
  EXPECT_EQ(pp.ppHour, 6);
  EXPECT_EQ(pp.ppMin, 12);
  EXPECT_EQ(pp.ppSec, 9.5);
  EXPECT_EQ(pp.WarTimeCorrection, 0.5);
  EXPECT_ERROR(Overflow, pp.GenHoro(1, 1, 2011, 32768, 0, 0, "", "", "", 0, 0, 0));
}

}  // namespace
}  // namespace engine
