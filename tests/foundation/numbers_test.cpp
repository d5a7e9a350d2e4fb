// Numbers, failing statements, and session records.

#include "foundation/numbers.h"

#include <cmath>
#include <limits>
#include <stdexcept>

#include "foundation/bounded_array.h"
#include "foundation/checked.h"
#include "foundation/resume.h"
#include "foundation/session.h"
#include "support/test.h"

namespace foundation {
namespace {

TEST(Rounding, RoundsToNearestWithTiesToEven) {
  ExpectRows(RoundToInt16, Row(0.5, 0), Row(1.5, 2), Row(-1.5, -2), Row(-2.5, -2),
             Row(32767.49, 32767), Row(-32768.5, -32768));
  ExpectRows(RoundToInt32, Row(2147483647.4, 2147483647), Row(0.49999999999999994, 0));
  EXPECT_EQ(FloorToInt16(-0.25), -1);
  EXPECT_ERROR(Overflow, RoundToInt16(32767.5));
  EXPECT_ERROR(Overflow, RoundToInt32(std::nan("")));
}

TEST(LeadingNumber, IsTheNumberATextBeginsWith) {
  ExpectRows(LeadingNumber, Row("12abc", 12), Row("77.13E", 77.13), Row("77.13E5", 7713000),
             Row("77.13E+", 77.13), Row("  -5.30", -5.3), Row("+11", 11), Row(".5", 0.5),
             Row("5.", 5), Row("1.2.3", 1.2), Row("1,5", 1), Row("", 0), Row("inf", 0),
             Row("nan", 0), Row("0x10", 0), Row("-", 0), Row(".", 0), Row("1e-400", 0),
             Row("0." + std::string(400, '0') + "1e10", 0));
  for (const std::string& text : {"1e" + std::string(20, '9'), std::string(400, '9') + "e-5"}) {
    EXPECT_ERROR(Overflow, LeadingNumber(text));
  }
  ExpectRows(WholeNumber, Row(" 28.5 ", 28.5), Row("28.5N", std::nullopt), Row("", std::nullopt));
}

TEST(NumberText, IsTheShortestThatReadsBack) {
  const auto written = [](double number) {
    EXPECT_EQ(LeadingNumber(NumberText(number)), number);
    return NumberText(number);
  };
  ExpectRows(written, Row(0, "0"), Row(-0.0, "0"), Row(28.4, "28.4"),
             Row(28.666666666666668, "28.666666666666668"), Row(0.0001, "0.0001"),
             Row(0.00001, "1E-05"), Row(1e15, "1000000000000000"), Row(1e16, "1E+16"));
  ExpectRows(DecimalOf, Row(4000.2F, 4000.2), Row(-1e30F, -1e30));  // from the 32-bit text
  EXPECT_ERROR(Overflow, NumberText(std::numeric_limits<double>::infinity()));
}

TEST(NumberTexts, AreRoundedAndGrouped) {
  // Exact ties go to even; 1.005 is stored as slightly less.
  ExpectRows(FixedText, Row(2.5, 2, "2.50"), Row(0.125, 2, "0.12"), Row(1.005, 2, "1.00"));
  ExpectRows(GroupedText, Row(0, "0"), Row(-100, "-100"), Row(202281, "202,281"),
             Row(-1234567, "-1,234,567"));
}

TEST(CheckedArithmetic, RaisesErrors) {
  constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
  EXPECT_ERROR(DivisionByZero, Divide(1, 0.0));
  EXPECT_ERROR(Overflow, Divide(1e300, 1e-300));
  EXPECT_ERROR(InvalidCall, SquareRoot(-1e-9));
  EXPECT_ERROR(InvalidCall, Finite(std::nan("")));
  EXPECT_ERROR(DivisionByZero, IntegerDivide(1, 0));
  EXPECT_ERROR(Overflow, IntegerDivide(kLeast, -1));
  EXPECT_EQ(IntegerDivide(-7, 2), -3);
}

TEST(Resume, SwallowsTheProgramsOwnErrors) {
  EXPECT_FALSE(Resume([] { RoundToInt16(1e9); }));
  EXPECT_TRUE(Resume([] {}));
  EXPECT_THROW(Resume([] { throw std::logic_error("a bug"); }), std::logic_error);
}

TEST(Errors, PreventReadingMissingElements) {
  const BoundedArray<int, 1, 2> ends(std::array{10, 20});
  EXPECT_EQ(ends[1] + ends[2], 30);
  EXPECT_ERROR(Subscript, ends[0]);
  EXPECT_ERROR(Subscript, ends[3]);
  EXPECT_ERROR(Subscript, Filled(std::optional<int>()));
}

TEST(SessionTable, FillsOnlyAFreshRecordOf0To1000) {
  SessionTable session;
  session.CurrentRecord = 1000;
  SessionRecord& record = session.Current();
  record = {.PersonName = "left over", .AyanamsaChoice = 4, .ReservedText = "kept"};
  InitSessionRecord(session, DateFromParts(2011, 3, 5) + TimeFromParts(6, 12, 9));
  InitSessionRecord(session, DateFromParts(2030, 1, 1));
  EXPECT_EQ(record.PersonName + "|" + record.ReservedText, "|kept");
  EXPECT_EQ(std::tuple(record.RecordFlag, record.AyanamsaChoice, record.RahuKetuFlag, record.Day,
                       record.Month, record.Year, record.Hour, record.Minute, record.Second),
            std::tuple(-1, 0, -1, 5, 3, 2011, 6, 12, 9));
  session.CurrentRecord = 1001;
  EXPECT_ERROR(Subscript, InitSessionRecord(session, 0));
}

}  // namespace
}  // namespace foundation
