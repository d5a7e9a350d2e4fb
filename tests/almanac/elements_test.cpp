// Elements of a day and attributes of a birth, at the limits of their tables.

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

#include "dayperiods/clsBirthDetails.h"
#include "engine/zodiac.h"
#include "support/errors.h"
#include "support/table.h"
#include "support/words.h"

namespace dayperiods {
namespace {

using Number = std::int16_t;
using Text = std::string;
using Words = std::set<Text>;
using support::Beginnings;
using support::Row;
using support::Translated;

clsBirthDetails details;  // stateless

TEST(LunarDay, TithisMeetAtNewAndFullMoon) {
  const auto name = [&](double moon) { return std::get<Text>(details.getTITHI(moon, 100, false)); };
  const auto number = [&](double moon) {
    return std::get<std::int16_t>(details.getTITHI(moon, 100, true));
  };
  ExpectRows(name, Row(99.999, "Amavasya"), Row(100, "Purnima"));
  ExpectRows(number, Row(99.999, 30), Row(100, 0), Row(100.001, 1), Row(112, 1));
  EXPECT_EQ(details.getPaksh(280, 100), "Shukla");  // the full moon itself
  EXPECT_EQ(details.getPaksh(280.001, 100), "Krishna");
}

TEST(LunarDay, YogasWrap) {
  const auto yoga = [&](double moon, double sun) {
    return std::get<std::int16_t>(details.getYOG(moon, sun, true));
  };
  ExpectRows(yoga, Row(180, 180, 1), Row(180, 179.99, 27), Row(360, 360, 1));
}

TEST(LunarDay, KaranasUseWholeMinutes) {
  const auto name = [&](double moon) { return std::get<Text>(details.GetKaran(moon, 100, false)); };
  // 359.4 and 359.7 minutes; within a minute of the full circle.
  ExpectRows(name, Row(100, "Kinstughna"), Row(99, "Nag"), Row(105.99, "Kinstughna"),
             Row(105.995, "Bava"), Row(99.995, "Kinstughna"));
  EXPECT_EQ(details.getKaranName(57) + details.getKaranName(58), "VISHTISHAKUNI");
}

// Orders and schemes here and below are the tradition's.
TEST(LunarDay, ElementsAreNamedInTheirOrder) {
  const Text half = "Pra Dvi Tri Cha Pan Sha Sap Ash Nav Das Eka Dwa Tra Cha ";
  const Text tithis = half + "Pur " + half + "Ama";
  EXPECT_EQ(Translated(30, 3, [](auto number) { return details.getTithiName(number); }), tithis);
  const auto byPlace = [](int number) {
    return std::get<Text>(details.getTITHI(12 * number - 6, 0, false));
  };
  EXPECT_EQ(Translated(30, 3, byPlace), tithis);
  EXPECT_EQ(Translated(27, 4, [](auto number) { return details.getYogName(number); }),
            "Visk Prit Ayus Saub Sobh Atig Suka Dhri Sula Gand Vrid Dhru Vyag Hars Vajr Sidd Vyat "
            "Vari Pari Siva Sidd Sadh Subh Shuk Brah Indr Vaid");
  Text moving;
  for (int i = 0; i < 8; ++i) moving += " BAV BAL KAU TAI GAR VAN VIS";
  EXPECT_EQ(Translated(60, 3, [](auto number) { return details.getKaranName(number); }),
            "KIN" + moving + " SHA CHA NAG");
}

TEST(CalendarTerms, FollowTheSunAndTheFullMoonsStar) {
  const auto bySign = [](auto term) {
    return Translated(12, 3, [=](int sign) { return (details.*term)(30 * sign - 40, 25); });
  };
  EXPECT_EQ(bySign(&clsBirthDetails::getAyan), "UTT UTT UTT DAK DAK DAK DAK DAK DAK UTT UTT UTT");
  EXPECT_EQ(bySign(&clsBirthDetails::getGol), "UTT UTT UTT UTT UTT UTT DAK DAK DAK DAK DAK DAK");
  EXPECT_EQ(bySign(&clsBirthDetails::getRitu), "VAS GRI GRI VAR VAR SHA SHA HEM HEM SHI SHI VAS");
  const auto star = [](Number month) { return engine::NakName(details.MASatBirth(month)); };
  EXPECT_EQ(Translated(12, 5, star),
            "Pushy Magha U. Ph Chitr Visha Jyesh P. As Shrav P. Bh Ashwi Kritt Mriga");
  const auto month = [](Number number) { return details.Mas(details.MASatBirth(number)); };
  EXPECT_EQ(Translated(12, 4, month),
            "PAUS MAGH PHAL CHAI VAIS JYAI ASAD SRAV BHAD ASVI KART MARG");
}

TEST(BirthAttributes, FollowTheirSchemes) {
  const auto ofSigns = [](auto attribute) {
    return Beginnings(12, 3, [=](int sign) { return (details.*attribute)(30 * sign - 15); });
  };
  EXPECT_EQ(ofSigns(&clsBirthDetails::getVarna), "KSH VAI SHU BRA KSH VAI SHU BRA KSH VAI SHU BRA");
  EXPECT_EQ(ofSigns(&clsBirthDetails::getHansak),
            "AGN BHO VAY VAA AGN BHO VAY VAA AGN BHO VAY VAA");
  EXPECT_EQ(ofSigns(&clsBirthDetails::getVashya),
            "CHA CHA MAA JAL VAN MAA MAA KEE MAA CHA MAA JAL");
  const auto ofStars = [](int letters, auto attribute) {
    return Beginnings(27, letters, [=](Number nak) { return (details.*attribute)(nak); });
  };
  EXPECT_EQ(ofStars(1, &clsBirthDetails::getGan),
            "D M R M D M D D R R M M D R D R D R R M M D R R M M D");
  // To and fro; of two the first letter is lost.
  EXPECT_EQ(ofStars(2, &clsBirthDetails::getNadi),
            "AA MA AN AN MA AA AA MA NT AN MA AA AA MA AN AN MA AD AA MA AN AN MA AA AA MA AN");
  EXPECT_EQ(ofStars(1, &clsBirthDetails::getYunja),
            "P P P P P M M M M M M M M M M M M A A A A A A A A A P");
  EXPECT_EQ(ofStars(3, &clsBirthDetails::getYoni),
            "ASH GAJ MES SAR SAR SWA MAR MES MAR UUD UUD GAU MAH VYA MAH VYA MRI MRI SWA VAA NAK "
            "VAA SIM ASH SIM GAU GAJ");
}

// The class of a name is that of its first sound. Four quarters do not keep to it.
TEST(BirthAttributes, ClassesFollowTheSyllables) {
  const std::map<Text, Text> sounds = {{"GARUD", "AEO"},  {"MARJAR", "KG"}, {"SIMHA", "CJ"},
                                       {"SWAN", "ADT"},   {"SARP", "DNT"},  {"UUDAR", "BMP"},
                                       {"MRIG", "LRVWY"}, {"MESH", "HS"}};
  Text others, syllables;
  for (Number nak = 1; nak <= 27; ++nak) {
    for (Number quarter = 1; quarter <= 4; ++quarter) {
      const Text syllable = details.getNaamAkshar(nak, quarter);
      if (nak % 8 == 1) syllables += syllable + ", ";
      const Text first = syllable.empty() ? "-" : syllable.substr(0, 1);
      if (sounds.at(details.getNaamAksharVarga(nak, quarter)).find(first) != Text::npos) continue;
      others += std::to_string(nak) + "/" + std::to_string(quarter) + first + " ";
    }
  }
  EXPECT_EQ(others, "13/2D 26/2T 26/4J 27/2- ");
  EXPECT_EQ(syllables,
            "Choo (Chooha), Che (Chetan), Cho (Choudhary), Laa (Laara), Dee, Doo, Day, Do, "
            "Naa, Nee, Noo, Ne, Se, So, Daa, Dee, ");
}

TEST(BirthAttributes, TablesAreComplete) {
  Words signs;
  for (Number sign = 1; sign <= 12; ++sign) {
    const GhatRow& row = details.getGhat(sign, 0);
    EXPECT_EQ(row[0], std::to_string(sign));
    for (std::size_t i = 9; i < row.size(); ++i) signs.emplace(row[i]);
  }
  EXPECT_EQ(signs, (Words{"ARIES", "TAURUS", "GEMINI", "CANCER", "CANCD", "LEO", "VIRGO", "LIBRA",
                          "SCORPIO", "SAGGITARIUS", "CAPRICORN", "AQUARIUS", "PISCES"}));
}

TEST(BirthAttributes, KeepTheirSpelling) {
  EXPECT_EQ(details.getNadi(9) + " " + details.getNadi(18), "NTYA ADHYA");
  EXPECT_EQ(details.getYoni(15) + " " + details.getYoni(16), "MAHI VYAGH");
  EXPECT_EQ(details.getNaamAkshar(2, 3), "Le ");
  EXPECT_EQ(details.getVarga(27, 2), "_SARP");
  EXPECT_EQ(details.getGhat(11, 1)[14], "CANCD");
}

TEST(BirthAttributes, CoverTheLimitsOfTheirTables) {
  ExpectRows([&](double moon) { return details.getVashya(moon); }, Row(269.999, "MAANAV/CHAT"),
             Row(270, "CHAT/JAL"), Row(std::nextafter(60.0, 0), "CHATUSHPAD"));
  EXPECT_EQ(details.getVarna(0) + details.getGan(0), "KSHATRIYA");
  EXPECT_ERROR(Subscript, details.getHansak(360));
  EXPECT_EQ(details.getNaamAkshar(0, 1) + details.getVarga(28, 1), "");
  EXPECT_EQ(details.getNaamAkshar(1, 11), details.getNaamAkshar(11, 1));  // same key
  EXPECT_EQ(details.getGhat(0, 0)[1], "FALGUN");
}

TEST(BirthAttributes, GiveTheMetalOfABirth) {
  // One letter per number from 0; "-" is none.
  const auto letter = [](const Text& metal) { return metal.empty() ? '-' : metal[0]; };
  Text bySign, byStar;
  for (std::int16_t sign = 0; sign <= 13; ++sign) bySign += letter(details.GetRashiPaya(sign));
  for (std::int16_t nak = 0; nak <= 28; ++nak) byStar += letter(details.GetNakPaya(nak));
  EXPECT_EQ(bySign, "GGSCISGCISCGI-");
  EXPECT_EQ(byStar, "-GGGGGSSSSSSSSSSICCCCCCCCCCG-");
}

}  // namespace
}  // namespace dayperiods
