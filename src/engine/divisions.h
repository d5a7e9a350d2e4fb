// The sign of each body under the traditional divisions of a sign. There are two tables, and
// divisions of the same name follow different rules in each.
#pragma once

#include <cstdint>
#include <string_view>

#include "engine/positions.h"
#include "foundation/bounded_array.h"

namespace engine {

// Signs are 1 Aries to 12 Pisces; columns 17 and 19 of the wide table can reach 16.

// By row and column: row 1 is the ascendant, 2 to 10 are the Sun to Ketu in the order of BodyOrder;
// columns are those of DivName. Row 0 and column 0 are unused.
using DivRow = foundation::BoundedArray<std::int16_t, 0, 20>;
using DivTable = foundation::BoundedArray<DivRow, 0, 10>;

// Names of the wide table's columns; element 0 is empty.
using DivNames = foundation::BoundedArray<std::string_view, 0, 20>;
extern const DivNames DivName;

// By division, 1 to 7 (rashi, drekkana, saptamsa, navamsa, dasamsa, dwadasamsa, shodasamsa), and
// row: 1 is the ascendant, 2 to 13 are the positions in the order of Body. Element 0 of both is
// unused.
using VargaTable = foundation::BoundedArray<foundation::BoundedArray<std::int16_t, 0, 13>, 0, 7>;

// A longitude of 0 to 360 degrees under every wide division.
DivRow WideDivisions(double longitude);

// All longitudes are 0 to 360 degrees.
DivTable FillDivTable(double ascendant, const Positions& positions);
VargaTable FillVargaTable(double ascendant, const Positions& positions);

}  // namespace engine
