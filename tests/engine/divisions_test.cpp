#include "engine/divisions.h"

#include <gtest/gtest.h>

#include "support/table.h"

namespace engine {
namespace {

using support::ExpectRows;
using support::Row;

// By the names of DivName.
enum Column { Rashi = 1, Hora, Drekkana, Thrisamsa = 13, Shatyamsa = 16, Panchamsa, Ashtamsa = 19 };

int Sign(Column column, double longitude) {
  return WideDivisions(longitude)[column];
}

TEST(WideDivisions, ChangeAtTheirBoundaries) {
  ExpectRows(Sign, Row(Rashi, 29.999, 1), Row(Rashi, 30, 2), Row(Hora, 14.999, 5), Row(Hora, 15, 4),
             Row(Hora, 44.999, 4), Row(Hora, 45, 5), Row(Drekkana, 9.999, 1), Row(Drekkana, 10, 5),
             Row(Drekkana, 20, 9), Row(Thrisamsa, 4.999, 1), Row(Thrisamsa, 5, 11),
             Row(Thrisamsa, 10, 9), Row(Thrisamsa, 18, 3), Row(Thrisamsa, 25, 7),
             Row(Thrisamsa, 34.999, 2), Row(Thrisamsa, 35, 6), Row(Thrisamsa, 42, 12),
             Row(Thrisamsa, 50, 10), Row(Thrisamsa, 55, 8), Row(Shatyamsa, 0.499, 1),
             Row(Shatyamsa, 0.5, 2), Row(Shatyamsa, 29.999, 12));
  // Not brought below 13.
  ExpectRows(Sign, Row(Panchamsa, 46, 4), Row(Panchamsa, 359, 16), Row(Ashtamsa, 46, 13),
             Row(Ashtamsa, 149, 16));
}

// Columns 1 to 20; the full circle is a thirteenth sign of the kind of the first.
TEST(WideDivisions, TakeBothEndsOfTheCircle) {
  const int kAtZero[] = {1, 5, 1, 1, 1, 1, 1, 1, 1, 1, 5, 1, 1, 1, 1, 1, 1, 1, 1, 1};
  for (int column = 1; column <= 20; ++column) {
    EXPECT_EQ(WideDivisions(0)[column], kAtZero[column - 1]) << column;
    const int atCircle = column == Panchamsa ? 13 : kAtZero[column - 1];
    EXPECT_EQ(WideDivisions(360)[column], atCircle) << column;
  }
}

TEST(NarrowDivisions, ChangeAtTheirBoundaries) {
  const struct {
    double longitude;
    int signs[7];
  } kCases[] = {{0, {1, 1, 1, 1, 1, 1, 1}},   {10, {1, 5, 3, 4, 4, 5, 6}},
                {20, {1, 9, 5, 7, 7, 9, 11}}, {30, {2, 2, 8, 10, 10, 2, 5}},
                {360, {1, 1, 1, 1, 1, 1, 1}}, {359.999, {12, 8, 12, 12, 5, 11, 12}}};
  for (const auto& [longitude, signs] : kCases) {
    const VargaTable table = FillVargaTable(longitude, Positions());
    for (int k = 1; k <= 7; ++k) EXPECT_EQ(table[k][1], signs[k - 1]) << longitude << ' ' << k;
  }
}

}  // namespace
}  // namespace engine
