// Signs, stars, dignities and divisions of a longitude.

#include "engine/zodiac.h"

#include <gtest/gtest.h>

#include <cctype>

#include "engine/divisions.h"
#include "support/errors.h"
#include "support/table.h"

namespace engine {
namespace {

using support::Row;

TEST(Zodiac, StarsHaveLordsAndQuarters) {
  ExpectRows(NakNumber, Row(0, 1), Row(13.34, 2), Row(245.91427477975316, 19), Row(359.9, 27));
  ExpectRows(NakQuarter, Row(0, 1), Row(313.87149625163136, 3), Row(359.9, 4));
  ExpectRows(NakLordUpper, Row(0, "KETU"), Row(13.34, "VENUS"), Row(171.98229091514483, "MOON"),
             Row(359.9, "MERCURY"));
  ExpectRows(NakName, Row(0, ""), Row(27, "Revati"));
  EXPECT_ERROR(Subscript, NakName(28));
}

TEST(Zodiac, SignsHaveNamesAndLords) {
  ExpectRows(RashiLordCode, Row(29.999, "MAR"), Row(30, "VEN"));
  EXPECT_ERROR(Subscript, RashiLordCode(360));
  EXPECT_EQ(RashiLordCodeAt(0), "");
  ExpectRows(RashiNameText, Row(9, true, 0, "SAG"), Row(9, false, 0, "Sagittarius"),
             Row(9, true, 1, "Sagittarius"));
  ExpectRows(RashiNameLang, Row(2, 1, "o`\"k"), Row(2, 2, "Taurus"));
  EXPECT_ERROR(Subscript, RashiNameLang(13, 1));
  EXPECT_EQ(BodyNameUpper(8), "MOON");
  // The number and the code of a sign's lord are two lists of one thing.
  for (std::int16_t sign = 1; sign <= 12; ++sign) {
    const std::string_view name = BodyName(RashiLordNumber(sign));
    const std::string_view code = RashiLordCodeAt(sign);
    EXPECT_EQ(name[0], code[0]) << sign;
    EXPECT_EQ(std::toupper(name[2]), code[2]) << sign;
  }
  ExpectRows(HouseOfSign, Row(45, 2, 1), Row(45, 1, 12), Row(45, 12, 11), Row(360, 1, 1));
  EXPECT_ERROR(Subscript, HouseOfSign(45, 13));
}

TEST(Dignities, HoldInTheirRanges) {
  constexpr double kSecond = 1.0 / 3600;
  ExpectRows(ExaltTest, Row("Sun", 0, ""), Row("Sun", 1.1 * kSecond, "EXL"), Row("sun", 30, "EXL"),
             Row("Sun", 30 + kSecond, ""), Row("SAT", 180, ""), Row("Mercury", 150, "EXL"),
             Row("MON", 45, "EXL"), Row("Jupiter", 90, ""), Row("Jupiter", 120, "EXL"),
             Row("Rahu", 45, ""));
  ExpectRows(DebilTest, Row("Saturn", 0, ""), Row("Venus", 180, "DEB"), Row("Venus", 150, "DEB"),
             Row("Moon", 215, "DEB"), Row("Mars", 90, ""), Row("Mars", 90 + 1.1 * kSecond, "DEB"));
}

TEST(Dignities, BodiesNearTheSunAreCombust) {
  ExpectRows(CombustTest, Row("Moon", 321.86, 320.07, "COM"), Row("MON", 12, 0, "COM"),
             Row("Venus", 10.001, 0, ""), Row("Mars", 0, 17, "COM"), Row("Mercury", 359, 1, ""),
             Row("Sun", 1, 1, ""), Row("Rahu", 1, 1, ""));
}

TEST(DegreeSplit, CarriesWhatItRounds) {
  const auto rounded = [](double longitude) {
    const DegreeSplit split = RoundedSplit(longitude);
    return std::tuple(split.Sign, split.Degrees, split.Minutes, split.Seconds);
  };
  ExpectRows(rounded, Row(308.27481352821326, std::tuple(10, 8, 16, 29)),
             Row(59.99999, std::tuple(2, 0, 0, 0)), Row(359.99999, std::tuple(12, 0, 0, 0)),
             Row(390.5, std::tuple(1, 0, 30, 0)));
  const auto [sign, degrees, minutes, seconds, fraction] = ExactSplit(59.99999);
  EXPECT_EQ(std::tuple(sign, degrees, minutes, seconds), std::tuple(1, 29, 59, 59));
  EXPECT_NEAR(fraction, 0.964, 1e-6);
}

// By the names of DivName.
enum Column { Rashi = 1, Hora, Drekkana, Thrisamsa = 13, Shatyamsa = 16, Panchamsa, Ashtamsa = 19 };

int Sign(Column column, double longitude) {
  return WideDivisions(longitude)[column];
}

TEST(WideDivisions, ChangeAtTheirBoundaries) {
  ExpectRows(Sign, Row(Rashi, 29.999, 1), Row(Rashi, 30, 2), Row(Hora, 14.999, 5), Row(Hora, 15, 4),
             Row(Hora, 44.999, 4), Row(Hora, 45, 5), Row(Drekkana, 9.999, 1), Row(Drekkana, 10, 5),
             Row(Drekkana, 20, 9), Row(Thrisamsa, 4.999, 1), Row(Thrisamsa, 5, 11),
             Row(Thrisamsa, 10, 9), Row(Thrisamsa, 18, 3), Row(Thrisamsa, 25, 7),
             Row(Thrisamsa, 34.999, 2), Row(Thrisamsa, 35, 6), Row(Thrisamsa, 42, 12),
             Row(Thrisamsa, 50, 10), Row(Thrisamsa, 55, 8), Row(Shatyamsa, 0.499, 1),
             Row(Shatyamsa, 0.5, 2), Row(Shatyamsa, 29.999, 12));
  // Not brought below 13.
  ExpectRows(Sign, Row(Panchamsa, 46, 4), Row(Panchamsa, 359, 16), Row(Ashtamsa, 46, 13),
             Row(Ashtamsa, 149, 16));
}

// Columns 1 to 20; the full circle is a thirteenth sign of the kind of the first.
TEST(WideDivisions, TakeBothEndsOfTheCircle) {
  const int kAtZero[] = {1, 5, 1, 1, 1, 1, 1, 1, 1, 1, 5, 1, 1, 1, 1, 1, 1, 1, 1, 1};
  for (int column = 1; column <= 20; ++column) {
    EXPECT_EQ(WideDivisions(0)[column], kAtZero[column - 1]) << column;
    const int atCircle = column == Panchamsa ? 13 : kAtZero[column - 1];
    EXPECT_EQ(WideDivisions(360)[column], atCircle) << column;
  }
}

TEST(NarrowDivisions, ChangeAtTheirBoundaries) {
  const struct {
    double longitude;
    int signs[7];
  } kCases[] = {{0, {1, 1, 1, 1, 1, 1, 1}},   {10, {1, 5, 3, 4, 4, 5, 6}},
                {20, {1, 9, 5, 7, 7, 9, 11}}, {30, {2, 2, 8, 10, 10, 2, 5}},
                {360, {1, 1, 1, 1, 1, 1, 1}}, {359.999, {12, 8, 12, 12, 5, 11, 12}}};
  for (const auto& [longitude, signs] : kCases) {
    const VargaTable table = FillVargaTable(longitude, Positions());
    for (int k = 1; k <= 7; ++k) EXPECT_EQ(table[k][1], signs[k - 1]) << longitude << ' ' << k;
  }
}

}  // namespace
}  // namespace engine
