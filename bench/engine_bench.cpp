// What a chart costs, and beside it, where it is installed, the same work by the Swiss Ephemeris
// (Astrodienst AG) with its built-in analytic theory. With --accuracy: how far the two lie apart
// from 1950 to 2050.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "engine/clsPP.h"
#include "foundation/calendar.h"
#include "foundation/numbers.h"

#ifdef HAVE_SWISSEPH
#include <swephexp.h>
#endif

namespace {

using foundation::DateFromParts;
using foundation::DateTime;

// Every chart has a moment of its own, some days and hours on, so that neither side meets what it
// has just worked out.
constexpr double kStride = 5.37;  // days

class Moments {
 public:
  DateTime Next() {
    at_ += kStride;
    if (at_ > last_) at_ = first_;
    return at_;
  }

 private:
  const DateTime first_ = DateFromParts(1950, 1, 1);
  const DateTime last_ = DateFromParts(2050, 12, 31);
  DateTime at_ = first_;
};

engine::clsPP ChartAt(DateTime universalTime, foundation::Boolean16 correctedNode,
                      const char* longitude, const char* latitude) {
  const auto at = foundation::FieldsOf(universalTime);
  engine::clsPP pp;
  pp.GenHoro(at.day, at.month, at.year, at.hour, at.minute, at.second, longitude, latitude, "0.0E",
             0, correctedNode, 0);
  return pp;
}

void GenHoro(benchmark::State& state) {
  const auto correctedNode = static_cast<foundation::Boolean16>(state.range(0));
  Moments moments;
  for (auto _ : state) {
    benchmark::DoNotOptimize(ChartAt(moments.Next(), correctedNode, "77.13E", "28.40N"));
  }
}
BENCHMARK(GenHoro)
    ->ArgName("corrected_node")
    ->Arg(foundation::kFalse16)
    ->Arg(foundation::kTrue16)
    ->Unit(benchmark::kMicrosecond);

#ifdef HAVE_SWISSEPH

double JulianDay(DateTime moment) {
  return moment + 2415018.5;
}

// What is compared is the direction at the moment, on the mean ecliptic and equinox of date: of the
// planets as light left them, without aberration.
constexpr std::int32_t kMeanOfDate = SEFLG_MOSEPH | SEFLG_NONUT;
constexpr std::int32_t kGeometric = kMeanOfDate | SEFLG_TRUEPOS;
constexpr std::int32_t kAstrometric = kMeanOfDate | SEFLG_NOABERR | SEFLG_NOGDEFL;

struct ComparedBody {
  const char* name;
  engine::Body body;
  int theirs;
  std::int32_t flags;
};
constexpr ComparedBody kSun = {"Sun", engine::Sun, SE_SUN, kGeometric};
constexpr ComparedBody kMoon = {"Moon", engine::Moon, SE_MOON, kGeometric};
constexpr ComparedBody kBodies[] = {
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

double TheirLongitude(double julianDay, int body, std::int32_t flags) {
  double place[6];
  char error[AS_MAXCH];
  if (swe_calc_ut(julianDay, body, flags, place, error) < 0) {
    std::fprintf(stderr, "%s\n", error);
    std::exit(EXIT_FAILURE);
  }
  return place[0];
}

// Eleven bodies at two moments an hour apart, Ketu from the node, and houses by trisected
// quadrants.
void SwissEphemeris(benchmark::State& state) {
  constexpr std::int32_t kFlags = SEFLG_MOSEPH | SEFLG_SIDEREAL;
  swe_set_sid_mode(SE_SIDM_LAHIRI, 0, 0);
  Moments moments;
  for (auto _ : state) {
    const double julianDay = JulianDay(moments.Next());
    for (const double moment : {julianDay, julianDay + 1 / 24.0}) {
      for (const ComparedBody& body : kBodies) {
        double longitude = TheirLongitude(moment, body.theirs, kFlags);
        benchmark::DoNotOptimize(longitude);
        if (body.body == engine::Rahu) longitude = swe_degnorm(longitude + 180);
        benchmark::DoNotOptimize(longitude);
      }
    }
    double cusps[13], angles[10];
    swe_houses_ex(julianDay, kFlags, 28 + 40 / 60.0, 77 + 13 / 60.0, 'O', cusps, angles);
    benchmark::DoNotOptimize(cusps);
  }
}
BENCHMARK(SwissEphemeris)->Unit(benchmark::kMicrosecond);

struct Difference {
  double sum = 0, sizes = 0, worst = 0;
  int count = 0;

  void Add(double x) {
    sum += x;
    sizes += std::abs(x);
    worst = std::max(worst, std::abs(x));
    ++count;
  }
  double Mean() const { return sum / count; }
};

// `measure` of a chart and its Julian Day, over all moments.
template <typename Measure>
Difference Over1950To2050(const Measure& measure) {
  Difference difference;
  const DateTime end = DateFromParts(2050, 12, 31);
  for (DateTime moment = DateFromParts(1950, 1, 1); moment < end; moment += kStride) {
    const DateTime second = std::round(moment * 86400) / 86400;
    difference.Add(
        measure(ChartAt(second, foundation::kFalse16, "0.0E", "0.0N"), JulianDay(second)));
  }
  return difference;
}

std::string Column(std::string text, std::size_t width) {
  return std::string(width - std::min(width, text.size()), ' ') + text;
}

void Report(const char* name, const Difference& difference, double scale) {
  const auto column = [&](double x) { return Column(foundation::FixedText(scale * x, 3), 10); };
  std::puts((Column(name, 14) + column(difference.Mean()) +
             column(difference.sizes / difference.count) + column(difference.worst))
                .c_str());
}

// The way from b to a on a circle.
double Apart(double a, double b, double circle) {
  return std::remainder(a - b, circle);
}

int CompareAccuracy() {
  std::puts("                    mean mean size     worst");
  std::puts("Tropical of date, minutes of arc, the Sun's mean difference taken off all:");
  double constant = 0;
  for (const ComparedBody& body : kBodies) {
    const auto difference = [&](const engine::clsPP& pp, double julianDay) {
      const double theirs = TheirLongitude(julianDay, body.theirs, body.flags);
      return Apart(pp.getPLNT()[body.body] + pp.pp_AYAN - constant, theirs, 360);
    };
    if (body.body == engine::Sun) constant = Over1950To2050(difference).Mean();
    Report(body.name, Over1950To2050(difference), 60);
  }

  std::puts("Sidereal by Lahiri as seen, minutes of arc:");
  swe_set_sid_mode(SE_SIDM_LAHIRI, 0, 0);
  for (const ComparedBody& body : {kSun, kMoon}) {
    const auto difference = [&](const engine::clsPP& pp, double julianDay) {
      const double theirs = TheirLongitude(julianDay, body.theirs, SEFLG_MOSEPH | SEFLG_SIDEREAL);
      return Apart(pp.getPLNT()[body.body], theirs, 360);
    };
    Report(body.name, Over1950To2050(difference), 60);
  }

  std::puts("Seconds:");
  const auto sidereal = [](const engine::clsPP& pp, double julianDay) {
    return Apart(pp.ppSidTime, swe_sidtime(julianDay), 24);
  };
  Report("Sidereal time", Over1950To2050(sidereal), 3600);
  return EXIT_SUCCESS;
}

#else

int CompareAccuracy() {
  std::fputs("built without the Swiss Ephemeris (libswe-dev)\n", stderr);
  return EXIT_FAILURE;
}

#endif

}  // namespace

int main(int argc, char** argv) {
  if (argc > 1 && std::string_view(argv[1]) == "--accuracy") return CompareAccuracy();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
  benchmark::RunSpecifiedBenchmarks();
  return EXIT_SUCCESS;
}
