// Complete charts calculated independently of this code, in every ayanamsa mode that works, and
// positions from an independent ephemeris, within the accuracy of low-precision theories.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>

#include "engine/clsPP.h"

namespace engine {
namespace {

struct KnownChart {
  std::array<double, 6> at;
  std::array<const char*, 3> place;
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

const KnownChart kCharts[] = {
#include "engine/known_charts.inc"
};

template <typename Check>
void ForEachChart(const Check& check) {
  for (const KnownChart& chart : kCharts) {
    const auto& [day, month, year, hour, minute, second] = chart.at;
    const auto& [longitude, latitude, zone] = chart.place;
    SCOPED_TRACE(year);
    clsPP pp;
    pp.GenHoro(day, month, year, hour, minute, second, longitude, latitude, zone, chart.mode,
               chart.correctedNode, chart.correction);
    check(chart, pp);
  }
}

// Elements from index 1.
void ExpectDegrees(const auto& degrees, const auto& expected) {
  int i = 0;
  for (const double element : expected) {
    ++i;
    EXPECT_NEAR(degrees[i], element, 1e-9) << i;
  }
}

std::string Text(const auto& row, int last) {
  std::string text = std::to_string(row[1]);
  for (int i = 2; i <= last; ++i) text += " " + std::to_string(row[i]);
  return text;
}

TEST(KnownCharts, HavePositionsAndHouses) {
  ForEachChart([](const KnownChart& chart, const clsPP& pp) {
    ExpectDegrees(pp.getPLNT(), chart.positions);
    ExpectDegrees(pp.getBhavF2(), chart.cusps);
    ExpectDegrees(pp.getBhavF3(), chart.sandhis);
    EXPECT_NEAR(pp.getSidTime(), chart.siderealTime, 1e-9);
    std::string motion;
    for (std::int16_t body = 0; body <= 12; ++body) motion += pp.getRET(body) == "RET" ? 'R' : '.';
    EXPECT_EQ(motion, chart.motion);
  });
}

TEST(KnownCharts, HaveDivisionsAndRelations) {
  ForEachChart([](const KnownChart& chart, const clsPP& pp) {
    int row = 0, division = 0, layer = 0;
    for (const char* wide : chart.wideRows) EXPECT_EQ(Text(pp.getaDiv()[++row], 20), wide);
    for (const char* narrow : chart.narrowDivisions) {
      EXPECT_EQ(Text(pp.getVarga()[++division], 13), narrow);
    }
    for (const char* relations : chart.relations) {
      ++layer;
      std::string cells;
      for (int cell = 0; cell < 81; ++cell) {
        const char c = pp.getaMaitri()[layer][cell / 9 + 1][cell % 9 + 1];
        cells += c == '\0' ? '.' : c;
      }
      EXPECT_EQ(cells, relations);
    }
  });
}

TEST(PublicVariables, MatchThePositions) {
  clsPP pp;
  pp.GenHoro(5, 3, 2011, 6, 12, 9, "77.13E", "28.40N", "82.30E", 4, foundation::kTrue16, 0);
  const double numbered[] = {pp.pp_1,  pp.pp_2,  pp.pp_3,  pp.pp_4,  pp.pp_5,  pp.pp_6,  pp.pp_7,
                             pp.pp_8,  pp.pp_9,  pp.pp_10, pp.pp_11, pp.pp_12, pp.pp_13, pp.pp_14,
                             pp.pp_15, pp.pp_16, pp.pp_17, pp.pp_18, pp.pp_19, pp.pp_20, pp.pp_21,
                             pp.pp_22, pp.pp_23, pp.pp_24, pp.pp_25, pp.pp_26};
  for (int i = 1; i <= 26; ++i) EXPECT_EQ(numbered[i - 1], pp.getPLNT()[i]) << i;
  const double hourLater[] = {pp.pp_Sun13,     pp.pp_Mercury13, pp.pp_Venus13,   pp.pp_Mars13,
                              pp.pp_Jupiter13, pp.pp_Saturn13,  pp.pp_Moon13,    pp.pp_Rahu13,
                              pp.pp_Ketu13,    pp.pp_Uranus13,  pp.pp_Neptune13, pp.pp_Pluto13};
  for (int i = 0; i < 12; ++i) EXPECT_EQ(hourLater[i], pp.getPLNT()[Sun + kHourLater + i]) << i;
}

struct Sky {
  std::array<double, 5> at;
  std::array<double, 11> longitudes;
  double siderealTime;
  std::array<double, 12> cusps;
};

const Sky kSkies[] = {
#include "engine/known_sky.inc"
};

// Minutes of arc, after subtracting the zero point's constant offset.
constexpr std::pair<Body, double> kBodies[] = {
    {Sun, 0.5},    {Moon, 1},   {Mercury, 1.5}, {Venus, 1.5},  {Mars, 7.5}, {Jupiter, 7.5},
    {Saturn, 7.5}, {Rahu, 0.3}, {Uranus, 17},   {Neptune, 17}, {Pluto, 17},
};
constexpr double kZeroPoint = -0.53;

clsPP ChartOf(const Sky& sky, const char* longitude, std::int32_t mode) {
  const auto& [day, month, year, hour, minute] = sky.at;
  clsPP pp;
  pp.GenHoro(day, month, year, hour, minute, 0, longitude, "28.40N", "0.0E", mode, 0, 0);
  return pp;
}

TEST(KnownSky, MatchesBodiesAndTropicalHouses) {
  constexpr std::int32_t kSayan = 6;
  for (const Sky& sky : kSkies) {
    SCOPED_TRACE(sky.at[2]);
    const clsPP pp = ChartOf(sky, "0.0E", 0);
    std::size_t i = 0;
    for (const auto& [body, tolerance] : kBodies) {
      const double apart = pp.getPLNT()[body] + pp.pp_AYAN - sky.longitudes[i++];
      EXPECT_NEAR(60 * std::remainder(apart, 360), kZeroPoint, tolerance) << body;
    }
    EXPECT_NEAR(pp.ppSidTime, sky.siderealTime, 4 / 3600.0);
    const HouseTable cusps = ChartOf(sky, "77.13E", kSayan).getBhavF2();
    int house = 0;
    for (const double cusp : sky.cusps) {
      EXPECT_NEAR(std::remainder(cusps[++house] - cusp, 360), 0, 0.03) << house;
    }
  }
}

}  // namespace
}  // namespace engine
