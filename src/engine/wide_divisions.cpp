// The wide table: twenty divisions for the ascendant and the bodies to Ketu.

#include "engine/angles.h"
#include "engine/divisions.h"

namespace engine {
namespace {

// A sign 1 to 12; 13, for a longitude of exactly 360, behaves like 1.
class Sign {
 public:
  explicit Sign(int number) : number_(number) {}

  int ByParity(int odd, int even) const { return number_ % 2 == 1 ? odd : even; }
  int ByQuality(int movable, int fixed, int dual) const {
    const int values[] = {movable, fixed, dual};
    return values[(number_ - 1) % 3];
  }
  int ByElement(int fire, int earth, int air, int water) const {
    const int values[] = {fire, earth, air, water};
    return values[(number_ - 1) % 4];
  }

 private:
  int number_;
};

// The unequal parts of a sign in the Thrisamsa.
struct UnequalPart {
  int lastDegree;  // of the sign's 1 to 30
  int sign;
};
constexpr UnequalPart kOddParts[] = {{5, 1}, {10, 11}, {18, 9}, {25, 3}, {30, 7}};
constexpr UnequalPart kEvenParts[] = {{5, 2}, {12, 6}, {20, 12}, {25, 10}, {30, 8}};

int Thrisamsa(bool odd, int degree) {
  const UnequalPart* part = odd ? kOddParts : kEvenParts;
  while (degree > part->lastDegree) ++part;
  return part->sign;
}

// Half-degree parts, counted in whole minutes of arc.
int Shatyamsa(double d) {
  const int degrees = WholePart(d);
  return (60 * degrees + WholePart(60 * (d - degrees))) / 30;
}

}  // namespace

const DivNames DivName{
    {"",           "Rashi",     "Hora",       "Drekkana",     "Chaturthamsa", "Saptamsa",
     "Navamsa",    "Dasamsa",   "Dwadasamsa", "Shodasamsa",   "Vimsamsa",     "Chaturvimsamsa",
     "Bhamsa",     "Thrisamsa", "Khavedamsa", "Akshavedamsa", "Shatyamsa",    "Panchamsa",
     "Shashtamsa", "Ashtamsa",  "Ekadasamsa"}};

DivRow WideDivisions(double longitude) {
  const int s0 = WholePart(longitude / 30);
  const double d = longitude - 30 * s0;
  const int s = s0 + 1;
  const Sign sign(s);
  const auto W = [d](int n) { return WholePart(n * d / 30); };
  const bool firstHalf = d < 15;
  const int ekadasamsa = 1 + W(11) - (s - 1);

  const int columns[] = {
      0,
      s,                                                    // Rashi
      sign.ByParity(firstHalf ? 5 : 4, firstHalf ? 4 : 5),  // Hora
      s + 4 * W(3),                                         // Drekkana
      s + 3 * W(4),                                         // Chaturthamsa
      s + W(7) + sign.ByParity(0, 6),                       // Saptamsa
      1 + 9 * (s - 1) + W(9),                               // Navamsa
      s + W(10) + sign.ByParity(0, 8),                      // Dasamsa
      s + W(12),                                            // Dwadasamsa
      W(16) + sign.ByQuality(1, 5, 9),                      // Shodasamsa
      W(20) + sign.ByQuality(1, 9, 5),                      // Vimsamsa
      W(24) + sign.ByParity(5, 4),                          // Chaturvimsamsa
      W(27) + sign.ByElement(1, 4, 7, 10),                  // Bhamsa
      Thrisamsa(s % 2 == 1, WholePart(d) + 1),              // Thrisamsa
      W(40) + sign.ByParity(1, 7),                          // Khavedamsa
      W(45) + sign.ByQuality(1, 5, 9),                      // Akshavedamsa
      s + Shatyamsa(d),                                     // Shatyamsa
      s + W(5),                                             // Panchamsa
      W(6) + sign.ByParity(1, 7),                           // Shashtamsa
      W(8) + sign.ByQuality(1, 9, 5),                       // Ashtamsa
      ekadasamsa < 1 ? ekadasamsa + 12 : ekadasamsa,        // Ekadasamsa
  };
  constexpr int kReduced = 16;  // later columns keep values above 12
  DivRow row;
  for (int column = 1; column <= 20; ++column) {
    int value = columns[column];
    if (column <= kReduced && value > 12) value = (value - 1) % 12 + 1;
    row[column] = static_cast<std::int16_t>(value);
  }
  return row;
}

DivTable FillDivTable(double ascendant, const Positions& positions) {
  DivTable table;
  table[1] = WideDivisions(ascendant);
  for (int i = 2; i <= 10; ++i) table[i] = WideDivisions(positions[BodyOrder[i]]);
  return table;
}

}  // namespace engine
