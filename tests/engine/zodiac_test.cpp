#include "engine/zodiac.h"

#include <gtest/gtest.h>

#include <cctype>
#include <tuple>

#include "support/errors.h"

namespace engine {
namespace {

TEST(Zodiac, StarsHaveLordsAndQuarters) {
  const struct {
    double longitude;
    int star;
    int quarter;
    const char* lord;
  } kCases[] = {
      {0, 1, 1, "KETU"},
      {13.34, 2, 1, "VENUS"},
      {308.27481352821326, 24, 1, "RAHU"},
      {313.87149625163136, 24, 3, "RAHU"},
      {171.98229091514483, 13, 4, "MOON"},
      {245.91427477975316, 19, 2, "KETU"},
      {359.9, 27, 4, "MERCURY"},
  };
  for (const auto& expected : kCases) {
    SCOPED_TRACE(expected.longitude);
    EXPECT_EQ(NakNumber(expected.longitude), expected.star);
    EXPECT_EQ(NakQuarter(expected.longitude), expected.quarter);
    EXPECT_EQ(NakLordUpper(expected.longitude), expected.lord);
  }
  EXPECT_EQ(NakName(0), "");
  EXPECT_EQ(NakName(27), "Revati");
  EXPECT_ERROR(Subscript, NakName(28));
}

TEST(Zodiac, SignsHaveNamesAndLords) {
  EXPECT_EQ(RashiLordCode(29.999), "MAR");
  EXPECT_EQ(RashiLordCode(30), "VEN");
  EXPECT_ERROR(Subscript, RashiLordCode(360));
  EXPECT_EQ(RashiLordCodeAt(0), "");
  EXPECT_EQ(RashiNameText(9, true), "SAG");
  EXPECT_EQ(RashiNameText(9, false), "Sagittarius");
  EXPECT_EQ(RashiNameText(9, true, 1), "Sagittarius");
  EXPECT_EQ(RashiNameLang(2, 1), "o`\"k");
  EXPECT_EQ(RashiNameLang(2, 2), "Taurus");
  EXPECT_ERROR(Subscript, RashiNameLang(13, 1));
  EXPECT_EQ(BodyNameUpper(8), "MOON");
}

// The number and the code of a sign's lord are two lists of one thing.
TEST(Zodiac, LordsByNumberAndByCodeAreTheSame) {
  for (std::int16_t sign = 1; sign <= 12; ++sign) {
    const std::string_view name = BodyName(RashiLordNumber(sign));
    const std::string_view code = RashiLordCodeAt(sign);
    EXPECT_EQ(name[0], code[0]) << int{sign};
    EXPECT_EQ(std::toupper(name[2]), code[2]) << int{sign};
  }
}

TEST(Zodiac, HousesCountFromTheAscendantsSign) {
  EXPECT_EQ(HouseOfSign(45, 2), 1);
  EXPECT_EQ(HouseOfSign(45, 1), 12);
  EXPECT_EQ(HouseOfSign(45, 12), 11);
  EXPECT_EQ(HouseOfSign(360, 1), 1);
  EXPECT_ERROR(Subscript, HouseOfSign(45, 13));
}

TEST(Dignities, HoldInTheirRanges) {
  constexpr double kSecond = 1.0 / 3600;
  EXPECT_EQ(ExaltTest("Sun", 0), "");
  EXPECT_EQ(ExaltTest("Sun", 1.1 * kSecond), "EXL");
  EXPECT_EQ(ExaltTest("sun", 30), "EXL");
  EXPECT_EQ(ExaltTest("Sun", 30 + kSecond), "");
  EXPECT_EQ(DebilTest("Saturn", 0), "");
  EXPECT_EQ(DebilTest("Venus", 180), "DEB");
  EXPECT_EQ(DebilTest("Venus", 150), "DEB");
  EXPECT_EQ(ExaltTest("SAT", 180), "");
  EXPECT_EQ(ExaltTest("Mercury", 150), "EXL");
  EXPECT_EQ(ExaltTest("MON", 45), "EXL");
  EXPECT_EQ(DebilTest("Moon", 215), "DEB");
  EXPECT_EQ(DebilTest("Mars", 90), "");
  EXPECT_EQ(DebilTest("Mars", 90 + 1.1 * kSecond), "DEB");
  EXPECT_EQ(ExaltTest("Jupiter", 90), "");
  EXPECT_EQ(ExaltTest("Jupiter", 120), "EXL");
  EXPECT_EQ(ExaltTest("Rahu", 45), "");
}

TEST(Dignities, BodiesNearTheSunAreCombust) {
  EXPECT_EQ(CombustTest("Moon", 321.86, 320.07), "COM");
  EXPECT_EQ(CombustTest("MON", 12, 0), "COM");
  EXPECT_EQ(CombustTest("Venus", 10.001, 0), "");
  EXPECT_EQ(CombustTest("Mars", 0, 17), "COM");
  EXPECT_EQ(CombustTest("Mercury", 359, 1), "");  // no wrap is made
  EXPECT_EQ(CombustTest("Sun", 1, 1), "");
  EXPECT_EQ(CombustTest("Rahu", 1, 1), "");
}

TEST(DegreeSplit, CarriesWhatItRounds) {
  const auto fields = [](const DegreeSplit& split) {
    return std::tuple(split.Sign, split.Degrees, split.Minutes, split.Seconds);
  };
  EXPECT_EQ(fields(RoundedSplit(308.27481352821326)), std::tuple(10, 8, 16, 29));
  EXPECT_EQ(fields(RoundedSplit(326.9413331398652)), std::tuple(10, 26, 56, 29));
  EXPECT_EQ(fields(RoundedSplit(59.99999)), std::tuple(2, 0, 0, 0));
  EXPECT_EQ(fields(RoundedSplit(359.99999)), std::tuple(12, 0, 0, 0));
  EXPECT_EQ(fields(RoundedSplit(390.5)), std::tuple(1, 0, 30, 0));
  EXPECT_EQ(fields(ExactSplit(59.99999)), std::tuple(1, 29, 59, 59));
  EXPECT_NEAR(ExactSplit(59.99999).Fraction, 0.964, 1e-6);
}

}  // namespace
}  // namespace engine
