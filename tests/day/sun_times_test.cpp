// The engine's risings and settings against PyEphem 4.1.4 (horizon -0:50, pressure 0, use_center).

#include "day/sun_times.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace std::chrono;
using day::Instant;

// Seconds since 1970, in Universal Time; 0 for none.
struct KnownSun {
  const char* place;
  double latitude, longitude;
  year_month_day date;
  std::int64_t rise, set;
};

Instant LocalNoon(const KnownSun& known) {
  return sys_days(known.date) + seconds(std::lround(43200 - known.longitude * 240));
}

TEST(SunTimes, AgreeWithAnEphemerisFromTheEquatorToTheArctic) {
  constexpr double kTolerance = 15;  // seconds; in Tromsø, where the Sun grazes the horizon, 60
  const KnownSun kKnown[] = {
      {"Delhi", 28.6667, 77.2167, 2026y / 1 / 15, 1768441504, 1768479363},
      {"Ujjain", 23.1833, 75.7667, 2026y / 1 / 15, 1768441224, 1768480337},
      {"London", 51.5167, -0.1333, 2026y / 1 / 15, 1768463971, 1768494045},
      {"New York", 40.7167, -74.0, 2026y / 1 / 15, 1768479473, 1768514002},
      {"Kathmandu", 27.7167, 85.3167, 2026y / 1 / 15, 1768439447, 1768477531},
      {"Sydney", -33.8833, 151.2, 2026y / 1 / 15, 1768417170, 1768468143},
      {"Reykjavik", 64.15, -21.95, 2026y / 1 / 15, 1768474499, 1768494004},
      {"Tromso", 69.65, 18.95, 2026y / 1 / 15, 1768472982, 1768475891},
      {"Ushuaia", -54.8, -68.3, 2026y / 1 / 15, 1768465348, 1768525310},
      {"Quito", -0.2167, -78.5, 2026y / 1 / 15, 1768475969, 1768519647},
      {"Apia", -13.8333, -171.7667, 2026y / 1 / 15, 1768497067, 1768543321},
      {"Uusikaupunki", 60.8, 21.4167, 2026y / 1 / 15, 1768462108, 1768485570},
      {"Delhi", 28.6667, 77.2167, 2026y / 7 / 15, 1784073782, 1784123458},
      {"Ujjain", 23.1833, 75.7667, 2026y / 7 / 15, 1784074800, 1784123140},
      {"London", 51.5167, -0.1333, 2026y / 7 / 15, 1784088052, 1784146290},
      {"New York", 40.7167, -74.0, 2026y / 7 / 15, 1784108265, 1784161553},
      {"Kathmandu", 27.7167, 85.3167, 2026y / 7 / 15, 1784071959, 1784121394},
      {"Sydney", -33.8833, 151.2, 2026y / 7 / 15, 1784062697, 1784099056},
      {"Reykjavik", 64.15, -21.95, 2026y / 7 / 15, 1784086858, 1784157858},
      {"Tromso", 69.65, 18.95, 2026y / 7 / 15, 0, 0},
      {"Ushuaia", -54.8, -68.3, 2026y / 7 / 15, 1784119641, 1784147490},
      {"Quito", -0.2167, -78.5, 2026y / 7 / 15, 1784114207, 1784157797},
      {"Apia", -13.8333, -171.7667, 2026y / 7 / 15, 1784137896, 1784178884},
      {"Uusikaupunki", 60.8, 21.4167, 2026y / 7 / 15, 1784078998, 1784144953},
  };
  for (const KnownSun& known : kKnown) {
    const auto sun = day::SunTimesNear(LocalNoon(known), known.latitude, known.longitude);
    ASSERT_EQ(sun.rise.has_value(), known.rise != 0) << known.place;
    ASSERT_EQ(sun.set.has_value(), known.set != 0) << known.place;
    if (!sun.rise) continue;
    const double tolerance = known.latitude > 69 ? 60 : kTolerance;
    EXPECT_NEAR(static_cast<double>(sun.rise->time_since_epoch().count() - known.rise), 0,
                tolerance)
        << known.place;
    EXPECT_NEAR(static_cast<double>(sun.set->time_since_epoch().count() - known.set), 0, tolerance)
        << known.place;
  }
}

}  // namespace
