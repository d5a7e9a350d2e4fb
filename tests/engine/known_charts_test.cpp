// Whole charts worked out independently of this code, in every ayanamsa mode that has a result.

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <string>

#include "engine/clsPP.h"

namespace engine {
namespace {

struct KnownChart {
  struct {
    double day, month, year, hour, minute, second;
  } at;
  struct {
    const char *longitude, *latitude, *zone;
  } place;
  std::int32_t mode;
  foundation::Boolean16 correctedNode;
  double correction;
  std::array<double, 26> positions;
  double siderealTime;
  std::array<double, 12> cusps, sandhis;
  std::array<const char*, 10> wideRows;
  std::array<const char*, 7> narrowDivisions;
  std::array<const char*, 3> relations;
  const char* motion;
};

void PrintTo(const KnownChart& chart, std::ostream* os) {
  *os << chart.place.longitude << ' ' << chart.at.year;
}

const KnownChart kCharts[] = {
#include "engine/known_charts.inc"
};

class KnownCharts : public testing::TestWithParam<KnownChart> {
 protected:
  KnownCharts() {
    pp.GenHoro(chart.at.day, chart.at.month, chart.at.year, chart.at.hour, chart.at.minute,
               chart.at.second, chart.place.longitude, chart.place.latitude, chart.place.zone,
               chart.mode, chart.correctedNode, chart.correction);
  }

  const KnownChart& chart = GetParam();
  clsPP pp;
};

// Elements `first` to `last` of a row, apart by blanks.
template <typename Row>
std::string Text(const Row& row, int first, int last) {
  std::string text;
  for (int i = first; i <= last; ++i) {
    if (i > first) text += ' ';
    text += std::to_string(row[i]);
  }
  return text;
}

constexpr double kDegrees = 1e-9;

TEST_P(KnownCharts, HavePositions) {
  const Positions positions = pp.getPLNT();
  for (int i = 1; i <= 26; ++i) {
    EXPECT_NEAR(positions[i], chart.positions[static_cast<std::size_t>(i - 1)], kDegrees) << i;
  }
}

TEST_P(KnownCharts, HaveHouses) {
  EXPECT_NEAR(pp.getSidTime(), chart.siderealTime, kDegrees);
  for (int i = 1; i <= 12; ++i) {
    const auto at = static_cast<std::size_t>(i - 1);
    EXPECT_NEAR(pp.getBhavF2()[i], chart.cusps[at], kDegrees) << i;
    EXPECT_NEAR(pp.getBhavF3()[i], chart.sandhis[at], kDegrees) << i;
  }
}

TEST_P(KnownCharts, HaveDivisionsAndRelations) {
  for (int row = 1; row <= 10; ++row) {
    EXPECT_EQ(Text(pp.getaDiv()[row], 1, 20), chart.wideRows[static_cast<std::size_t>(row - 1)]);
  }
  for (int k = 1; k <= 7; ++k) {
    EXPECT_EQ(Text(pp.getVarga()[k], 1, 13),
              chart.narrowDivisions[static_cast<std::size_t>(k - 1)]);
  }
  for (int layer = 1; layer <= 3; ++layer) {
    std::string cells;
    for (int i = 1; i <= 9; ++i) {
      for (int j = 1; j <= 9; ++j) {
        const char cell = pp.getaMaitri()[layer][i][j];
        cells += cell == '\0' ? '.' : cell;
      }
    }
    EXPECT_EQ(cells, chart.relations[static_cast<std::size_t>(layer - 1)]);
  }
}

TEST_P(KnownCharts, TellWhoGoesBack) {
  std::string motion;
  for (std::int16_t body = 0; body <= 12; ++body) motion += pp.getRET(body) == "RET" ? 'R' : '.';
  EXPECT_EQ(motion, chart.motion);
}

INSTANTIATE_TEST_SUITE_P(Engine, KnownCharts, testing::ValuesIn(kCharts),
                         [](const auto& row) { return "Row" + std::to_string(row.index + 1); });

TEST(PublicVariables, ShowThePositions) {
  clsPP pp;
  pp.GenHoro(5, 3, 2011, 6, 12, 9, "77.13E", "28.40N", "82.30E", 4, foundation::kTrue16, 0);
  const Positions positions = pp.getPLNT();
  const double numbered[] = {pp.pp_1,  pp.pp_2,  pp.pp_3,  pp.pp_4,  pp.pp_5,  pp.pp_6,  pp.pp_7,
                             pp.pp_8,  pp.pp_9,  pp.pp_10, pp.pp_11, pp.pp_12, pp.pp_13, pp.pp_14,
                             pp.pp_15, pp.pp_16, pp.pp_17, pp.pp_18, pp.pp_19, pp.pp_20, pp.pp_21,
                             pp.pp_22, pp.pp_23, pp.pp_24, pp.pp_25, pp.pp_26};
  for (int i = 1; i <= 26; ++i) EXPECT_EQ(numbered[i - 1], positions[i]) << i;
  const double hourLater[] = {pp.pp_Sun13,     pp.pp_Moon13,   pp.pp_Mars13,    pp.pp_Mercury13,
                              pp.pp_Jupiter13, pp.pp_Venus13,  pp.pp_Saturn13,  pp.pp_Rahu13,
                              pp.pp_Ketu13,    pp.pp_Uranus13, pp.pp_Neptune13, pp.pp_Pluto13};
  for (int i = 1; i <= 12; ++i) {
    EXPECT_EQ(hourLater[i - 1], positions[BodyOrder[i + 1] + kHourLater]) << i;
    EXPECT_EQ(pp.getPLNTinSeq()[static_cast<std::size_t>(i)], positions[BodyOrder[i + 1]]) << i;
  }
  EXPECT_EQ(pp.pp_AYAN, positions[Ayanamsa]);
  EXPECT_EQ(pp.pp_ASC, pp.getBhavF2()[1]);
  EXPECT_EQ(pp.pp_ASC13, pp.pp_ASC);
  EXPECT_EQ(pp.getPLNTinSeq()[0], pp.pp_ASC);
}

}  // namespace
}  // namespace engine
