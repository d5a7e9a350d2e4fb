// The Moon's node as a chart shows it.
#pragma once

#include "foundation/calendar.h"

namespace engine {

// The mean node moved by two small tables, one by the angle from the Sun and one by the day of the
// year; degrees. The sum's absolute value is taken, and it is not brought into 360.
// Subscript where the Sun stands exactly 90, 180 or 270 degrees from the node; TypeMismatch in
// the years 100 and 9999, whose neighbours have no dates.
double CalcNode(double meanNode, double sunLongitude, foundation::DateTime civilDate);

}  // namespace engine
