// Angles as the engine's theories reckon them: degrees, revolutions and multiples.
#pragma once

#include <cmath>

namespace engine {

// To the twelve figures that all series here were made with.
inline constexpr double PiValue = 3.14159265359;
inline constexpr double DegToRad = PiValue / 180;

// x less the greatest whole number not above it: of revolutions, the part that counts. Unlike the
// clock's FracPart it takes an x beyond 32 bits.
inline double FracPart(double x) {
  return x - std::floor(x);
}

// a less the greatest whole multiple of b not above it; b is not 0.
inline double RealMod(double a, double b) {
  return a - b * std::floor(a / b);
}

// The whole part of a longitude or of what is made of one, from 0 to the greatest int alone.
inline int WholePart(double x) {
  return static_cast<int>(x);
}

// Sine and cosine of one angle; their sums and differences are those of the angles.
struct SinCos {
  double sin = 0;
  double cos = 1;

  friend constexpr SinCos operator+(SinCos a, SinCos b) {
    return {a.sin * b.cos + a.cos * b.sin, a.cos * b.cos - a.sin * b.sin};
  }
  constexpr SinCos operator-() const { return {-sin, cos}; }
  friend constexpr SinCos operator-(SinCos a, SinCos b) { return a + -b; }
};

inline SinCos SinCosOf(double radians) {
  return {std::sin(radians), std::cos(radians)};
}

// Sines and cosines of the multiples -Highest to Highest of one angle, from the sine and cosine of
// the angle itself.
template <int Highest>
class Multiples {
 public:
  explicit Multiples(double radians) {
    at_[Highest + 1] = SinCosOf(radians);
    for (int k = 2; k <= Highest; ++k) at_[Highest + k] = at_[Highest + k - 1] + at_[Highest + 1];
    for (int k = 1; k <= Highest; ++k) at_[Highest - k] = -at_[Highest + k];
  }

  // k lies within -Highest to Highest; the tables that name it are held to that by their tests.
  const SinCos& operator[](int k) const { return at_[Highest + k]; }

 private:
  SinCos at_[2 * Highest + 1];
};

}  // namespace engine
