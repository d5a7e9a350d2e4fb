#include "engine/planets_table.h"

#include <cmath>

#include "engine/clsPP.h"
#include "engine/sub_lords.h"
#include "engine/zodiac.h"
#include "foundation/numbers.h"
#include "foundation/phrases.h"
#include "foundation/time_text.h"

namespace engine {
namespace {

constexpr int kBodies = 13;
constexpr double kSecondsPerDegree = 3600;

void FillCells(PlanetCells& row, int body, double longitude) {
  const DegreeSplit split = RoundedSplit(longitude);
  row.Name = BodyName(body + 1);
  row.Longitude = longitude;
  row.Sign = split.Sign;
  row.Degrees = foundation::PadDigits(split.Degrees, 2);
  row.Minutes = foundation::PadDigits(split.Minutes, 2);
  row.Seconds = foundation::PadDigits(split.Seconds, 2);
  row.Star = NakNumber(longitude);
  row.Quarter = foundation::NumberText(NakQuarter(longitude));
  row.RashiLord = RashiLordCode(longitude);
  row.NakLord = NakLordUpper(longitude);
}

}  // namespace

std::string_view clsPP::getPlanetName(double PlanetNum) {
  return BodyName(foundation::RoundToInt16(PlanetNum));
}

std::string_view clsPP::getRashiName(double sign) {
  const int index = foundation::RoundToInt16(sign);
  return RashiNameLang(static_cast<std::int16_t>(index + 1), 0);
}

std::string_view clsPP::GetNakLord(double longitude) {
  return BodyName(NakLordNumber(longitude));
}

std::string clsPP::GetRashiLord(double longitude) {
  return foundation::NumberText(RashiLordNumber(RashiNumber(longitude)));
}

std::string clsPP::getAyan(const foundation::SessionTable& session) const {
  using foundation::NumberText;
  const double longitude = positions_[Ayanamsa];
  const double degrees = std::floor(longitude);
  const double minutes = (longitude - degrees) * 60;
  const double seconds = (minutes - std::floor(minutes)) * 60;
  const std::string colon = foundation::LanguagePhrase(":", session);
  return foundation::LanguagePhrase("Ayanamsa", session) + colon + NumberText(degrees) + colon +
         NumberText(std::floor(minutes)) + colon + NumberText(std::floor(seconds + 0.5));
}

PlanetsTable clsPP::getPlanetsTable(foundation::MessageBoxes& boxes) const {
  const std::array<double, kBodies> longitudes = getPLNTinSeq();
  PlanetsTable table;
  for (int body = 0; body < kBodies; ++body) {
    PlanetRow& row = table[static_cast<std::size_t>(body)];
    FillCells(row, body, longitudes[static_cast<std::size_t>(body)]);
    row.SubLord = SubLordOf(row.Longitude * kSecondsPerDegree, boxes);
    row.SubSubLord = SubSubLordOf(row.Longitude * kSecondsPerDegree, boxes);
  }
  return table;
}

PlanetsTable2 clsPP::getPlanetsTable2() const {
  const std::array<double, kBodies> longitudes = getPLNTinSeq();
  PlanetsTable2 table;
  for (int body = 0; body < kBodies; ++body) {
    PlanetRow2& row = table[static_cast<std::size_t>(body)];
    FillCells(row, body, longitudes[static_cast<std::size_t>(body)]);
    row.Combust = CombustTest(row.Name, row.Longitude, pp_Sun);
    // No body has its fall and its exaltation in the same sign, so at least one of these is empty.
    row.Dignity = std::string(DebilTest(row.Name, row.Longitude)) +
                  std::string(ExaltTest(row.Name, row.Longitude));
    if (body > 0) row.Motion = getRET(static_cast<std::int16_t>(body));
  }
  return table;
}

}  // namespace engine
