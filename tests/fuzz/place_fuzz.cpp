// Lines as latitude, longitude, meridian and the fields of a moment: a chart and a day within their
// ranges, or an Error.

#include <array>

#include "dayperiods/clsUtilities.h"
#include "engine/clsPP.h"
#include "foundation/angle_text.h"
#include "foundation/numbers.h"
#include "fuzz/fuzz.h"

namespace {

using Numbers = std::array<double, 7>;

void Chart(const foundation::SessionRecord& place, const Numbers& numbers) {
  const auto& [day, month, year, hour, minute, second, ayanamsa] = numbers;
  const std::int32_t mode = foundation::RoundToInt32(ayanamsa);
  engine::clsPP chart;
  chart.GenHoro(day, month, year, hour, minute, second, place.LongitudeText, place.LatitudeText,
                place.ZoneMeridianText, mode % 8,
                mode < 0 ? foundation::kTrue16 : foundation::kFalse16, 0);
  fuzz::Require(chart.ppSidTime >= 0 && chart.ppSidTime <= 24);
  for (const double at : chart.getPLNTinSeq()) fuzz::Require(at >= 0 && at <= 360);
}

void Periods(const foundation::SessionTable& session, const Numbers& numbers) {
  const auto& [day, month, year, hour, minute, second, ayanamsa] = numbers;
  dayperiods::clsUtilities of(session);
  of.CalcDurvela(day, month, year, hour, minute, second);
  of.CalcGulikYum(day, month, year, hour, minute, second);
  for (const auto& text :
       {of.DurvelaStart, of.DurvelaEnd, of.GulikStart, of.GulikEnd, of.YumStart, of.YumEnd}) {
    fuzz::Require(text.size() == 8 && text < "24");
  }
}

}  // namespace

void fuzz::Run(const std::string& bytes) {
  static foundation::SessionTable session;
  foundation::SessionRecord& place = session.Current();
  std::string_view rest = bytes;
  for (std::string* text : {&place.LatitudeText, &place.LongitudeText, &place.ZoneMeridianText}) {
    *text = foundation::TakeLine(rest);
    Try([&] { foundation::ZoneToMeridianText(*text); });
    Try([&] { foundation::DecimalToSignDMS(foundation::LeadingNumber(*text)); });
    Try([&] {
      double number = foundation::LeadingNumber(*text);
      foundation::DegMinToDecimal(number);
    });
  }
  Numbers numbers = {};
  for (double& number : numbers) number = foundation::LeadingNumber(foundation::TakeLine(rest));
  fuzz::Try([&] { Chart(place, numbers); });
  Periods(session, numbers);
}
