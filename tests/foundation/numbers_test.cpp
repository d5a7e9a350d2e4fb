#include "foundation/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>

#include "foundation/checked.h"
#include "support/errors.h"

namespace foundation {
namespace {

TEST(Rounding, GoesToTheNearestWithTiesToEven) {
  EXPECT_EQ(RoundToInt16(0.5), 0);
  EXPECT_EQ(RoundToInt16(1.5), 2);
  EXPECT_EQ(RoundToInt16(-0.5), 0);
  EXPECT_EQ(RoundToInt16(-1.5), -2);
  EXPECT_EQ(RoundToInt16(-2.5), -2);
  EXPECT_EQ(RoundToInt32(2147483647.4), 2147483647);
  EXPECT_EQ(RoundToInt32(0.49999999999999994), 0);
}

TEST(Rounding, OverflowsWhereTheResultDoesNotFit) {
  EXPECT_EQ(RoundToInt16(32767.49), 32767);
  EXPECT_EQ(RoundToInt16(-32768.5), -32768);
  EXPECT_ERROR(Overflow, RoundToInt16(32767.5));
  EXPECT_ERROR(Overflow, RoundToInt32(2147483647.5));
  EXPECT_ERROR(Overflow, RoundToInt32(std::nan("")));
  EXPECT_ERROR(Overflow, FloorToInt32(2147483648.0));
  EXPECT_EQ(FloorToInt16(-0.25), -1);
}

TEST(LeadingNumber, IsTheNumericPartThatTheTextBeginsWith) {
  const std::pair<const char*, double> kCases[] = {
      {"12abc", 12},      {"77.13E", 77.13}, {"77.13E5", 7713000},
      {"77.13E+", 77.13}, {"  -5.30", -5.3}, {"+11", 11},
      {".5", 0.5},        {"5.", 5},         {"1.2.3", 1.2},
      {"1,5", 1},         {"", 0},           {"abc", 0},
      {"inf", 0},         {"nan", 0},        {"0x10", 0},
      {"-", 0},           {".", 0},          {"1e-400", 0},
      {"3E", 3},
  };
  for (const auto& [text, number] : kCases) EXPECT_EQ(LeadingNumber(text), number) << text;
  EXPECT_ERROR(Overflow, LeadingNumber("1e400"));
  EXPECT_ERROR(Overflow, LeadingNumber(std::string(400, '9')));
  EXPECT_ERROR(Overflow, LeadingNumber("-" + std::string(400, '9') + "e-5"));
  EXPECT_ERROR(Overflow, LeadingNumber("1e99999999999999999999"));
  EXPECT_EQ(LeadingNumber("0." + std::string(400, '0') + "1e10"), 0);
}

TEST(WholeNumber, TakesNothingButANumber) {
  EXPECT_EQ(WholeNumber(" 28.5 "), 28.5);
  EXPECT_EQ(WholeNumber("28.5N"), std::nullopt);
  EXPECT_EQ(WholeNumber(""), std::nullopt);
}

TEST(DecimalOf, IsWhatTheShortTextOf32BitsSays) {
  EXPECT_EQ(DecimalOf(4000.2F), 4000.2);
  EXPECT_EQ(DecimalOf(-1e30F), -1e30);
  EXPECT_ERROR(Overflow, DecimalOf(std::numeric_limits<float>::infinity()));
}

TEST(NumberText, IsTheShortestThatReadsBack) {
  const std::pair<double, const char*> kCases[] = {
      {0, "0"},
      {-0.0, "0"},
      {28, "28"},
      {28.4, "28.4"},
      {0.5, "0.5"},
      {-0.05, "-0.05"},
      {28.666666666666668, "28.666666666666668"},
      {0.0001, "0.0001"},
      {0.00001, "1E-05"},
      {1e15, "1000000000000000"},
      {1e16, "1E+16"},
      {0.1 + 0.2, "0.30000000000000004"},
  };
  for (const auto& [number, text] : kCases) {
    EXPECT_EQ(NumberText(number), text);
    EXPECT_EQ(LeadingNumber(text), number);
  }
  EXPECT_ERROR(Overflow, NumberText(std::numeric_limits<double>::infinity()));
}

TEST(FixedText, RoundsTheExactValue) {
  EXPECT_EQ(FixedText(2.5, 2), "2.50");
  EXPECT_EQ(FixedText(0.125, 2), "0.12");  // an exact tie goes to even
  EXPECT_EQ(FixedText(1.005, 2), "1.00");  // which is below 1.005
  EXPECT_EQ(FixedText(1e20, 1), "100000000000000000000.0");
  EXPECT_ERROR(InvalidCall, FixedText(1, -1));
}

TEST(CheckedArithmetic, MakesTrapsErrors) {
  EXPECT_ERROR(DivisionByZero, Divide(1, 0.0));
  EXPECT_ERROR(Overflow, Divide(1e300, 1e-300));
  EXPECT_ERROR(InvalidCall, SquareRoot(-1e-9));
  EXPECT_ERROR(InvalidCall, Finite(std::nan("")));
  EXPECT_ERROR(DivisionByZero, IntegerDivide(1, 0));
  EXPECT_ERROR(Overflow, IntegerDivide(std::numeric_limits<std::int64_t>::min(), -1));
  EXPECT_EQ(IntegerDivide(-7, 2), -3);
  EXPECT_EQ(IntegerRemainder(-7, 2), -1);
  EXPECT_EQ(IntegerRemainder(std::numeric_limits<std::int64_t>::min(), -1), 0);
}

TEST(NumberTexts, GroupDigitsByThree) {
  EXPECT_EQ(GroupedText(0), "0");
  EXPECT_EQ(GroupedText(999), "999");
  EXPECT_EQ(GroupedText(-100), "-100");
  EXPECT_EQ(GroupedText(202281), "202,281");
  EXPECT_EQ(GroupedText(-1234567), "-1,234,567");
}

}  // namespace
}  // namespace foundation
