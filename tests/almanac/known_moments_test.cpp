
#include <array>

#include "dayperiods/clsBirthDetails.h"
#include "support/session_at.h"
#include "support/test.h"

namespace dayperiods {
namespace {

using Number = std::int16_t;
using Text = std::string;

struct KnownMoment {
  std::array<Number, 6> at;
  struct {
    const char *latitude, *longitude, *zone;
  } place;
  struct {
    double moon, sun, ayanamsa;
  } sky;
  std::array<int, 4> numbers;
  std::array<Text, 4> ends;
  std::array<Text, 6> calendar;
};
const KnownMoment kMoments[] = {
#include "known_moments.inc"
};

TEST(KnownMoments, MatchIndependentResults) {
  clsBirthDetails of;
  for (const auto& [at, place, sky, numbers, ends, calendar] : kMoments) {
    SCOPED_TRACE(ends[0]);
    const auto& [day, month, year, hour, minute, second] = at;
    const auto& [latitude, longitude, zone] = place;
    const auto& [moon, sun, ayanamsa] = sky;
    EXPECT_EQ((std::array<int, 4>{std::get<Number>(of.getTITHI(moon, sun, true)),
                                  std::stoi(of.getCharanPad(moon)),
                                  std::get<Number>(of.getYOG(moon, sun, true)),
                                  std::get<Number>(of.GetKaran(moon, sun, true))}),
              numbers);
    const auto session = support::SessionAt(latitude, longitude, zone);
    EXPECT_EQ((std::array{of.GetTITHIending(day, month, year, hour, minute, second, session),
                          of.GetNakshatraending(day, month, year, hour, minute, second, session),
                          of.GetYogEnding(day, month, year, hour, minute, second, session),
                          of.GetKaranEnding(day, month, year, hour, minute, second, session)}),
              ends);
    const auto [shaka, vikram] =
        of.GetSamvat(day, month, year, hour, minute, second, longitude, latitude, zone, {});
    EXPECT_EQ((std::array{
                  of.getAyan(sun, ayanamsa), of.getGol(sun, ayanamsa), of.getRitu(sun, ayanamsa),
                  of.GetMas(day, month, year, hour, minute, second, longitude, latitude, zone, {}),
                  shaka, vikram}),
              calendar);
  }
}

TEST(Endings, FollowTheRecordsWarTimeButNotItsAyanamsa) {
  foundation::SessionTable session = support::Delhi();
  session.Current().WarTimeCorrection = 1;  // the same sky, an hour earlier on the clock
  session.Current().AyanamsaChoice = 6;
  const auto end = [&] {
    return clsBirthDetails().GetNakshatraending(18, 11, 1990, 5, 11, 25, session);
  };
  EXPECT_EQ(end(), "18/November/1990 21:11:43");
  session.DefaultAyanamsa = 6;  // tropical: almost two stars further
  EXPECT_NE(end(), "18/November/1990 21:11:43");
}

// Fails with the corrected node, which would need the year 99.
TEST(Endings, FollowTheDefaultNode) {
  clsBirthDetails details;
  foundation::SessionTable session = support::Delhi();
  session.Current().RahuKetuFlag = foundation::kTrue16;
  EXPECT_NE(details.GetTITHIending(5, 3, 100, 6, 0, 0, session), "");
  session.DefaultNodeFlag = foundation::kTrue16;
  EXPECT_ERROR(TypeMismatch, details.GetTITHIending(5, 3, 100, 6, 0, 0, session));
}

Text MonthInDelhi(Number day, Number month, Number year, Number hour) {
  return clsBirthDetails().GetMas(day, month, year, hour, 0, 0, "77.13E", "28.40N", "82.30E", {});
}

// Full moons: 18 April and 10 December 2011, 14:36 Universal Time.
TEST(LunarMonth, IsTheNextOneUntilTheFullMoonHasPassed) {
  ExpectRows(MonthInDelhi, Row(19, 4, 2011, 6, "VAISAKHA"), Row(20, 4, 2011, 6, "CHAITRA"),
             Row(1, 12, 2011, 6, "PAUSA"), Row(12, 12, 2011, 6, "MARGSHIRSH"));
}

// Full moons: 30 January, 06:04, and 28 February 2029, 17:10 Universal Time.
TEST(LunarMonth, IsTheSolarMonthsIfFebruaryHasNoFullMoon) {
  // And of the last evening.
  ExpectRows(MonthInDelhi, Row(1, 2, 2029, 12, "MAGHA"), Row(1, 2, 2029, 23, "PHALGUNA"));
}

TEST(EraYears, BeginAtTheFirstTithiFrom2April) {
  const auto shaka = [](Number day, Number month, Number year, Number hour) {
    return clsBirthDetails().GetSamvat(day, month, year, hour, 0, 0, "77.13E", "28.40N", "82.30E",
                                       {})[0];
  };
  // New moons of 2022: 1 April, 06:24, and 30 April, 20:28 Universal Time.
  ExpectRows(shaka, Row(3, 4, 2011, 6, "1932"), Row(4, 4, 2011, 6, "1933"),
             Row(10, 4, 2022, 23, "1943"), Row(1, 5, 2022, 23, "1944"));
  // In 2024: 8 April, 18:21. The first tithi ends before 22:00 the next day.
  ExpectRows(shaka, Row(15, 4, 2024, 22, "1945"), Row(15, 4, 2024, 12, "1946"));
}

}  // namespace
}  // namespace dayperiods
