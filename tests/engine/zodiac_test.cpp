// Signs, stars, dignities and divisions of a longitude.

#include "engine/zodiac.h"

#include <gtest/gtest.h>

#include "engine/divisions.h"
#include "foundation/text.h"
#include "support/errors.h"
#include "support/table.h"

namespace engine {
namespace {

using support::Row;

TEST(Zodiac, SignsHaveNamesAndLords) {
  ExpectRows(RashiNameText, Row(9, true, 0, "SAG"), Row(9, true, 1, "Sagittarius"));
  ExpectRows(RashiNameLang, Row(2, 1, "o`\"k"), Row(2, 2, "Taurus"));
  EXPECT_EQ(BodyNameUpper(8), "MOON");
  EXPECT_ERROR(Subscript, BodyNameUpper(0));
  EXPECT_ERROR(Subscript, RashiNameText(0, true));
  EXPECT_ERROR(Subscript, RashiNameLang(0, 1));
  EXPECT_ERROR(Subscript, RashiNameLang(13, 0));
  EXPECT_EQ(NakName(27), "Revati");
  // Numbers and codes of the sign lords are separate lists that must agree.
  for (std::int16_t sign = 1; sign <= 12; ++sign) {
    const std::string name = foundation::UpperAscii(BodyName(RashiLordNumber(sign)));
    EXPECT_EQ(RashiLordCodeAt(sign), name.substr(0, 3));
  }
  ExpectRows(HouseOfSign, Row(45, 2, 1), Row(45, 1, 12), Row(45, 12, 11), Row(360, 1, 1));
}

TEST(Dignities, ApplyWithinTheirRanges) {
  constexpr double kSecond = 1.0 / 3600;
  ExpectRows(ExaltTest, Row("Sun", 0, ""), Row("Sun", 1.1 * kSecond, "EXL"), Row("sun", 30, "EXL"),
             Row("Sun", 30 + kSecond, ""), Row("SAT", 180, ""), Row("Mercury", 150, "EXL"),
             Row("MON", 45, "EXL"), Row("Rahu", 45, ""));
  ExpectRows(DebilTest, Row("Venus", 150, "DEB"), Row("Moon", 215, "DEB"), Row("Mars", 90, ""),
             Row("Mars", 90 + 1.1 * kSecond, "DEB"));
}

TEST(Dignities, BodiesNearTheSunAreCombust) {
  ExpectRows(CombustTest, Row("Moon", 321.86, 320.07, "COM"), Row("MON", 12, 0, "COM"),
             Row("Venus", 10.001, 0, ""), Row("Mars", 0, 17, "COM"), Row("Mercury", 359, 1, ""),
             Row("Sun", 1, 1, ""), Row("Rahu", 1, 1, ""));
}

TEST(DegreeSplit, CarriesAfterRounding) {
  const auto rounded = [](double longitude) {
    const DegreeSplit split = RoundedSplit(longitude);
    return std::tuple(split.Sign, split.Degrees, split.Minutes, split.Seconds);
  };
  ExpectRows(rounded, Row(308.27481352821326, std::tuple(10, 8, 16, 29)),
             Row(59.99999, std::tuple(2, 0, 0, 0)), Row(359.99999, std::tuple(12, 0, 0, 0)),
             Row(390.5, std::tuple(1, 0, 30, 0)));
}

// Named as in DivName.
enum Column { Hora = 2, Thrisamsa = 13, Shatyamsa = 16, Panchamsa, Ashtamsa = 19 };

int Sign(Column column, double longitude) {
  return WideDivisions(longitude)[column];
}

TEST(WideDivisions, ChangeAtTheirBoundaries) {
  ExpectRows(Sign, Row(Hora, 14.999, 5), Row(Hora, 15, 4), Row(Hora, 44.999, 4), Row(Hora, 45, 5),
             Row(Thrisamsa, 4.999, 1), Row(Thrisamsa, 5, 11), Row(Thrisamsa, 10, 9),
             Row(Thrisamsa, 18, 3), Row(Thrisamsa, 25, 7), Row(Thrisamsa, 34.999, 2),
             Row(Thrisamsa, 35, 6), Row(Thrisamsa, 42, 12), Row(Thrisamsa, 50, 10),
             Row(Thrisamsa, 55, 8), Row(Shatyamsa, 0.499, 1), Row(Shatyamsa, 0.5, 2),
             Row(Shatyamsa, 29.999, 12));
  // Not reduced to 12.
  ExpectRows(Sign, Row(Panchamsa, 359, 16), Row(Ashtamsa, 46, 13), Row(Ashtamsa, 149, 16));
}

// Signs 1 to `last` as text.
std::string Text(int last, const auto& signAt) {
  std::string text;
  for (int i = 1; i <= last; ++i) text += std::to_string(signAt(i)) + " ";
  return text;
}

// 360 degrees is a thirteenth sign that behaves like the first.
TEST(WideDivisions, AcceptBothEndsOfTheCircle) {
  const auto signs = [](double longitude) {
    return Text(20, [&](int column) { return WideDivisions(longitude)[column]; });
  };
  ExpectRows(signs, Row(0, "1 5 1 1 1 1 1 1 1 1 5 1 1 1 1 1 1 1 1 1 "),
             Row(360, "1 5 1 1 1 1 1 1 1 1 5 1 1 1 1 1 13 1 1 1 "));
}

TEST(NarrowDivisions, ChangeAtTheirBoundaries) {
  const auto signs = [](double longitude) {
    return Text(7, [&](int k) { return FillVargaTable(longitude, Positions())[k][1]; });
  };
  ExpectRows(signs, Row(0, "1 1 1 1 1 1 1 "), Row(10, "1 5 3 4 4 5 6 "), Row(20, "1 9 5 7 7 9 11 "),
             Row(30, "2 2 8 10 10 2 5 "), Row(360, "1 1 1 1 1 1 1 "));
}

}  // namespace
}  // namespace engine
