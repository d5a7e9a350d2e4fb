#include "support/errors.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>

#include "foundation/bounded_array.h"
#include "foundation/checked.h"
#include "foundation/resume.h"
#include "foundation/session.h"

namespace foundation {
namespace {

TEST(Resume, GoesOnAfterAFailedStatementAndTellsSo) {
  int value = 1;
  EXPECT_FALSE(Resume([&] { value = RoundToInt16(1e9); }));
  EXPECT_EQ(value, 1);
  EXPECT_TRUE(Resume([&] { value = 2; }));
  EXPECT_EQ(value, 2);
  // Only the system's own errors are resumed from.
  EXPECT_THROW(Resume([] { throw std::logic_error("a fault of the program"); }), std::logic_error);
}

TEST(Errors, KeepFromReadingWhatIsNotThere) {
  BoundedArray<int, 1, 9> boundaries;
  boundaries[1] = 10;
  boundaries[9] = 90;
  EXPECT_EQ(boundaries[1] + boundaries[9], 100);
  EXPECT_ERROR(Subscript, boundaries[0]);
  EXPECT_ERROR(Subscript, boundaries[10]);
  EXPECT_EQ(Filled(std::optional<int>(3)), 3);
  EXPECT_ERROR(Subscript, Filled(std::optional<int>()));
}

TEST(SessionTable, HoldsRecords0To1000) {
  SessionTable session;
  session.CurrentRecord = 1000;
  session.Current().CityName = "Delhi";
  EXPECT_EQ(session.Records[1000].CityName, "Delhi");
  for (const std::int16_t outside : {std::int16_t{-1}, std::int16_t{1001}}) {
    session.CurrentRecord = outside;
    EXPECT_ERROR(Subscript, session.Current());
    EXPECT_ERROR(Subscript, InitSessionRecord(session, 0));
  }
}

TEST(SessionTable, FillsOnlyAFreshRecord) {
  SessionTable session;
  SessionRecord& record = session.Current();
  record.PersonName = "left over";
  InitSessionRecord(session, DateFromParts(2011, 3, 5) + TimeFromParts(6, 12, 9));
  EXPECT_EQ(record.PersonName, "");
  EXPECT_EQ(std::tuple(record.RecordFlag, record.RahuKetuFlag, record.AyanamsaChoice),
            std::tuple(-1, -1, 0));
  const std::array filled = {record.Day,  record.Month,  record.Year,
                             record.Hour, record.Minute, record.Second};
  EXPECT_EQ(filled, (std::array<double, 6>{5, 3, 2011, 6, 12, 9}));
  InitSessionRecord(session, DateFromParts(2030, 1, 1));
  EXPECT_EQ(record.Year, 2011);
}

}  // namespace
}  // namespace foundation
