#include "engine/planets_table.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "engine/clsPP.h"
#include "support/app_folder.h"
#include "support/errors.h"
#include "support/machine_fakes.h"
#include "support/table.h"

namespace engine {
namespace {

using support::ExpectRows;
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

// Worked out independently of this code.
constexpr struct {
  const char *Cells, *SubLords, *State;  // State: combust, dignity, motion
} kDelhi[13] = {
    {"Asc 10 08:16:29 24/1 SAT RAHU", "Rahu VEN", "||"},
    {"Sun 10 20:04:26 25/1 SAT JUPITER", "Jupiter JUP", "|| "},
    {"Moon 10 21:51:35 25/1 SAT JUPITER", "Mercury SAT", "COM|| "},
    {"Mars 10 13:52:17 24/3 SAT RAHU", "Mars RAH", "COM|| "},
    {"Mercury 10 26:56:29 25/3 SAT JUPITER", "Saturn SUN", "COM|| "},
    {"Jupiter 11 14:39:00 26/4 JUP SATURN", "Mercury MOO", "|| "},
    {"Venus 9 09:25:47 21/4 SAT SUN", "Venus MER", "|| "},
    {"Saturn 5 21:58:56 13/4 MER MOON", "Mars SAT", "|| "},
    {"Rahu 8 05:54:51 19/2 JUP KETU", "Rahu JUP", "||RET"},
    {"Ketu 2 05:54:51 5/4 MER MARS", "Venus VEN", "||RET"},
    {"Uranus 11 05:34:30 26/1 JUP SATURN", "Venus MER", "|| "},
    {"Neptune 10 04:57:29 23/4 SAT MARS", "Venus VEN", "|| "},
    {"Pluto 8 13:09:16 19/4 JUP KETU", "Mars JUP", "|| "},
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

}  // namespace
}  // namespace engine
