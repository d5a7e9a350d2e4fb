// Places of the sky from an independent ephemeris, within what low-precision theories reach.

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "engine/clsPP.h"

namespace engine {
namespace {

struct Sky {
  struct {
    int day, month, year, hour, minute;
  } at;
  std::array<double, 11> longitudes;
  double siderealTime;
  std::array<double, 12> cusps;
};

const Sky kSkies[] = {
#include "engine/known_sky.inc"
};

// Minutes of arc, once the zero point's constant distance has been taken off.
constexpr struct {
  Body body;
  double tolerance;
} kBodies[] = {
    {Sun, 0.5},    {Moon, 1},   {Mercury, 1.5}, {Venus, 1.5},  {Mars, 7.5}, {Jupiter, 7.5},
    {Saturn, 7.5}, {Rahu, 0.3}, {Uranus, 17},   {Neptune, 17}, {Pluto, 17},
};
constexpr double kZeroPoint = -0.53;

clsPP ChartOf(const Sky& sky, const char* longitude, std::int32_t mode) {
  clsPP pp;
  pp.GenHoro(sky.at.day, sky.at.month, sky.at.year, sky.at.hour, sky.at.minute, 0, longitude,
             "28.40N", "0.0E", mode, foundation::kFalse16, 0);
  return pp;
}

TEST(KnownSky, HasTheBodiesNearTheirPlaces) {
  for (const Sky& sky : kSkies) {
    const clsPP pp = ChartOf(sky, "0.0E", 0);
    std::size_t i = 0;
    for (const auto& [body, tolerance] : kBodies) {
      const double theirs = sky.longitudes[i++];
      const double apart = std::remainder(pp.getPLNT()[body] + pp.pp_AYAN - theirs, 360);
      EXPECT_NEAR(60 * apart, kZeroPoint, tolerance) << body << " in " << sky.at.year;
    }
    EXPECT_NEAR(pp.ppSidTime, sky.siderealTime, 4 / 3600.0) << sky.at.year;
  }
}

TEST(KnownSky, HasTropicalHouses) {
  constexpr std::int32_t kSayan = 6;
  for (const Sky& sky : kSkies) {
    const HouseTable cusps = ChartOf(sky, "77.13E", kSayan).getBhavF2();
    for (int i = 1; i <= 12; ++i) {
      const double theirs = sky.cusps[static_cast<std::size_t>(i - 1)];
      EXPECT_NEAR(std::remainder(cusps[i] - theirs, 360), 0, 0.03) << i << " in " << sky.at.year;
    }
  }
}

}  // namespace
}  // namespace engine
