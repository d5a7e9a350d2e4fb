#include "engine/divisions.h"

#include <gtest/gtest.h>

namespace engine {
namespace {

// By the names of DivName.
enum Column { Rashi = 1, Hora, Drekkana, Thrisamsa = 13, Shatyamsa = 16, Panchamsa, Ashtamsa = 19 };

TEST(WideDivisions, ChangeAtTheirBoundaries) {
  const struct {
    double longitude;
    Column column;
    int sign;
  } kCases[] = {
      {29.999, Rashi, 1},
      {30, Rashi, 2},
      {14.999, Hora, 5},
      {15, Hora, 4},
      {44.999, Hora, 4},
      {45, Hora, 5},
      {9.999, Drekkana, 1},
      {10, Drekkana, 5},
      {20, Drekkana, 9},
      {4.999, Thrisamsa, 1},
      {5, Thrisamsa, 11},
      {10, Thrisamsa, 9},
      {18, Thrisamsa, 3},
      {25, Thrisamsa, 7},
      {34.999, Thrisamsa, 2},
      {35, Thrisamsa, 6},
      {42, Thrisamsa, 12},
      {50, Thrisamsa, 10},
      {55, Thrisamsa, 8},
      {0.499, Shatyamsa, 1},
      {0.5, Shatyamsa, 2},
      {29.999, Shatyamsa, 12},
      {46, Panchamsa, 4},
      // Not brought below 13.
      {46, Ashtamsa, 13},
      {149, Ashtamsa, 16},
      {359, Panchamsa, 16},
  };
  for (const auto& [longitude, column, sign] : kCases) {
    EXPECT_EQ(WideDivisions(longitude)[column], sign) << longitude << " in column " << column;
  }
}

// The full circle is a thirteenth sign of the kind of the first.
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
  } kCases[] = {
      {0, {1, 1, 1, 1, 1, 1, 1}},
      {10, {1, 5, 3, 4, 4, 5, 6}},
      {20, {1, 9, 5, 7, 7, 9, 11}},
      {30, {2, 2, 8, 10, 10, 2, 5}},
      {359.999, {12, 8, 12, 12, 5, 11, 12}},
      {360, {1, 1, 1, 1, 1, 1, 1}},
  };
  for (const auto& [longitude, signs] : kCases) {
    const VargaTable table = FillVargaTable(longitude, Positions());
    for (int k = 1; k <= 7; ++k) EXPECT_EQ(table[k][1], signs[k - 1]) << longitude << ' ' << k;
  }
}

}  // namespace
}  // namespace engine
