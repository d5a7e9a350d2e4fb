// The engine's risings and settings against PyEphem 4.1.4 (horizon -0:50, pressure 0, use_center).

#include "day/sun_times.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace std::chrono;

// Seconds since 1970, in Universal Time; 0 for none.
struct Daylight {
  double rise, set;
};

double Seconds(std::optional<day::Instant> instant) {
  return static_cast<double>(instant.value_or(day::Instant()).time_since_epoch().count());
}

TEST(SunTimes, AgreeWithAnEphemerisFromTheEquatorToTheArctic) {
  const struct {
    const char* place;
    double latitude, longitude;
    Daylight january, july;  // of the 15th, 2026
  } kKnown[] = {
      {"Delhi", 28.6667, 77.2167, {1768441504, 1768479363}, {1784073782, 1784123458}},
      {"Ujjain", 23.1833, 75.7667, {1768441224, 1768480337}, {1784074800, 1784123140}},
      {"London", 51.5167, -0.1333, {1768463971, 1768494045}, {1784088052, 1784146290}},
      {"New York", 40.7167, -74.0, {1768479473, 1768514002}, {1784108265, 1784161553}},
      {"Kathmandu", 27.7167, 85.3167, {1768439447, 1768477531}, {1784071959, 1784121394}},
      {"Sydney", -33.8833, 151.2, {1768417170, 1768468143}, {1784062697, 1784099056}},
      {"Reykjavik", 64.15, -21.95, {1768474499, 1768494004}, {1784086858, 1784157858}},
      {"Tromso", 69.65, 18.95, {1768472982, 1768475891}, {0, 0}},
      {"Ushuaia", -54.8, -68.3, {1768465348, 1768525310}, {1784119641, 1784147490}},
      {"Quito", -0.2167, -78.5, {1768475969, 1768519647}, {1784114207, 1784157797}},
      {"Apia", -13.8333, -171.7667, {1768497067, 1768543321}, {1784137896, 1784178884}},
      {"Uusikaupunki", 60.8, 21.4167, {1768462108, 1768485570}, {1784078998, 1784144953}},
  };
  for (const auto& [place, latitude, longitude, january, july] : kKnown) {
    const double tolerance = latitude > 69 ? 60 : 15;  // in Tromsø the Sun grazes the horizon
    for (const auto& [month, known] : {std::pair(January, january), std::pair(July, july)}) {
      const auto noon =
          sys_days(2026y / month / 15) + seconds(std::lround(43200 - longitude * 240));
      const auto sun = day::SunTimesNear(noon, latitude, longitude);
      EXPECT_NEAR(Seconds(sun.rise), known.rise, tolerance) << place;
      EXPECT_NEAR(Seconds(sun.set), known.set, tolerance) << place;
    }
  }
}

}  // namespace
