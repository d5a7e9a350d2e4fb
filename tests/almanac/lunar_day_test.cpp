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
