// The Swiss Ephemeris (Astrodienst AG) with its built-in analytic theory, for comparison.
#pragma once

#include <swephexp.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "engine/positions.h"
#include "foundation/calendar.h"

namespace peer {

inline double JulianDay(foundation::DateTime universalTime) {
  return universalTime + 2415018.5;
}

// Compared are directions on the mean ecliptic and equinox of date; for planets with light time but
// without aberration.
inline constexpr std::int32_t kMeanOfDate = SEFLG_MOSEPH | SEFLG_NONUT;
inline constexpr std::int32_t kGeometric = kMeanOfDate | SEFLG_TRUEPOS;
inline constexpr std::int32_t kAstrometric = kMeanOfDate | SEFLG_NOABERR | SEFLG_NOGDEFL;

struct Body {
  const char* name;
  engine::Body ours;
  int theirs;
  std::int32_t flags;
};
inline constexpr Body kSun = {"Sun", engine::Sun, SE_SUN, kGeometric};
inline constexpr Body kMoon = {"Moon", engine::Moon, SE_MOON, kGeometric};
inline constexpr Body kBodies[] = {
    kSun,
    kMoon,
    {"Mercury", engine::Mercury, SE_MERCURY, kAstrometric},
    {"Venus", engine::Venus, SE_VENUS, kAstrometric},
    {"Mars", engine::Mars, SE_MARS, kAstrometric},
    {"Jupiter", engine::Jupiter, SE_JUPITER, kAstrometric},
    {"Saturn", engine::Saturn, SE_SATURN, kAstrometric},
    {"Uranus", engine::Uranus, SE_URANUS, kAstrometric},
    {"Neptune", engine::Neptune, SE_NEPTUNE, kAstrometric},
    {"Pluto", engine::Pluto, SE_PLUTO, kAstrometric},
    {"Mean node", engine::Rahu, SE_MEAN_NODE, kMeanOfDate},
};

[[noreturn]] inline void Fail(const char* error) {
  std::fprintf(stderr, "%s\n", error);
  std::exit(EXIT_FAILURE);
}

// In degrees.
inline double Longitude(double julianDay, int body, std::int32_t flags) {
  double place[6];
  char error[AS_MAXCH];
  if (swe_calc_ut(julianDay, body, flags, place, error) < 0) Fail(error);
  return place[0];
}

}  // namespace peer
