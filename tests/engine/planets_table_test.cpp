// The tables of a chart: planets and the lords of their longitudes.

#include "engine/planets_table.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>

#include "engine/clsPP.h"
#include "engine/sub_lords.h"
#include "support/app_folder.h"
#include "support/errors.h"
#include "support/machine_fakes.h"
#include "support/table.h"

namespace engine {
namespace {

using support::Row;

struct PlanetsTables : testing::Test {
  PlanetsTables() { pp.GenHoro(5, 3, 2011, 6, 12, 9, "77.13E", "28.40N", "82.30E", 0, -1, 0); }
  clsPP pp;
};

std::string Text(const PlanetCells& row) {
  std::ostringstream text;
  text << row.Name << ' ' << row.Sign << ' ' << row.Degrees << ':' << row.Minutes << ':'
       << row.Seconds << ' ' << row.Star << '/' << row.Quarter << ' ' << row.RashiLord << ' '
       << row.NakLord;
  return text.str();
}

constexpr struct {
  const char *Cells, *SubLords, *State;  // State: combust, dignity, motion
} kDelhi[13] = {
#include "engine/planets_delhi.inc"
};

TEST_F(PlanetsTables, HaveTheRowsWorkedOutElsewhere) {
  support::FakeMessageBoxes boxes;
  const PlanetsTable table = pp.getPlanetsTable(boxes);
  const PlanetsTable2 table2 = pp.getPlanetsTable2();
  for (std::size_t i = 0; i < 13; ++i) {
    EXPECT_EQ(Text(table[i]), kDelhi[i].Cells);
    EXPECT_EQ(Text(table2[i]), kDelhi[i].Cells);
    std::ostringstream lords, state;
    lords << table[i].SubLord << ' ' << table[i].SubSubLord;
    state << table2[i].Combust << '|' << table2[i].Dignity << '|' << table2[i].Motion;
    EXPECT_EQ(lords.str(), kDelhi[i].SubLords);
    EXPECT_EQ(state.str(), kDelhi[i].State);
  }
  EXPECT_NEAR(table[1].Longitude, 320.0738526393651, 1e-9);
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(PlanetsTables, TellDignitiesByTheBodysOwnName) {
  pp.pp_Saturn = 185;
  pp.pp_Venus = 170;
  const PlanetsTable2 table = pp.getPlanetsTable2();
  EXPECT_EQ(table[7].Dignity, "EXL");
  EXPECT_EQ(table[6].Dignity, "DEB");
}

TEST_F(PlanetsTables, FailAtTheVeryEndOfTheZodiac) {
  pp.pp_Sun = 360;
  EXPECT_ERROR(Subscript, pp.getPlanetsTable2());
}

TEST(NamesOfAChart, ComeByNumberAndByLongitude) {
  ExpectRows(clsPP::getPlanetName, Row(0, ""), Row(1, "Asc"), Row(2.5, "Sun"), Row(13, "Pluto"));
  EXPECT_ERROR(Subscript, clsPP::getPlanetName(14));
  ExpectRows(clsPP::getRashiName, Row(0, "Aries"), Row(11, "Pisces"));
  EXPECT_ERROR(Subscript, clsPP::getRashiName(12));
  EXPECT_ERROR(Subscript, clsPP::getRashiName(-1));
  ExpectRows(clsPP::GetNakLord, Row(0, "Ketu"), Row(13.34, "Venus"), Row(359.9, "Mercury"));
  ExpectRows(clsPP::GetRashiLord, Row(0, "4"), Row(330, "6"));
  EXPECT_ERROR(Subscript, clsPP::GetRashiLord(360));
}

TEST(AyanamsaText, IsInTheCurrentLanguage) {
  const support::AppFolderScope folder;
  folder.Write("Language/ehindi.txt", "Ayanamsa\xA7word\n:\xA7 - \n");
  foundation::SessionTable session;
  session.CurrentLanguage = 1;
  clsPP pp;
  pp.GenHoro(2, 5, 1946, 12, 28, 45, "74.01W", "40.43N", "75.0W", 0, -1, 0);  // 23.10326752771809
  EXPECT_EQ(pp.getAyan(session), "word - 23 - 6 - 12");
  session.CurrentLanguage = 0;
  EXPECT_ERROR(FileNotFound, pp.getAyan(session));
}

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
  // Every star has each pair of lords once.
  std::set<std::string> triples;
  for (int i = 0; i <= 728; ++i) {
    const SubSubRow& row = SubSubTable()[i];
    triples.insert(row[1] + row[2] + row[3]);
  }
  EXPECT_EQ(triples.size(), 729u);
}

}  // namespace
}  // namespace engine
