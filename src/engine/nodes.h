// The corrected node of the Moon's orbit.
#pragma once

#include "foundation/calendar.h"

namespace engine {

// The mean node shifted by two small tables, one by the angle from the Sun and one by the day of
// the year; degrees. Returns the absolute value of the sum, which may exceed 360. Subscript if the
// Sun is exactly 90, 180 or 270 degrees from the node; TypeMismatch in the years 100 and 9999,
// since the tables need the years before and after.
double CalcNode(double meanNode, double sunLongitude, foundation::DateTime civilDate);

}  // namespace engine
