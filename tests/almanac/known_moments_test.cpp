#include <gtest/gtest.h>

#include "dayperiods/clsBirthDetails.h"
#include "engine/zodiac.h"

namespace dayperiods {
namespace {

using Number = std::int16_t;
using Text = std::string;

struct KnownMoment {
  struct {
    Number day, month, year, hour, minute, second;
  } at;
  const char *latitude, *longitude, *zone;
  double moon, sun, ayanamsa;
  Number tithi;
  Text tithiName, paksh, quarter;
  Number yoga;
  Text yogaName;
  Number karana;
  Text karanaName;
  Text tithiEnd, nakshatraEnd, yogaEnd, karanaEnd;
  Text ayan, gol, ritu, mas, shaka, vikram;
  Text yoni, gan, nadi, yunja, syllable, varga;
};
const KnownMoment kMoments[] = {
#include "known_moments.inc"
};

// Calls `check` with each moment and an object to ask.
template <typename Check>
void ForEachMoment(const Check& check) {
  clsBirthDetails details;
  for (const KnownMoment& moment : kMoments) {
    SCOPED_TRACE(moment.tithiEnd);
    check(details, moment);
  }
}

foundation::SessionTable SessionAt(const KnownMoment& moment) {
  foundation::SessionTable session;
  session.Current().LatitudeText = moment.latitude;
  session.Current().LongitudeText = moment.longitude;
  session.Current().ZoneMeridianText = moment.zone;
  return session;
}

TEST(KnownMoments, HaveTheirElements) {
  ForEachMoment([](clsBirthDetails& details, const KnownMoment& m) {
    EXPECT_EQ(details.getTITHI(m.moon, m.sun, true), ElementResult(m.tithi));
    EXPECT_EQ(details.getTITHI(m.moon, m.sun, false), ElementResult(m.tithiName));
    EXPECT_EQ(details.getPaksh(m.moon, m.sun), m.paksh);
    EXPECT_EQ(details.getCharanPad(m.moon), m.quarter);
    EXPECT_EQ(details.getYOG(m.moon, m.sun, true), ElementResult(m.yoga));
    EXPECT_EQ(details.getYOG(m.moon, m.sun, false), ElementResult(m.yogaName));
    EXPECT_EQ(details.GetKaran(m.moon, m.sun, true), ElementResult(m.karana));
    EXPECT_EQ(details.GetKaran(m.moon, m.sun, false), ElementResult(m.karanaName));
  });
}

TEST(KnownMoments, HaveTheirEndings) {
  ForEachMoment([](clsBirthDetails& details, const KnownMoment& m) {
    const foundation::SessionTable session = SessionAt(m);
    const auto end = [&](auto search) {
      const auto& [day, month, year, hour, minute, second] = m.at;
      return (details.*search)(day, month, year, hour, minute, second, session);
    };
    EXPECT_EQ(end(&clsBirthDetails::GetTITHIending), m.tithiEnd);
    EXPECT_EQ(end(&clsBirthDetails::GetNakshatraending), m.nakshatraEnd);
    EXPECT_EQ(end(&clsBirthDetails::GetYogEnding), m.yogaEnd);
    EXPECT_EQ(end(&clsBirthDetails::GetKaranEnding), m.karanaEnd);
  });
}

TEST(KnownMoments, HaveTheirCalendarTerms) {
  ForEachMoment([](clsBirthDetails& details, const KnownMoment& m) {
    EXPECT_EQ(details.getAyan(m.sun, m.ayanamsa), m.ayan);
    EXPECT_EQ(details.getGol(m.sun, m.ayanamsa), m.gol);
    EXPECT_EQ(details.getRitu(m.sun, m.ayanamsa), m.ritu);
    const auto& [day, month, year, hour, minute, second] = m.at;
    EXPECT_EQ(
        details.GetMas(day, month, year, hour, minute, second, m.longitude, m.latitude, m.zone, {}),
        m.mas);
    EXPECT_EQ(details.GetSamvat(day, month, year, hour, minute, second, m.longitude, m.latitude,
                                m.zone, {}),
              (std::array{m.shaka, m.vikram}));
  });
}

TEST(KnownMoments, HaveTheirBirthAttributes) {
  ForEachMoment([](clsBirthDetails& details, const KnownMoment& m) {
    const Number nak = engine::NakNumber(m.moon), quarter = engine::NakQuarter(m.moon);
    EXPECT_EQ(details.getYoni(nak), m.yoni);
    EXPECT_EQ(details.getGan(nak), m.gan);
    EXPECT_EQ(details.getNadi(nak), m.nadi);
    EXPECT_EQ(details.getYunja(nak), m.yunja);
    EXPECT_EQ(details.getNaamAkshar(nak, quarter), m.syllable);
    EXPECT_EQ(details.getNaamAksharVarga(nak, quarter), m.varga);
  });
}

TEST(Endings, FollowTheRecordsWarTimeButNotItsAyanamsa) {
  clsBirthDetails details;
  foundation::SessionTable session = SessionAt(kMoments[0]);
  session.Current().WarTimeCorrection = 1;  // the same sky, an hour earlier by the clock
  session.Current().AyanamsaChoice = 6;
  const auto end = [&] { return details.GetNakshatraending(18, 11, 1990, 5, 11, 25, session); };
  EXPECT_EQ(end(), "18/November/1990 21:11:43");
  session.DefaultAyanamsa = 6;  // tropical: almost two stars on
  EXPECT_NE(end(), "18/November/1990 21:11:43");
}

// The moon was full on 30 January at 06:04 and on 28 February at 17:10 Universal Time.
TEST(LunarMonth, IsTheSolarMonthsOwnWhereAFebruaryHasNoFullMoon) {
  clsBirthDetails details;
  const auto month = [&](Number hour) {
    return details.GetMas(1, 2, 2029, hour, 0, 0, "77.13E", "28.40N", "82.30E", {});
  };
  EXPECT_EQ(month(12), "MAGHA");
  EXPECT_EQ(month(23), "PHALGUNA");  // the last evening's
}

}  // namespace
}  // namespace dayperiods
