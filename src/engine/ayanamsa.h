// The sidereal zero point: its longitude by ten modes, and what each mode does to the positions.
#pragma once

#include <cstdint>

#include "engine/positions.h"
#include "foundation/calendar.h"
#include "foundation/numbers.h"

namespace engine {

// The ayanamsa in degrees that every chart is reckoned with before its mode is applied. It changes
// once a day.
double CalcAyanamsa(foundation::DateTime civilDate);

// The ayanamsa of mode 0 to 7 in degrees; Subscript for any other.
double AyanamsaAt(std::int16_t AyanMode, foundation::DateTime civilDate);

// Brings both values of every body, reckoned with the ayanamsa of CalcAyanamsa, to a mode: 0 N.C.
// Lahiri, 1 Sri Sanatan, 2 and 3 K.P. I and II, 4 B.V. Raman, 5 Manu, 6 Sayan (tropical), 7 QRT
// Ayanamsa 1. Modes 8 and 9 fail with Subscript; any other leaves the positions as they are.
void ApplyAyanMode(std::int16_t AyanMode, foundation::Boolean16 correctedNode,
                   foundation::DateTime civilDate, Positions& positions);

// The corrections of modes 0 and 1 alone.
void ApplyFixedCorrections(foundation::Boolean16 correctedNode, Positions& positions);

}  // namespace engine
