// The lords of a longitude by nakshatra: of the star, of its part, and of that part's part.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/bounded_array.h"
#include "foundation/machine.h"

namespace engine {

// A star is 13 degrees 20 minutes, in seconds of arc.
inline constexpr std::int32_t kStarSpan = 48000;

// The 27 stars from 0 Aries. Their spellings are those of this table alone.
struct StarRow {
  std::string_view Name;
  std::string_view Lord;
};
extern const foundation::BoundedArray<StarRow, 0, 26> StarTable;

// What each lord has of a star in seconds of arc, in the proportions of the Vimshottari periods;
// the order is that of the table, by size, and not that of the periods.
struct SubSpan {
  std::string_view Lord;
  std::int32_t Span;
};
extern const foundation::BoundedArray<SubSpan, 0, 8> SubSpans;

// The parts' parts in the nine stars of the first 120 degrees, in the order of the periods, as a
// printed table has them. Texts by column:
//   0  row number, "1402" to "2130"
//   1  code of the star lord, "KET"; 2 of the sub lord; 3 of the sub-sub lord
//   4  the start in whole seconds of arc from 0 Aries
//   5  the start in its sign as degrees, minutes and seconds with blanks between
//   6  the start in seconds of arc in its sign
// Starts are the running sums of the proportions, to the nearest second, but for the rows that are
// printed otherwise.
using SubSubRow = std::array<std::string, 7>;
using SubSubRows = foundation::BoundedArray<SubSubRow, 0, 728>;
const SubSubRows& SubSubTable();

// All three take seconds of arc, from 0 to below 1296000.

// The star's lord, "Mercury". From 1296000 on and below 0 there is none: the error is told in a
// box, and the lord is empty.
std::string_view StarLordOf(double seconds, foundation::MessageBoxes& boxes);

// The lord of the star's part, from the star's own on through SubSpans. Subscript, after
// StarLordOf's box, where there is no star.
std::string_view SubLordOf(double seconds, foundation::MessageBoxes& boxes);

// The code of the lord of the part's part, "MER". Only the star's lord and the place in the sign
// are looked up in SubSubTable, so that stars of the later two thirds of the zodiac, and of a
// second sign, take the row before the first one of that lord that begins after the place. Where
// none does, or there is no star (after StarLordOf's box), the table's last.
std::string_view SubSubLordOf(double seconds, foundation::MessageBoxes& boxes);

}  // namespace engine
