// The per-body corrections of modes 0 and 1.

#include "engine/ayanamsa.h"

namespace engine {
namespace {

// Units, in parts of a degree.
constexpr double Minutes = 60;
constexpr double Seconds = 3600;

struct Correction {
  Body body;
  double first;  // to the value of the moment
  double later;  // to the value an hour later
  double unit;
};

// clang-format off

// Added one by one in this order. A later value that differs from the first affects the motion that
// a chart shows.
constexpr Correction kCorrections[] = {
    {Sun,     -22, -22, Seconds},
    {Sun,      -7,  -7, Seconds},
    {Moon,     17,  17, Seconds},
    {Mars,    -56, -56, Seconds},
    {Mars,      7,   7, Seconds},
    {Mercury, -51, -51, Seconds},
    {Mercury,   1,   1, Minutes},
    {Mercury, -49, -49, Seconds},
    {Jupiter,  -2,  -2, Minutes},
    {Jupiter,  20,  20, Seconds},
    {Venus,   -48, -48, Seconds},
    {Saturn,    0,   1, Minutes},
    {Saturn,   48,  48, Seconds},
    {Uranus,   -7,  -7, Minutes},
    {Uranus,   -1,  -1, Seconds},
    {Neptune,   3,   3, Minutes},
    {Neptune,  58,  58, Seconds},
    {Pluto,     6,   6, Minutes},
    {Pluto,    55,  55, Seconds},
};

constexpr Correction kCorrectedNode[] = {
    {Rahu,  -4,  -4, Minutes},
    {Rahu, -35, -35, Seconds},
    {Rahu,  22,  22, Minutes},
    {Ketu,  -4,  -4, Minutes},
    {Ketu, -35, -35, Seconds},
    {Ketu,  22,  22, Minutes},
};

constexpr Correction kMeanNode[] = {
    {Rahu, 0, 1, Minutes},
    {Rahu, 5, 5, Seconds},
    {Ketu, 0, 0, Minutes},
    {Ketu, 5, 5, Seconds},
};

// clang-format on

template <int Count>
void Apply(const Correction (&corrections)[Count], Positions& positions) {
  for (const Correction& correction : corrections) {
    positions[correction.body] += correction.first / correction.unit;
    positions[correction.body + kHourLater] += correction.later / correction.unit;
  }
}

}  // namespace

void ApplyFixedCorrections(foundation::Boolean16 correctedNode, Positions& positions) {
  Apply(kCorrections, positions);
  if (correctedNode != foundation::kFalse16) {
    Apply(kCorrectedNode, positions);
  } else {
    Apply(kMeanNode, positions);
  }
}

}  // namespace engine
