// Elements of a day and attributes of a birth, at the limits of their tables.

#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "dayperiods/clsBirthDetails.h"
#include "support/errors.h"
#include "support/table.h"

namespace dayperiods {
namespace {

using Text = std::string;
using Words = std::set<Text>;
using support::Row;

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

TEST(BirthAttributes, TablesAreComplete) {
  Words vargas, nadis, gans, signs;
  int syllables = 0;
  for (std::int16_t nak = 1; nak <= 27; ++nak) {
    nadis.insert(details.getNadi(nak));
    gans.insert(details.getGan(nak));
    for (std::int16_t quarter = 1; quarter <= 4; ++quarter) {
      vargas.insert(details.getNaamAksharVarga(nak, quarter));
      syllables += details.getNaamAkshar(nak, quarter).empty() ? 0 : 1;
    }
  }
  for (std::int16_t sign = 1; sign <= 12; ++sign) {
    const GhatRow& row = details.getGhat(sign, 0);
    for (std::size_t i = 9; i < row.size(); ++i) signs.emplace(row[i]);
  }
  EXPECT_EQ(nadis, (Words{"AADHYA", "ADHYA", "MADHYA", "ANTYA", "NTYA"}));
  EXPECT_EQ(gans, (Words{"DEV", "MANUSHYA", "RAKSHAS"}));
  EXPECT_EQ(vargas, (Words{"SIMHA", "MRIG", "GARUD", "MARJAR", "MESH", "SWAN", "UUDAR", "SARP"}));
  EXPECT_EQ(syllables, 107);  // of 108: one is missing
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
