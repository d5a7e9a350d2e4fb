// Complete charts calculated independently of this code, in every ayanamsa mode that works, and
// positions from an independent ephemeris, within the accuracy of low-precision theories.

#include <array>
#include <cmath>
#include <string>

#include "engine/clsPP.h"
#include "support/test.h"
#include "support/words.h"

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

clsPP ChartOf(const KnownChart& chart) {
  const auto& [day, month, year, hour, minute, second] = chart.at;
  const auto& [longitude, latitude, zone] = chart.place;
  clsPP pp;
  pp.GenHoro(day, month, year, hour, minute, second, longitude, latitude, zone, chart.mode,
             chart.correctedNode, chart.correction);
  return pp;
}

// Elements from index 1.
void ExpectDegrees(const auto& degrees, const auto& expected) {
  for (int i = 0; const double element : expected) {
    ++i;
    EXPECT_NEAR(degrees[i], element, 1e-9) << i;
  }
}

std::string Text(const auto& row, int last) {
  return support::Beginnings(last, 2, [&](int column) { return std::to_string(row[column]); });
}

TEST(KnownCharts, MatchIndependentResults) {
  for (const KnownChart& chart : kCharts) {
    SCOPED_TRACE(chart.at[2]);
    const clsPP pp = ChartOf(chart);
    ExpectDegrees(pp.getPLNT(), chart.positions);
    ExpectDegrees(pp.getBhavF2(), chart.cusps);
    ExpectDegrees(pp.getBhavF3(), chart.sandhis);
    EXPECT_NEAR(pp.getSidTime(), chart.siderealTime, 1e-9);
    std::string motion;
    for (std::int16_t body = 0; body <= 12; ++body) motion += pp.getRET(body) == "RET" ? 'R' : '.';
    EXPECT_EQ(motion, chart.motion);
    int row = 0, division = 0, layer = 0;
    for (const char* wide : chart.wideRows) EXPECT_EQ(Text(pp.getaDiv()[++row], 20), wide);
    for (const char* narrow : chart.narrowDivisions) {
      EXPECT_EQ(Text(pp.getVarga()[++division], 13), narrow);
    }
    for (const std::string_view relations : chart.relations) {
      ++layer;
      for (int cell = 0; cell < 81; ++cell) {
        const char c = pp.getaMaitri()[layer][cell / 9 + 1][cell % 9 + 1];
        EXPECT_EQ(c == '\0' ? '.' : c, relations.at(static_cast<std::size_t>(cell)));
      }
    }
  }
}

// The same chart from degrees and Universal Time.
TEST(KnownCharts, NeedNoTexts) {
  const KnownChart& delhi = kCharts[4];
  const double hours = 0 + 42 / 60.0 + 9 / 3600.0;  // five and a half less than by the clock
  clsPP pp;
  pp.GenChart(UniversalTime(foundation::DateFromParts(2011, 3, 5), hours), 28 + 40 / 60.0,
              77 + 13 / 60.0, 4, foundation::kTrue16);
  ExpectDegrees(pp.getPLNT(), delhi.positions);
  ExpectDegrees(pp.getBhavF2(), delhi.cusps);
  EXPECT_NEAR(pp.ppSidTime, delhi.siderealTime, 1e-9);
}

TEST(PublicVariables, MatchThePositions) {
  const clsPP pp = ChartOf(kCharts[4]);
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

TEST(KnownSky, MatchesBodiesAndTropicalHouses) {
  constexpr std::int32_t kSayan = 6;
  for (const auto& [at, longitudes, siderealTime, cusps] : kSkies) {
    const auto& [day, month, year, hour, minute] = at;
    SCOPED_TRACE(year);
    clsPP pp;
    pp.GenHoro(day, month, year, hour, minute, 0, "0.0E", "28.40N", "0.0E", 0, 0, 0);
    for (std::size_t i = 0; const auto& [body, tolerance] : kBodies) {
      const double apart = pp.getPLNT()[body] + pp.pp_AYAN - longitudes[i++];
      EXPECT_NEAR(60 * std::remainder(apart, 360), kZeroPoint, tolerance) << body;
    }
    EXPECT_NEAR(pp.ppSidTime, siderealTime, 4 / 3600.0);
    pp.GenHoro(day, month, year, hour, minute, 0, "77.13E", "28.40N", "0.0E", kSayan, 0, 0);
    for (int house = 0; const double cusp : cusps) {
      EXPECT_NEAR(std::remainder(pp.getBhavF2()[++house] - cusp, 360), 0, 0.03) << house;
    }
  }
}

}  // namespace
}  // namespace engine
