#include "engine/relations.h"

#include <string_view>

namespace engine {
namespace {

// A row per body, with one character for each other body.
constexpr foundation::BoundedArray<std::string_view, 1, 9> kNatural{{
    " 22120000",  // Sun
    "2 1211100",  // Moon
    "22 021102",  // Mars
    "201 12111",  // Mercury
    "2220 0111",  // Jupiter
    "00121 222",  // Venus
    "000212 20",  // Saturn
    "0001122 0",  // Rahu
    "00211200 ",  // Ketu
}};

// By the place of the body's sign counted from the other's, 1 to 12: friends are within three signs
// on either side.
constexpr std::string_view kTemporal = "022200000222";

// By the natural relation, '0' to '2', and by whether the temporal one is friendly.
constexpr char kCompound[3][2] = {{'4', '1'}, {'0', '2'}, {'1', '3'}};

char Temporal(int sign, int otherSign) {
  int d = sign + 1 - otherSign;
  if (d < 1) d += 12;
  return kTemporal[static_cast<std::size_t>(d - 1)];
}

}  // namespace

RelationTable Maitri(const DivTable& divisions) {
  constexpr int kRashi = 1;
  RelationTable table;
  for (int i = 1; i <= 9; ++i) {
    for (int j = 1; j <= 9; ++j) {
      if (i == j) continue;
      const char natural = kNatural[i][static_cast<std::size_t>(j - 1)];
      const char temporal = Temporal(divisions[i + 1][kRashi], divisions[j + 1][kRashi]);
      table[1][i][j] = natural;
      table[2][i][j] = temporal;
      table[3][i][j] = kCompound[natural - '0'][temporal == '2'];
    }
  }
  return table;
}

}  // namespace engine
