#include "engine/houses.h"

#include <cmath>

#include "engine/angles.h"
#include "foundation/checked.h"

namespace engine {
namespace {

// Three cusps `Step` degrees apart, from house `Index` on.
void FillCusps(double First, double Step, int Index, HouseTable& Cusps) {
  for (int n = 0; n <= 2; ++n) {
    const double v = n * Step + First;
    Cusps[Index + n] = v >= 360 ? v - 360 : v;
  }
}

// The midpoint from a cusp forward to the next; the caller wraps it.
double Junction(double before, double cusp) {
  const double middle = (cusp + before) / 2;
  return cusp < before ? middle + 180 : middle;
}

void FillSandhis(Houses& houses) {
  const HouseTable& cusps = houses.Cusps;
  // Only the first junction wraps at exactly 360.
  const double first = Junction(cusps[12], cusps[1]);
  houses.Sandhis[1] = first >= 360 ? first - 360 : first;
  for (int i = 2; i <= 12; ++i) {
    const double junction = Junction(cusps[i - 1], cusps[i]);
    houses.Sandhis[i] = junction > 360 ? junction - 360 : junction;
  }
}

}  // namespace

double LocalSiderealTime(const TimeBase& time, double longitude) {
  const double S = 24 * FractionOf(time.TimeT * 100.00214 + 0.2769);
  const double G = time.DayPart * 24 + 12;  // Universal Time
  return 24 * FractionOf((G + S + longitude / 15) / 24);
}

double MeanObliquity(double T) {
  return 23.452294 - T * 0.0130125;
}

double AscendantAt(double Hours, double Lat, const RisingFrame& frame) {
  double A = Hours * 15 + 90;  // selects the quadrant of the arctangent
  if (A >= 360) A -= 360;
  const double h = PiValue / 12 * Hours;
  const double p = Lat * DegToRad;
  if (h == 0 && p == 0) return 90.0;

  const double e = frame.Obliquity * DegToRad;
  const double tilt = foundation::Divide(std::sin(e) * std::sin(p), std::cos(p));
  double x =
      std::atan(foundation::Divide(-std::cos(h), tilt + std::cos(e) * std::sin(h))) / DegToRad;
  if (x < 0) x += 180;
  if (A - x > 75) x += 180;
  x -= frame.AyanValue;
  if (x < 0) return x + 360;
  return x > 360 ? x - 360 : x;
}

Houses CalcHouses(double siderealTime, double latitude, double T, double ayanamsa) {
  const RisingFrame frame = {MeanObliquity(T), ayanamsa};
  const double Asc = AscendantAt(siderealTime, latitude, frame);
  // The midheaven is what rises at the equator six hours earlier.
  const double Mc = AscendantAt(siderealTime - 6, 0, frame);

  Houses houses;
  double k = (Mc + 180 - Asc) / 3;
  if (Mc > Asc) k -= 120;
  const double j = 60 - k;
  FillCusps(Asc, k, 1, houses.Cusps);
  FillCusps(Mc + 180, j, 4, houses.Cusps);
  FillCusps(Asc + 180, k, 7, houses.Cusps);
  FillCusps(Mc, j, 10, houses.Cusps);
  FillSandhis(houses);
  return houses;
}

}  // namespace engine
