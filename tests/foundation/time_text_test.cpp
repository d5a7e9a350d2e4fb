#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "foundation/modConvertFx.h"
#include "foundation/zzVorin.h"
#include "support/errors.h"
#include "support/locales.h"

namespace foundation {
namespace {

TEST(TimeTexts, ShowDecimalHoursAsATimeOfDay) {
  const std::pair<double, const char*> kCases[] = {
      {6.2025, "06:12:09"},
      {23.9999, "00:00:00"},
      {24, "00:00:00"},
      {-1.5, "22:30:00"},
      {25.25, "01:15:00"},
      {26.31482736972486, "02:18:53"},
      {12.641666666666667, "12:38:30"},
      {12.795833333333333, "12:47:45"},
      {48, "00:00:00"},
      {-24, "00:00:00"},
      {-0.25, "23:45:00"},
      {0, "00:00:00"},
  };
  for (const auto& [hours, text] : kCases) EXPECT_EQ(DecimalToTimeText(hours), text) << hours;
  EXPECT_EQ(DecimalToTimeText(6.5, 24, true), "06:30");
  EXPECT_EQ(DecimalToTimeText(1e18), DecimalToTimeText(std::fmod(1e18, 24)));  // and at once
}

TEST(TimeTexts, ShowDurationsWithoutCarries) {
  EXPECT_EQ(DecimalToTimeText(24, 12, true), "12:00");
  EXPECT_EQ(DecimalToTimeText(30.25, 100), "30:15:00");
  EXPECT_EQ(DecimalToTimeText(5.99999, 100), "05:59:60");
  EXPECT_EQ(DecimalToTimeText(123, 1000), "12:00:00");  // cut to two characters
  EXPECT_ERROR(InvalidCall, DecimalToTimeText(1, 0));
  EXPECT_ERROR(InvalidCall, DecimalToTimeText(std::nan("")));
}

TEST(TimeTexts, GiveTheirFields) {
  EXPECT_EQ(TimeTextHour("06:12:09"), "06");
  EXPECT_EQ(TimeTextHour("12abc:7x:8y"), "12abc");
  EXPECT_EQ(TimeTextMinute("12abc:7x:8y"), "7x");
  EXPECT_EQ(TimeTextMinute("6"), "");
  EXPECT_EQ(TimeTextSecond("12:30:45.5"), 45.5);
  EXPECT_EQ(TimeTextSecond("a:b:c"), 0);
  EXPECT_EQ(TimeTextSecond("6:12"), 0);
  EXPECT_EQ(TimeTextSecond("0:0:1e999"), 0);
}

TEST(TimeTexts, AreReadAsDecimalHours) {
  EXPECT_EQ(TimeTextToDecimal("6:12:9"), 6.202500000000001);
  EXPECT_EQ(TimeTextToDecimal("1:2:3:4"), 1.0341666666666667);
  EXPECT_EQ(TimeTextToDecimal("-1:30:0"), -0.5);
  EXPECT_EQ(TimeTextToDecimal("12abc:7x:8y"), 12.11888888888889);
}

TEST(DateTimeTexts, CarryOnceAndThenThroughTheCalendar) {
  EXPECT_EQ(DateTimeText(5, 3, 2011, 6, 12, 9), "5-March-2011 6:12:9");
  EXPECT_EQ(DateTimeText(31, 4, 2011, 0, 0, 0), "1-May-2011 0:0:0");
  EXPECT_EQ(DateTimeText(15, 6, 2011, 5, 60, 0), "15-June-2011 6:0:0");
  EXPECT_EQ(DateTimeText(15, 6, 2011, 25, 61, 61), "16-June-2011 2:2:1");
  EXPECT_EQ(DateTimeText(28, 2, 2011, 23, 59, 60), "1-March-2011 0:0:0");
  EXPECT_EQ(DateTimeText(15, 6, 2011, 1, 1, 125), "15-June-2011 1:2:65");
  const support::UserNamesScope names(support::Hindi());
  EXPECT_EQ(DateTimeText(0, 1, 2012, 1, 2, 3), "31-दिसंबर-2011 1:2:3");
}

TEST(PaddedDigits, AreCutToTheirWidth) {
  EXPECT_EQ(PadDigits(0, 2), "00");
  EXPECT_EQ(PadDigits(7, 0), "");
  EXPECT_EQ(PadDigits(123, 2), "12");
  EXPECT_EQ(PadDigits("é", 3), "00é");
  EXPECT_ERROR(InvalidCall, PadDigits(1, -1));
}

TEST(FracPart, NeedsAFloorOf32Bits) {
  EXPECT_EQ(FracPart(-0.25), 0.75);
  EXPECT_EQ(FracPart(2147483647.5), 0.5);
  EXPECT_ERROR(Overflow, FracPart(2147483648.5));
}

TEST(Angles, FollowDegreesAndMinutes) {
  const std::pair<double, double> kCases[] = {
      {28.99, 29.65}, {179.59, 179.98333333333335}, {-28.4, -27.999999999999996}, {0, 0}};
  for (const auto& [degMin, decimal] : kCases) {
    double x = degMin;
    EXPECT_EQ(DegMinToDecimal(x), decimal);
    EXPECT_EQ(x, decimal);
  }
}

TEST(Angles, GiveAZoneItsMeridian) {
  EXPECT_EQ(ZoneToMeridianText("-5.30"), "82.30E");
  EXPECT_EQ(ZoneToMeridianText("-3.30"), "52.30E");
  EXPECT_EQ(ZoneToMeridianText("5"), "75.0W");
  EXPECT_EQ(ZoneToMeridianText("+0.20"), "5.0W");
  EXPECT_EQ(ZoneToMeridianText("+11"), "165.0W");
  EXPECT_EQ(ZoneToMeridianText(""), "0.0W");
}

TEST(Angles, ShowTheirPlaceInASign) {
  EXPECT_EQ(DecimalToSignDMS(269.6273716983858), "29:37:39");
  EXPECT_EQ(DecimalToSignDMS(15.159897598114863), "15:09:36");
  EXPECT_EQ(DecimalToSignDMS(15), "15:00:00");
  // A carry raises the next field and stays to be seen in its own.
  EXPECT_EQ(DecimalToSignDMS(10.9999), "11:60:60");
  EXPECT_EQ(DecimalToSignDMS(359.99999), "30:60:60");
}

}  // namespace
}  // namespace foundation
