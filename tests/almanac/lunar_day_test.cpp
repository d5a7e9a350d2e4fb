#include <gtest/gtest.h>

#include "dayperiods/clsBirthDetails.h"
#include "support/errors.h"

namespace dayperiods {
namespace {

std::string Name(const ElementResult& result) {
  return std::get<std::string>(result);
}

int Number(const ElementResult& result) {
  return std::get<std::int16_t>(result);
}

// Worked out independently of this code.
TEST(LunarDay, AgreesWithElementsWorkedOutElsewhere) {
  const struct {
    double moon, sun;
    int tithi;
    const char* tithiName;
    const char* paksh;
    const char* quarter;
    int yoga;
    const char* yogaName;
    int karana;
    const char* karanaName;
  } kDays[] = {
      {218.76195280950498, 211.67797090666102, 1, "Pratipada", "Shukla", "2", 6, "Atiganda", 2,
       "Bava"},
      {122.24546816487943, 359.71227027793003, 11, "Ekadashi", "Shukla", "1", 10, "Gand", 21,
       "Vanij"},
      {140.24139169019787, 256.5793456797851, 21, "Shashthi", "Krishna", "3", 3, "Ayushman", 41,
       "Gar"},
      {219.18900837629073, 44.152332887774726, 15, "Purnima", "Shukla", "2", 20, "Siva", 30,
       "Bava"},
      {318.7990718103501, 346.9253675394618, 28, "Trayodashi", "Krishna", "4", 23, "Subha", 56,
       "Vanij"},
  };
  clsBirthDetails details;
  for (const auto& day : kDays) {
    SCOPED_TRACE(day.moon);
    EXPECT_EQ(Number(details.getTITHI(day.moon, day.sun, true)), day.tithi);
    EXPECT_EQ(Name(details.getTITHI(day.moon, day.sun, false)), day.tithiName);
    EXPECT_EQ(details.getPaksh(day.moon, day.sun), day.paksh);
    EXPECT_EQ(details.getCharanPad(day.moon), day.quarter);
    EXPECT_EQ(Number(details.getYOG(day.moon, day.sun, true)), day.yoga);
    EXPECT_EQ(Name(details.getYOG(day.moon, day.sun, false)), day.yogaName);
    EXPECT_EQ(Number(details.GetKaran(day.moon, day.sun, true)), day.karana);
    EXPECT_EQ(Name(details.GetKaran(day.moon, day.sun, false)), day.karanaName);
  }
}

TEST(LunarDay, TithisMeetAtNewAndFullMoon) {
  clsBirthDetails details;
  EXPECT_EQ(Name(details.getTITHI(99.999, 100, false)), "Amavasya");
  EXPECT_EQ(Number(details.getTITHI(99.999, 100, true)), 30);
  EXPECT_EQ(Number(details.getTITHI(100, 100, true)), 0);
  EXPECT_EQ(Name(details.getTITHI(100, 100, false)), "Purnima");
  EXPECT_EQ(Number(details.getTITHI(100.001, 100, true)), 1);
  EXPECT_EQ(Number(details.getTITHI(112, 100, true)), 1);
  EXPECT_EQ(details.getPaksh(280, 100), "Shukla");  // the full moon itself
  EXPECT_EQ(details.getPaksh(280.001, 100), "Krishna");
  EXPECT_EQ(details.getTithiName(16), "Pratipada");
  EXPECT_ERROR(Subscript, details.getTithiName(0));
  EXPECT_ERROR(Subscript, details.getTithiName(31));
}

TEST(LunarDay, YogasWrap) {
  clsBirthDetails details;
  EXPECT_EQ(Number(details.getYOG(180, 180, true)), 1);
  EXPECT_EQ(Number(details.getYOG(180, 179.99, true)), 27);
  EXPECT_EQ(Number(details.getYOG(360, 360, true)), 1);
  EXPECT_ERROR(Subscript, details.getYogName(0));
}

TEST(LunarDay, KaranasAreReckonedInWholeMinutes) {
  clsBirthDetails details;
  EXPECT_EQ(Name(details.GetKaran(100, 100, false)), "Kinstughna");
  EXPECT_EQ(Number(details.GetKaran(105.99, 100, true)), 1);   // 359.4 minutes
  EXPECT_EQ(Number(details.GetKaran(105.995, 100, true)), 2);  // 359.7
  EXPECT_EQ(Name(details.GetKaran(99, 100, false)), "Nag");
  EXPECT_EQ(Number(details.GetKaran(99.995, 100, true)), 1);  // the whole circle
  EXPECT_EQ(details.getKaranName(8), "VISHTI");
  EXPECT_EQ(details.getKaranName(57), "VISHTI");
  EXPECT_EQ(details.getKaranName(58), "SHAKUNI");
  EXPECT_ERROR(Subscript, details.getKaranName(0));
  EXPECT_ERROR(Subscript, details.getKaranName(61));
}

}  // namespace
}  // namespace dayperiods
