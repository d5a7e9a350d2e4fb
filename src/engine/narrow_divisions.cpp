// The narrow table: seven divisions for the ascendant and all bodies.

#include "engine/angles.h"
#include "engine/divisions.h"

namespace engine {
namespace {

// The sign, 1 to 12, of a count from the start of the zodiac.
std::int16_t SignOf(int count) {
  const int sign = count % 12;
  return static_cast<std::int16_t>(sign == 0 ? 12 : sign);
}

int DrekkanaStep(double degrees) {
  return degrees < 10 ? 1 : degrees < 20 ? 5 : 9;
}

void FillRow(int row, double x, VargaTable& table) {
  const int r = WholePart(x / 30);
  const double f = x / 30 - r;
  table[1][row] = SignOf(r + 1);
  table[2][row] = SignOf(r + DrekkanaStep(f * 30));
  table[3][row] = SignOf(WholePart(x * 7 / 30) + 1);
  table[4][row] = SignOf(WholePart(x * 9 / 30) + 1);
  table[5][row] = SignOf(WholePart(f * 10) + r + (r % 2 == 0 ? 1 : 9));
  table[6][row] = SignOf(WholePart(f * 12) + r + 1);
  table[7][row] = SignOf(WholePart(x * 16 / 30) + 1);
}

}  // namespace

VargaTable FillVargaTable(double ascendant, const Positions& positions) {
  VargaTable table;
  FillRow(1, ascendant, table);
  for (int b = 1; b <= 12; ++b) FillRow(b + 1, positions[b + 1], table);
  return table;
}

}  // namespace engine
