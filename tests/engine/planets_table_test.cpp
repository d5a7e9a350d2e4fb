// A chart's tables, and the lords of longitudes.

#include "engine/planets_table.h"

#include <sstream>
#include <string>

#include "engine/clsPP.h"
#include "engine/sub_lords.h"
#include "support/app_folder.h"
#include "support/machine_fakes.h"
#include "support/test.h"
#include "support/words.h"

namespace engine {
namespace {

struct PlanetsTables : testing::Test {
  PlanetsTables() { pp.GenHoro(5, 3, 2011, 6, 12, 9, "77.13E", "28.40N", "82.30E", 0, -1, 0); }
  clsPP pp;
};

std::string Joined(const auto&... parts) {
  return (std::ostringstream() << ... << parts).str();
}

std::string Text(const PlanetCells& row) {
  return Joined(row.Name, ' ', row.Sign, ' ', row.Degrees, ':', row.Minutes, ':', row.Seconds, ' ',
                row.Star, '/', row.Quarter, ' ', row.RashiLord, ' ', row.NakLord);
}

// Cells; sub lord and sub-sub lord; combustion, dignity and motion.
const std::array<std::string, 3> kDelhi[] = {
#include "engine/planets_delhi.inc"
};

TEST_F(PlanetsTables, MatchIndependentResults) {
  support::FakeMessageBoxes boxes;
  const PlanetsTable table = pp.getPlanetsTable(boxes);
  const PlanetsTable2 table2 = pp.getPlanetsTable2();
  for (std::size_t i = 0; i < 13; ++i) {
    const auto& [cells, lords, state] = kDelhi[i];
    EXPECT_EQ(Text(table[i]), cells);
    EXPECT_EQ(Joined(table[i].SubLord, ' ', table[i].SubSubLord), lords);
    EXPECT_EQ(Text(table2[i]), cells);
    EXPECT_EQ(Joined(table2[i].Combust, '|', table2[i].Dignity, '|', table2[i].Motion), state);
  }
}

TEST_F(PlanetsTables, GiveDignitiesByBody) {
  pp.pp_Saturn = 185;
  pp.pp_Venus = 170;
  const PlanetsTable2 table = pp.getPlanetsTable2();
  EXPECT_EQ(table[7].Dignity + table[6].Dignity, "EXLDEB");
}

TEST_F(PlanetsTables, FailAt360Degrees) {
  pp.pp_Sun = 360;
  EXPECT_ERROR(Subscript, pp.getPlanetsTable2());
}

TEST(NamesOfAChart, AreFoundByNumberAndByLongitude) {
  EXPECT_EQ(clsPP::getPlanetName(2.5), "Sun");
  ExpectRows(clsPP::getRashiName, Row(0, "Aries"), Row(11, "Pisces"));
  EXPECT_ERROR(Subscript, clsPP::getRashiName(-1));
  ExpectRows(clsPP::GetRashiLord, Row(0, "4"), Row(330, "6"));
}

TEST(AyanamsaText, IsInTheCurrentLanguage) {
  const support::AppFolderScope folder;
  folder.Write("Language/ehindi.txt", "Ayanamsa\xA7word\n:\xA7 - \n");
  foundation::SessionTable session;
  session.CurrentLanguage = 1;
  clsPP pp;
  pp.GenHoro(2, 5, 1946, 12, 28, 45, "74.01W", "40.43N", "75.0W", 0, -1, 0);  // 23.10326752771809
  EXPECT_EQ(pp.getAyan(session), "word - 23 - 6 - 12");
}

struct SubLords : testing::Test {
  support::FakeMessageBoxes boxes;
};

TEST_F(SubLords, MatchIndependentResults) {
  const std::tuple<double, std::string_view, std::string_view, std::string_view> kCases[] = {
#include "engine/sub_lords.inc"
  };
  for (const auto& [seconds, star, sub, subSub] : kCases) {
    EXPECT_EQ(StarLordOf(seconds, boxes), star) << seconds;
    EXPECT_EQ(SubLordOf(seconds, boxes), sub) << seconds;
    EXPECT_EQ(SubSubLordOf(seconds, boxes), subSub) << seconds;
  }
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(SubLords, StarsFollowTheCycleOfTheLords) {
  constexpr std::string_view kCycle[] = {"Ketu", "Venus",   "Sun",    "Moon",   "Mars",
                                         "Rahu", "Jupiter", "Saturn", "Mercury"};
  for (int star = 0; star < 27; ++star) {
    EXPECT_EQ(StarTable[star].Lord, kCycle[star % 9]);
    EXPECT_EQ(clsPP::GetNakLord((star + 0.5) * 40 / 3), kCycle[star % 9]);
  }
  EXPECT_EQ(support::Translated(27, 4, [](int star) { return StarTable[star - 1].Name; }),
            "Ashv Bhar Kart Rohi Mrig Ardr Puna Pusy Asle Magh P.Ph U.Ph Hast Chit Swat Vish Anur "
            "Jyes Mool P.As U.As Shar Dhan Satb P.Bh U.Bh Revt");
}

TEST_F(SubLords, ChangeAtTheirBoundaries) {
  EXPECT_EQ(StarLordOf(47999, boxes), "Ketu");
  EXPECT_EQ(StarLordOf(48000, boxes), "Venus");
  // In table order, where the periods would have Venus; and past the table's end.
  const auto sub = [&](double seconds) { return SubLordOf(seconds, boxes); };
  ExpectRows(sub, Row(2799, "Ketu"), Row(2800, "Moon"), Row(48000 + 8000, "Sun"));
  // The end of a sign is not wrapped into the next; the star of the Sun has no row that starts
  // after it.
  EXPECT_EQ(SubSubLordOf(108000, boxes), "JUP");
}

TEST_F(SubLords, ShowAMessageOutsideTheZodiac) {
  for (const double seconds : {1296000.0, -1.0, 1e300}) {
    EXPECT_EQ(StarLordOf(seconds, boxes), "");
    EXPECT_EQ(SubSubLordOf(seconds, boxes), "JUP");
    EXPECT_ERROR(Subscript, SubLordOf(seconds, boxes));
  }
  EXPECT_EQ(boxes.shown.size(), 9u);
}

TEST(SubSubTable, HasThePrintedRows) {
  ExpectRows([](int row) { return SubSubTable()[row]; },
             Row(19, SubSubRow{"1421", "KET", "SUN", "MOO", "10920", "3 1 60", "10920"}),
             Row(360, SubSubRow{"1762", "MAR", "MER", "MER", "216000", "30 0 0", "108000"}),
             Row(361, SubSubRow{"1763", "MAR", "MER", "KET", "216962", "0 16 2", "962"}),
             Row(648, SubSubRow{"2050", "MER", "MER", "MER", "384000", "16 40 0", "60000"}),
             Row(728, SubSubRow{"2130", "MER", "SAT", "JUP", "430987", "29 43 7", "106987"}));
}

}  // namespace
}  // namespace engine
