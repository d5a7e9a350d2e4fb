// Signs, stars, dignities and divisions of a longitude.

#include "engine/zodiac.h"

#include "engine/divisions.h"
#include "foundation/legacy_hindi.h"
#include "foundation/text.h"
#include "support/test.h"
#include "support/words.h"

namespace engine {
namespace {

using support::Beginnings;
using support::Translated;

// Orders, rulers, limits and dignities are the tradition's.
TEST(Zodiac, NamesStandInTheirOrder) {
  EXPECT_EQ(Translated(13, 3, BodyName), "Asc Sun Moo Mar Mer Jup Ven Sat Rah Ket Ura Nep Plu");
  // The Sun, the planets outward from it with the Moon behind them, the nodes, the outer planets.
  EXPECT_EQ(Translated(13, 3, BodyNameUpper),
            "ASC SUN MER VEN MAR JUP SAT MOO RAH KET URA NEP PLU");
  EXPECT_EQ(Translated(27, 4, NakName),
            "Ashw Bhar Krit Rohi Mrig Ardr Puna Push Ashl Magh P. P U. P Hast Chit Swat Vish Anur "
            "Jyes Mool P. A U. A Shra Dhan Shat P. B U. B Reva");
  EXPECT_EQ(Translated(12, 3, [](std::int16_t sign) { return RashiNameText(sign, false); }),
            "Ari Tau Gem Can Leo Vir Lib Sco Sag Cap Aqu Pis");
  const auto hindi = [](auto sign) { return foundation::FromLegacyHindi(RashiNameLang(sign, 1)); };
  EXPECT_EQ(Beginnings(12, 9, hindi), "मेष वृष मिथुन कर्क सिंह कन्या तुला वृश्चिक ध्नु मकर कुंभ मीन");
  ExpectRows(RashiNameText, Row(9, true, 0, "SAG"), Row(9, true, 1, "Sagittarius"));
  EXPECT_EQ(RashiNameLang(2, 2), "Taurus");
  EXPECT_ERROR(Subscript, BodyNameUpper(0));
  EXPECT_ERROR(Subscript, RashiNameText(0, true));
  EXPECT_ERROR(Subscript, RashiNameLang(0, 1));
  EXPECT_ERROR(Subscript, RashiNameLang(13, 0));
}

TEST(Zodiac, SignsHaveTheirLordsAndHouses) {
  const char kLords[] = "MAR VEN MER MOO SUN MER VEN MAR JUP SAT SAT JUP";
  EXPECT_EQ(Translated(12, 3, RashiLordCodeAt), kLords);
  const auto name = [](int sign) {
    return foundation::UpperAscii(BodyName(RashiLordNumber(sign)));
  };
  EXPECT_EQ(Translated(12, 3, name), kLords);
  EXPECT_EQ(RashiLordCodeAt(0), "");
  ExpectRows(HouseOfSign, Row(45, 2, 1), Row(45, 1, 12), Row(45, 12, 11), Row(360, 1, 1));
  EXPECT_ERROR(Subscript, HouseOfSign(45, 0));
  EXPECT_ERROR(Subscript, HouseOfSign(45, 13));
}

TEST(Dignities, HoldInTheirSigns) {
  const auto signs = [](std::string_view body) {
    std::string exaltation, fall;
    for (int sign = 1; sign <= 12; ++sign) {
      if (!ExaltTest(body, 30 * sign - 15).empty()) exaltation += std::to_string(sign);
      if (!DebilTest(body, 30 * sign - 15).empty()) fall += std::to_string(sign);
    }
    return exaltation + " " + fall;
  };
  ExpectRows(signs, Row("Sun", "1 7"), Row("Moon", "2 8"), Row("MON", "2 8"), Row("Mars", "10 4"),
             Row("mercury", "6 12"), Row("Jupiter", "4 10"), Row("Venus", "12 6"),
             Row("Saturn", "7 1"), Row("Rahu", " "));
}

TEST(Dignities, ApplyWithinTheirRanges) {
  constexpr double kSecond = 1.0 / 3600;
  ExpectRows(ExaltTest, Row("Sun", 0, ""), Row("Sun", 1.1 * kSecond, "EXL"), Row("sun", 30, "EXL"),
             Row("Sun", 30 + kSecond, ""), Row("SAT", 180, ""), Row("Mercury", 150, "EXL"));
  ExpectRows(DebilTest, Row("Venus", 150, "DEB"), Row("Mars", 90, ""),
             Row("Mars", 90 + 1.1 * kSecond, "DEB"));
}

TEST(Dignities, BodiesNearTheSunAreCombust) {
  const auto limit = [](std::string_view body) {
    int degrees = 0;
    while (CombustTest(body, 100 - degrees, 100) == "COM") ++degrees;
    return degrees - 1;
  };
  ExpectRows(limit, Row("Moon", 12), Row("MON", 12), Row("mars", 17), Row("Mercury", 14),
             Row("Jupiter", 11), Row("Venus", 10), Row("Saturn", 15), Row("Sun", -1),
             Row("Rahu", -1));
  ExpectRows(CombustTest, Row("Venus", 10.001, 0, ""), Row("Mercury", 359, 1, ""));
}

TEST(DegreeSplit, CarriesAfterRounding) {
  const auto rounded = [](double longitude) {
    const DegreeSplit split = RoundedSplit(longitude);
    return std::tuple(split.Sign, split.Degrees, split.Minutes, split.Seconds);
  };
  ExpectRows(rounded, Row(308.27481352821326, std::tuple(10, 8, 16, 29)),
             Row(59.99999, std::tuple(2, 0, 0, 0)), Row(359.99999, std::tuple(12, 0, 0, 0)),
             Row(390.5, std::tuple(1, 0, 30, 0)));
}

TEST(WideDivisions, AreNamedInTheirOrder) {
  EXPECT_EQ(Beginnings(20, 14, [](int column) { return DivName[column]; }),
            "Rashi Hora Drekkana Chaturthamsa Saptamsa Navamsa Dasamsa Dwadasamsa Shodasamsa "
            "Vimsamsa Chaturvimsamsa Bhamsa Thrisamsa Khavedamsa Akshavedamsa Shatyamsa Panchamsa "
            "Shashtamsa Ashtamsa Ekadasamsa");
}

TEST(WideDivisions, ChangeAtTheirBoundaries) {
  enum { Hora = 2, Thrisamsa = 13, Shatyamsa = 16, Panchamsa, Ashtamsa = 19 };
  const auto sign = [](int column, double longitude) { return WideDivisions(longitude)[column]; };
  ExpectRows(sign, Row(Hora, 14.999, 5), Row(Hora, 15, 4), Row(Hora, 44.999, 4), Row(Hora, 45, 5),
             Row(Thrisamsa, 4.999, 1), Row(Thrisamsa, 5, 11), Row(Thrisamsa, 10, 9),
             Row(Thrisamsa, 18, 3), Row(Thrisamsa, 25, 7), Row(Thrisamsa, 34.999, 2),
             Row(Thrisamsa, 35, 6), Row(Thrisamsa, 42, 12), Row(Thrisamsa, 50, 10),
             Row(Thrisamsa, 55, 8), Row(Shatyamsa, 0.499, 1), Row(Shatyamsa, 0.5, 2),
             Row(Shatyamsa, 29.999, 12));
  // Not reduced to 12.
  ExpectRows(sign, Row(Panchamsa, 359, 16), Row(Ashtamsa, 46, 13), Row(Ashtamsa, 149, 16));
}

// 360 degrees is a thirteenth sign that behaves like the first.
TEST(WideDivisions, AcceptBothEndsOfTheCircle) {
  const auto signs = [](double longitude) {
    const DivRow row = WideDivisions(longitude);
    return Beginnings(20, 2, [&](int column) { return std::to_string(row[column]); });
  };
  ExpectRows(signs, Row(0, "1 5 1 1 1 1 1 1 1 1 5 1 1 1 1 1 1 1 1 1"),
             Row(360, "1 5 1 1 1 1 1 1 1 1 5 1 1 1 1 1 13 1 1 1"));
}

TEST(NarrowDivisions, ChangeAtTheirBoundaries) {
  const auto signs = [](double longitude) {
    const VargaTable table = FillVargaTable(longitude, Positions());
    return Beginnings(7, 2, [&](int division) { return std::to_string(table[division][1]); });
  };
  ExpectRows(signs, Row(0, "1 1 1 1 1 1 1"), Row(10, "1 5 3 4 4 5 6"), Row(20, "1 9 5 7 7 9 11"),
             Row(30, "2 2 8 10 10 2 5"), Row(360, "1 1 1 1 1 1 1"));
}

}  // namespace
}  // namespace engine
