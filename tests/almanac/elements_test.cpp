// The elements of a day and the attributes of a birth at the ends of their tables.

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

struct Details : testing::Test {
  clsBirthDetails details;
};
using LunarDay = Details;
using BirthAttributes = Details;

Text Name(const ElementResult& result) {
  return std::get<Text>(result);
}

int Number(const ElementResult& result) {
  return std::get<std::int16_t>(result);
}

TEST_F(LunarDay, TithisMeetAtNewAndFullMoon) {
  const auto name = [&](double moon) { return Name(details.getTITHI(moon, 100, false)); };
  const auto number = [&](double moon) { return Number(details.getTITHI(moon, 100, true)); };
  ExpectRows(name, Row(99.999, "Amavasya"), Row(100, "Purnima"));
  ExpectRows(number, Row(99.999, 30), Row(100, 0), Row(100.001, 1), Row(112, 1));
  EXPECT_EQ(details.getPaksh(280, 100), "Shukla");  // the full moon itself
  EXPECT_EQ(details.getPaksh(280.001, 100), "Krishna");
  EXPECT_EQ(details.getTithiName(16), "Pratipada");
  EXPECT_ERROR(Subscript, details.getTithiName(0));
  EXPECT_ERROR(Subscript, details.getTithiName(31));
}

TEST_F(LunarDay, YogasWrap) {
  const auto yoga = [&](double moon, double sun) {
    return Number(details.getYOG(moon, sun, true));
  };
  ExpectRows(yoga, Row(180, 180, 1), Row(180, 179.99, 27), Row(360, 360, 1));
  EXPECT_ERROR(Subscript, details.getYogName(0));
}

TEST_F(LunarDay, KaranasAreReckonedInWholeMinutes) {
  const auto name = [&](double moon) { return Name(details.GetKaran(moon, 100, false)); };
  const auto number = [&](double moon) { return Number(details.GetKaran(moon, 100, true)); };
  ExpectRows(name, Row(100, "Kinstughna"), Row(99, "Nag"));
  // 359.4 minutes, 359.7, and the whole circle.
  ExpectRows(number, Row(105.99, 1), Row(105.995, 2), Row(99.995, 1));
  const auto listed = [&](std::int16_t karana) { return details.getKaranName(karana); };
  ExpectRows(listed, Row(8, "VISHTI"), Row(57, "VISHTI"), Row(58, "SHAKUNI"));
  EXPECT_ERROR(Subscript, details.getKaranName(0));
  EXPECT_ERROR(Subscript, details.getKaranName(61));
}

TEST_F(BirthAttributes, TablesAreFull) {
  Words vargas, nadis, gans;
  int syllables = 0, unknownSigns = 0;
  for (std::int16_t nak = 1; nak <= 27; ++nak) {
    nadis.insert(details.getNadi(nak));
    gans.insert(details.getGan(nak));
    EXPECT_NE(details.getYoni(nak), "");
    EXPECT_NE(details.getYunja(nak), "");
    for (std::int16_t quarter = 1; quarter <= 4; ++quarter) {
      vargas.insert(details.getNaamAksharVarga(nak, quarter));
      syllables += details.getNaamAkshar(nak, quarter).empty() ? 0 : 1;
    }
  }
  EXPECT_EQ(nadis, (Words{"AADHYA", "ADHYA", "MADHYA", "ANTYA", "NTYA"}));
  EXPECT_EQ(gans, (Words{"DEV", "MANUSHYA", "RAKSHAS"}));
  EXPECT_EQ(vargas, (Words{"SIMHA", "MRIG", "GARUD", "MARJAR", "MESH", "SWAN", "UUDAR", "SARP"}));
  EXPECT_EQ(syllables, 107);  // of 108: one is not there

  const Words zodiac = {"ARIES", "TAURUS",  "GEMINI",      "CANCER",    "LEO",      "VIRGO",
                        "LIBRA", "SCORPIO", "SAGGITARIUS", "CAPRICORN", "AQUARIUS", "PISCES"};
  for (std::int16_t sign = 1; sign <= 12; ++sign) {
    const GhatRow& row = details.getGhat(sign, 0);
    EXPECT_EQ(row[0], std::to_string(sign));
    const double moon = 30 * sign - 15;
    EXPECT_NE(details.getVarna(moon), "");
    EXPECT_NE(details.getVashya(moon), "");
    EXPECT_NE(details.getHansak(moon), "");
    for (const std::string_view cell : row) EXPECT_NE(cell, "");
    for (std::size_t i = 9; i < row.size(); ++i) {
      unknownSigns += zodiac.contains(std::string(row[i])) ? 0 : 1;
    }
  }
  EXPECT_EQ(unknownSigns, 1);  // "CANCD"
}

TEST_F(BirthAttributes, KeepTheirSpelling) {
  EXPECT_EQ(details.getNadi(9) + " " + details.getNadi(18), "NTYA ADHYA");
  EXPECT_EQ(details.getYoni(15) + " " + details.getYoni(16), "MAHI VYAGH");
  EXPECT_EQ(details.getYunja(27), "PURVA");
  EXPECT_EQ(details.getNaamAkshar(2, 3), "Le ");
  EXPECT_EQ(details.getNaamAkshar(27, 2), "");
  EXPECT_EQ(details.getVarga(27, 2), "_SARP");
  EXPECT_EQ(details.getGhat(11, 1)[14], "CANCD");
  EXPECT_EQ(details.getGhat(7, 0)[2], "04-09-14  (Rikra)");
}

TEST_F(BirthAttributes, EndsOfTheirTables) {
  ExpectRows([&](double moon) { return details.getVashya(moon); }, Row(269.999, "MAANAV/CHAT"),
             Row(270, "CHAT/JAL"), Row(std::nextafter(60.0, 0), "CHATUSHPAD"));
  EXPECT_EQ(details.getVarna(0), "KSHATRIYA");
  EXPECT_ERROR(Subscript, details.getHansak(360));
  EXPECT_EQ(details.getGan(0), "");
  EXPECT_ERROR(Subscript, details.getGan(28));
  EXPECT_EQ(details.getNaamAkshar(0, 1), "");
  EXPECT_EQ(details.getVarga(28, 1), "");
  EXPECT_EQ(details.getNaamAkshar(1, 11), details.getNaamAkshar(11, 1));  // one key
  EXPECT_EQ(details.getGhat(0, 0)[1], "FALGUN");
  EXPECT_ERROR(Subscript, details.getGhat(13, 0));
}

// A letter for each number from 0 on; "-" is none.
template <typename Paya>
std::string Metals(int last, const Paya& paya) {
  std::string metals;
  for (int number = 0; number <= last; ++number) {
    const std::string metal = paya(static_cast<std::int16_t>(number));
    metals += metal.empty() ? '-' : metal[0];
  }
  return metals;
}

TEST_F(BirthAttributes, MetalOfABirth) {
  EXPECT_EQ(Metals(13, [&](std::int16_t sign) { return details.GetRashiPaya(sign); }),
            "GGSCISGCISCGI-");
  EXPECT_EQ(Metals(28, [&](std::int16_t nak) { return details.GetNakPaya(nak); }),
            "-GGGGGSSSSSSSSSSICCCCCCCCCCG-");
}

}  // namespace
}  // namespace dayperiods
