#include "engine/sub_lords.h"

#include <gtest/gtest.h>

#include <set>

#include "support/errors.h"
#include "support/machine_fakes.h"

namespace engine {
namespace {

TEST(SubLords, AgreeWithLordsWorkedOutElsewhere) {
  const struct {
    double seconds;
    const char *star, *sub, *subSub;
  } kCases[] = {
#include "engine/sub_lords.inc"
  };
  support::FakeMessageBoxes boxes;
  for (const auto& expected : kCases) {
    SCOPED_TRACE(expected.seconds);
    EXPECT_EQ(StarLordOf(expected.seconds, boxes), expected.star);
    EXPECT_EQ(SubLordOf(expected.seconds, boxes), expected.sub);
    EXPECT_EQ(SubSubLordOf(expected.seconds, boxes), expected.subSub);
  }
  EXPECT_TRUE(boxes.shown.empty());
}

TEST(SubLords, ChangeAtTheirBoundaries) {
  support::FakeMessageBoxes boxes;
  EXPECT_EQ(StarLordOf(47999, boxes), "Ketu");
  EXPECT_EQ(StarLordOf(48000, boxes), "Venus");
  EXPECT_EQ(SubLordOf(2799, boxes), "Ketu");
  EXPECT_EQ(SubLordOf(2800, boxes), "Moon");  // by the table's order, where the periods have Venus
  EXPECT_EQ(SubLordOf(48000 + 8000, boxes), "Sun");  // around the table's end
}

// 108000 is not brought into the next sign: the star of the Sun has no row that begins after it.
TEST(SubLords, ASignsEndIsStillInTheSign) {
  support::FakeMessageBoxes boxes;
  EXPECT_EQ(SubSubLordOf(108000, boxes), "JUP");
}

TEST(SubLords, OutsideTheZodiacThereIsAMessageAndNoStar) {
  for (const double seconds : {1296000.0, -1.0, 1e300}) {
    SCOPED_TRACE(seconds);
    support::FakeMessageBoxes boxes;
    EXPECT_EQ(StarLordOf(seconds, boxes), "");
    EXPECT_EQ(SubSubLordOf(seconds, boxes), "JUP");
    EXPECT_ERROR(Subscript, SubLordOf(seconds, boxes));
    EXPECT_EQ(boxes.shown.size(), 3u);
  }
  support::FakeMessageBoxes boxes;
  StarLordOf(1296000, boxes);
  EXPECT_EQ(boxes.shown.at(0).text, "Subscript out of range");
}

TEST(SubSubTable, HasThePrintedRows) {
  const std::pair<int, SubSubRow> kRows[] = {
      {0, {"1402", "KET", "KET", "KET", "0", "0 0 0", "0"}},
      {1, {"1403", "KET", "KET", "VEN", "163", "0 2 43", "163"}},
      {2, {"1404", "KET", "KET", "SUN", "630", "0 10 30", "630"}},
      {9, {"1411", "KET", "VEN", "VEN", "2800", "0 46 40", "2800"}},
      {19, {"1421", "KET", "SUN", "MOO", "10920", "3 1 60", "10920"}},
      {81, {"1483", "VEN", "VEN", "VEN", "48000", "13 20 0", "48000"}},
      {360, {"1762", "MAR", "MER", "MER", "216000", "30 0 0", "108000"}},
      {361, {"1763", "MAR", "MER", "KET", "216962", "0 16 2", "962"}},
      {648, {"2050", "MER", "MER", "MER", "384000", "16 40 0", "60000"}},
      {728, {"2130", "MER", "SAT", "JUP", "430987", "29 43 7", "106987"}},
  };
  for (const auto& [row, columns] : kRows) EXPECT_EQ(SubSubTable()[row], columns);
}

// Every star has each pair of lords once.
TEST(SubSubTable, HasEveryTripleOfLordsOnce) {
  std::set<std::string> triples;
  for (int i = 0; i <= 728; ++i) {
    const SubSubRow& row = SubSubTable()[i];
    triples.insert(row[1] + row[2] + row[3]);
  }
  EXPECT_EQ(triples.size(), 729u);
}

}  // namespace
}  // namespace engine
