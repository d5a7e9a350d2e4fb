#include <gtest/gtest.h>

#include "engine/clsPP.h"
#include "support/errors.h"
#include "support/table.h"

namespace engine {
namespace {

using support::Row;

clsPP Decoded(const char* longitude, const char* latitude, const char* zone) {
  clsPP pp;
  pp.GenHoro(5, 3, 2011, 6, 12, 9.5, longitude, latitude, zone, 0, foundation::kTrue16, 0);
  return pp;
}

TEST(PlaceDecoding, TakesLatitudes) {
  const auto latitude = [](auto text) { return Decoded("77.13E", text, "82.30E").ppLatitude; };
  ExpectRows(latitude, Row("28.40N", 28.666666666666668), Row("28.40S", -28.666666666666668),
             Row("28.00N", 28), Row("28N", 28), Row("28.05N", 28 + 5 / 60.0),
             Row("0.13S", -13 / 60.0), Row("89.59N", 89.98333333333333),
             Row("28N40", 28.666666666666668), Row("N", 0), Row("", 0));
  // No letter at the end: the last digit comes again after it.
  ExpectRows(latitude, Row("28.40", 34.666666666666664));
}

TEST(PlaceDecoding, TakesLongitudes) {
  const auto longitude = [](auto text) { return Decoded(text, "28.40N", "82.30E").ppLongitude; };
  ExpectRows(longitude, Row("77.30E", 77.5), Row("77.05E", 77.08333333333333),
             Row("77.10E", 77 + 10 / 60.0), Row("74.01W", -74.01666666666667),
             Row("77E13", 77.21666666666667));
  // Whole degrees lose their point and their letter, and are read as minutes east.
  ExpectRows(longitude, Row("77.00E", 1.2833333333333334), Row("77.00W", 1.2833333333333334),
             Row("100.00W", 1.6666666666666667));
}

TEST(PlaceDecoding, TakesZones) {
  const auto zone = [](auto text) {
    const clsPP pp = Decoded("77.13E", "28.40N", text);
    EXPECT_DOUBLE_EQ(pp.ppZoneHours, pp.ppZoneDegrees / 15) << text;
    EXPECT_EQ(pp.ppStdLongitude, pp.ppZoneDegrees) << text;
    return pp.ppZoneDegrees;
  };
  ExpectRows(zone, Row("82.30E", 82.5), Row("75.0W", -75), Row("52.30E", 52.5), Row("180.0E", 180),
             Row("82.30", 82.5), Row("W", 0), Row("no zone", 0));
}

TEST(PlaceDecoding, SplitsAtTheLastCharacterThatIsNoDigit) {
  const auto split = [](std::string_view text) {
    const LatLongParts parts = clsPP::SepLatLong(text);
    return std::tuple(parts.degrees, parts.minutes, parts.hemisphere);
  };
  ExpectRows(split, Row("28N4", std::tuple(28, 40, "N")), Row("28N", std::tuple(28, 0, "N")),
             Row("28N04", std::tuple(28, 4, "N")), Row("28.40N", std::tuple(40, 0, "N")),
             Row("77", std::tuple(0, 77, "")), Row("", std::tuple(0, 0, "")),
             Row("1N2S3", std::tuple(2, 30, "S")), Row("28°40", std::tuple(28, 40, "°")));
}

TEST(PlaceDecoding, KeepsTextsAndRoundsTheMoment) {
  clsPP pp;
  pp.GenHoro(4.5, 2.5, 2011.5, 5.5, 12.4, 9.5, "77.13E", "28.40N", "82.30E", 0, -1, 0.5);
  EXPECT_EQ(pp.ppLongitudeText + pp.ppLatitudeText + pp.ppZoneText, "77.13E28.40N82.30E");
  EXPECT_EQ(std::tuple(pp.ppDay, pp.ppMonth, pp.ppYear), std::tuple(4, 2, 2012));
  EXPECT_EQ(std::tuple(pp.ppHour, pp.ppMin, pp.ppSec), std::tuple(6, 12, 9.5));
  EXPECT_EQ(pp.WarTimeCorrection, 0.5);
  EXPECT_ERROR(Overflow, pp.GenHoro(1, 1, 2011, 32768, 0, 0, "", "", "", 0, 0, 0));
}

}  // namespace
}  // namespace engine
