// The sign that each body falls in under the traditional divisions of a sign. Two tables, whose
// rules for a division of the same name differ.
#pragma once

#include <cstdint>
#include <string_view>

#include "engine/positions.h"
#include "foundation/bounded_array.h"

namespace engine {

// Signs are 1 Aries to 12 Pisces; columns 17 and 19 of the wide table can reach 16.

// By row and column. Row 1 is the ascendant, 2 to 10 the Sun to Ketu in the order of BodyOrder;
// columns as in DivName. Row 0 and column 0 are not used.
using DivRow = foundation::BoundedArray<std::int16_t, 0, 20>;
using DivTable = foundation::BoundedArray<DivRow, 0, 10>;

// The divisions of the wide table by column; 0 is empty.
using DivNames = foundation::BoundedArray<std::string_view, 0, 20>;
extern const DivNames DivName;

// By division 1 to 7 (rashi, drekkana, saptamsa, navamsa, dasamsa, dwadasamsa, shodasamsa) and row:
// 1 the ascendant, 2 to 13 the positions in their own order. Element 0 is not used in either.
using VargaTable = foundation::BoundedArray<foundation::BoundedArray<std::int16_t, 0, 13>, 0, 7>;

// One longitude of 0 to 360 degrees under every wide division.
DivRow WideDivisions(double longitude);

// Of the ascendant and all positions, 0 to 360 degrees.
DivTable FillDivTable(double ascendant, const Positions& positions);
VargaTable FillVargaTable(double ascendant, const Positions& positions);

}  // namespace engine
