#include "foundation/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "foundation/checked.h"
#include "support/errors.h"
#include "support/table.h"

namespace foundation {
namespace {

using support::Row;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(Rounding, GoesToTheNearestWithTiesToEven) {
  ExpectRows(RoundToInt16, Row(0.5, 0), Row(1.5, 2), Row(-0.5, 0), Row(-1.5, -2), Row(-2.5, -2),
             Row(32767.49, 32767), Row(-32768.5, -32768));
  ExpectRows(RoundToInt32, Row(2147483647.4, 2147483647), Row(0.49999999999999994, 0));
  EXPECT_EQ(FloorToInt16(-0.25), -1);
  EXPECT_ERROR(Overflow, RoundToInt16(32767.5));
  EXPECT_ERROR(Overflow, RoundToInt32(2147483647.5));
  EXPECT_ERROR(Overflow, RoundToInt32(std::nan("")));
  EXPECT_ERROR(Overflow, FloorToInt32(2147483648.0));
}

TEST(LeadingNumber, IsTheNumericPartThatTheTextBeginsWith) {
  const std::string nines(400, '9');
  ExpectRows(LeadingNumber, Row("12abc", 12), Row("77.13E", 77.13), Row("77.13E5", 7713000),
             Row("77.13E+", 77.13), Row("  -5.30", -5.3), Row("+11", 11), Row(".5", 0.5),
             Row("5.", 5), Row("1.2.3", 1.2), Row("1,5", 1), Row("", 0), Row("abc", 0),
             Row("inf", 0), Row("nan", 0), Row("0x10", 0), Row("-", 0), Row(".", 0),
             Row("1e-400", 0), Row("3E", 3), Row("0." + std::string(400, '0') + "1e10", 0));
  for (const auto& text :
       {std::string("1e400"), nines, "-" + nines + "e-5", std::string("1e99999999999999999999")}) {
    EXPECT_ERROR(Overflow, LeadingNumber(text));
  }
}

TEST(WholeNumber, TakesNothingButANumber) {
  ExpectRows(WholeNumber, Row(" 28.5 ", 28.5), Row("28.5N", std::nullopt), Row("", std::nullopt));
}

TEST(DecimalOf, IsWhatTheShortTextOf32BitsSays) {
  ExpectRows(DecimalOf, Row(4000.2F, 4000.2), Row(-1e30F, -1e30));
  EXPECT_ERROR(Overflow, DecimalOf(std::numeric_limits<float>::infinity()));
}

TEST(NumberText, IsTheShortestThatReadsBack) {
  const auto written = [](double number) {
    EXPECT_EQ(LeadingNumber(NumberText(number)), number);
    return NumberText(number);
  };
  ExpectRows(written, Row(0, "0"), Row(-0.0, "0"), Row(28, "28"), Row(28.4, "28.4"),
             Row(0.5, "0.5"), Row(-0.05, "-0.05"), Row(28.666666666666668, "28.666666666666668"),
             Row(0.0001, "0.0001"), Row(0.00001, "1E-05"), Row(1e15, "1000000000000000"),
             Row(1e16, "1E+16"), Row(0.1 + 0.2, "0.30000000000000004"));
  EXPECT_ERROR(Overflow, NumberText(kInfinity));
}

TEST(NumberTexts, AreRoundedAndGrouped) {
  // An exact tie goes to even; 1.005 is below itself.
  ExpectRows(FixedText, Row(2.5, 2, "2.50"), Row(0.125, 2, "0.12"), Row(1.005, 2, "1.00"),
             Row(1e20, 1, "100000000000000000000.0"));
  EXPECT_ERROR(InvalidCall, FixedText(1, -1));
  ExpectRows(GroupedText, Row(0, "0"), Row(999, "999"), Row(-100, "-100"), Row(202281, "202,281"),
             Row(-1234567, "-1,234,567"));
}

TEST(CheckedArithmetic, MakesTrapsErrors) {
  constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
  EXPECT_ERROR(DivisionByZero, Divide(1, 0.0));
  EXPECT_ERROR(Overflow, Divide(1e300, 1e-300));
  EXPECT_ERROR(InvalidCall, SquareRoot(-1e-9));
  EXPECT_ERROR(InvalidCall, Finite(std::nan("")));
  EXPECT_ERROR(DivisionByZero, IntegerDivide(1, 0));
  EXPECT_ERROR(Overflow, IntegerDivide(kLeast, -1));
  EXPECT_EQ(IntegerDivide(-7, 2), -3);
}

}  // namespace
}  // namespace foundation
