// Lords by nakshatra: of the star at a longitude, of its part, and of that part's part.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/bounded_array.h"
#include "foundation/machine.h"

namespace engine {

// A star spans 13 degrees 20 minutes; in seconds of arc.
inline constexpr std::int32_t kStarSpan = 48000;

// The 27 stars from 0 Aries. The spellings differ from those of NakName.
struct StarRow {
  std::string_view Name;
  std::string_view Lord;
};
extern const foundation::BoundedArray<StarRow, 0, 26> StarTable;

// Each lord's share of a star in seconds of arc, in proportion to the Vimshottari periods. Ordered
// by size, not by period.
struct SubSpan {
  std::string_view Lord;
  std::int32_t Span;
};
extern const foundation::BoundedArray<SubSpan, 0, 8> SubSpans;

// The sub-sub divisions of the nine stars in the first 120 degrees, ordered by period, as in the
// printed table. Columns, as text:
//   0  row number, "1402" to "2130"
//   1  code of the star lord, "KET"; 2 of the sub lord; 3 of the sub-sub lord
//   4  start in whole seconds of arc from 0 Aries
//   5  start within its sign as degrees, minutes and seconds with blanks between
//   6  start within its sign in seconds of arc
// Starts are running sums of the proportions, rounded to the nearest second, except in the few rows
// that were printed otherwise.
using SubSubRow = std::array<std::string, 7>;
using SubSubRows = foundation::BoundedArray<SubSubRow, 0, 728>;
const SubSubRows& SubSubTable();

// All three take seconds of arc, from 0 to below 1296000.

// The star's lord, "Mercury". Outside that range there is none: shows the error in a message box
// and returns an empty text.
std::string_view StarLordOf(double seconds, foundation::MessageBoxes& boxes);

// The lord of the star's part, counting through SubSpans from the star's own lord. Subscript, after
// StarLordOf's box, if there is no star.
std::string_view SubLordOf(double seconds, foundation::MessageBoxes& boxes);

// The code of the lord of the part's part, "MER": the row of SubSubTable before the first row of
// the star's lord that starts after the place within the sign. The sign itself is not looked up, so
// the part of a star in its second sign is matched to rows of the first. Returns the last row's
// lord if no row matches or there is no star (after StarLordOf's box).
std::string_view SubSubLordOf(double seconds, foundation::MessageBoxes& boxes);

}  // namespace engine
