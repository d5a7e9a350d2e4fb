#include "foundation/angle_text.h"

#include <cmath>

#include "foundation/checked.h"
#include "foundation/numbers.h"
#include "foundation/time_text.h"

namespace foundation {

double DegMinToDecimal(double& x) {
  const double degrees = std::floor(Finite(x));
  x = degrees + (x - degrees) * 100 / 60;
  return x;
}

std::string ZoneToMeridianText(std::string_view zone) {
  const bool east = zone.starts_with('-');
  if (east) zone.remove_prefix(1);
  const std::size_t point = zone.find('.');
  const double hours = std::floor(LeadingNumber(zone.substr(0, point)));
  const double minutes =
      point == std::string_view::npos ? 0 : LeadingNumber(zone.substr(point + 1));
  const double degrees = (hours * 60 + minutes) / 4;  // four minutes of time per degree
  return NumberText(std::floor(degrees)) + "." + NumberText(std::floor(60 * FracPart(degrees))) +
         (east ? "E" : "W");
}

std::string DecimalToSignDMS(double x) {
  const double sign = std::floor(Finite(x) / 30);
  double degrees = std::floor(x - 30 * sign);
  double minutes = std::floor(60 * x - 1800 * sign - 60 * degrees);
  const double seconds = std::floor(3600 * x - 108000 * sign - 3600 * degrees - 60 * minutes + 0.5);
  // Only the next field changes: the lower one keeps showing "60", and degrees may reach 30.
  if (seconds == 60) minutes += 1;
  if (minutes == 60) degrees += 1;
  return PadDigits(degrees, 2) + ":" + PadDigits(minutes, 2) + ":" + PadDigits(seconds, 2);
}

}  // namespace foundation
