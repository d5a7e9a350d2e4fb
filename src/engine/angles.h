// Angle arithmetic: degrees, revolutions and multiples of an angle.
#pragma once

#include <cmath>

namespace engine {

// The series here were computed with these twelve figures.
inline constexpr double PiValue = 3.14159265359;
inline constexpr double DegToRad = PiValue / 180;

// The fractional part, never negative: of revolutions, the part that counts. Unlike
// foundation::FracPart it accepts x beyond 32 bits.
inline double FractionOf(double x) {
  return x - std::floor(x);
}

// a modulo b, with the sign of b; b is not 0.
inline double RealMod(double a, double b) {
  return a - b * std::floor(a / b);
}

// Truncates a longitude or a value derived from one. x must be within 0 to INT_MAX.
inline int WholePart(double x) {
  return static_cast<int>(x);
}

// Sine and cosine of an angle; + and - add and subtract the angles.
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

// Sines and cosines of the multiples -Highest to Highest of an angle.
template <int Highest>
class Multiples {
 public:
  explicit Multiples(double radians) {
    at_[Highest + 1] = SinCosOf(radians);
    for (int k = 2; k <= Highest; ++k) at_[Highest + k] = at_[Highest + k - 1] + at_[Highest + 1];
    for (int k = 1; k <= Highest; ++k) at_[Highest - k] = -at_[Highest + k];
  }

  // k must lie within -Highest to Highest; it is not checked.
  const SinCos& operator[](int k) const { return at_[Highest + k]; }

 private:
  SinCos at_[2 * Highest + 1];
};

}  // namespace engine
