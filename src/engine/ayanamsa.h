// The sidereal zero point: its longitude in ten modes, and the shift each mode applies.
#pragma once

#include <cstdint>

#include "engine/positions.h"
#include "foundation/calendar.h"
#include "foundation/numbers.h"

namespace engine {

// The ayanamsa in degrees that every chart is computed with before its mode is applied. Changes
// once a day.
double CalcAyanamsa(foundation::DateTime civilDate);

// The ayanamsa of mode 0 to 7 in degrees; Subscript for any other.
double AyanamsaAt(std::int16_t AyanMode, foundation::DateTime civilDate);

// Converts both values of every body from the ayanamsa of CalcAyanamsa to a mode: 0 N.C. Lahiri, 1
// Sri Sanatan, 2 and 3 K.P. I and II, 4 B.V. Raman, 5 Manu, 6 Sayan (tropical), 7 QRT Ayanamsa 1.
// Subscript in modes 8 and 9; any other number leaves the positions unchanged.
void ApplyAyanMode(std::int16_t AyanMode, foundation::Boolean16 correctedNode,
                   foundation::DateTime civilDate, Positions& positions);

// The per-body corrections of modes 0 and 1.
void ApplyFixedCorrections(foundation::Boolean16 correctedNode, Positions& positions);

}  // namespace engine
