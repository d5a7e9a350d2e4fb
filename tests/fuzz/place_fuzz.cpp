// Lines as the latitude, longitude and meridian of a place and the fields of a moment: a chart and
// a day in their ranges, or an Error.

#include <array>

#include "dayperiods/clsUtilities.h"
#include "engine/clsPP.h"
#include "foundation/modConvertFx.h"
#include "foundation/numbers.h"
#include "fuzz/fuzz.h"

namespace {

struct Moment {
  double day, month, year, hour, minute, second;
};

void Angles(std::string_view text) {
  double number = foundation::LeadingNumber(text);
  fuzz::Try([&] { foundation::ZoneToMeridianText(text); });
  fuzz::Try([&] { foundation::DecimalToSignDMS(number); });
  fuzz::Try([&] { foundation::DegMinToDecimal(number); });
}

void Chart(const foundation::SessionRecord& place, const Moment& at, std::int32_t mode) {
  engine::clsPP chart;
  chart.GenHoro(at.day, at.month, at.year, at.hour, at.minute, at.second, place.LongitudeText,
                place.LatitudeText, place.ZoneMeridianText, mode % 8,
                mode < 0 ? foundation::kTrue16 : foundation::kFalse16, 0);
  fuzz::Require(chart.ppSidTime >= 0 && chart.ppSidTime <= 24);
  for (const double longitude : chart.getPLNTinSeq()) {
    fuzz::Require(longitude >= 0 && longitude <= 360);
  }
}

void Periods(const foundation::SessionTable& session, const Moment& at) {
  dayperiods::clsUtilities day(session);
  day.CalcDurvela(at.day, at.month, at.year, at.hour, at.minute, at.second);
  day.CalcGulikYum(at.day, at.month, at.year, at.hour, at.minute, at.second);
  for (const std::string* text : {&day.DurvelaStart, &day.DurvelaEnd, &day.GulikStart,
                                  &day.GulikEnd, &day.YumStart, &day.YumEnd}) {
    fuzz::Require(text->size() == 8 && *text < "24");
  }
}

}  // namespace

void fuzz::Run(const std::string& bytes) {
  static foundation::SessionTable session;
  foundation::SessionRecord& place = session.Current();
  std::string_view rest = bytes;
  for (std::string* text : {&place.LatitudeText, &place.LongitudeText, &place.ZoneMeridianText}) {
    *text = foundation::TakeLine(rest);
    fuzz::Try([&] { Angles(*text); });
  }
  std::array<double, 7> numbers = {};
  for (double& number : numbers) number = foundation::LeadingNumber(foundation::TakeLine(rest));
  const auto& [day, month, year, hour, minute, second, mode] = numbers;
  const Moment at = {day, month, year, hour, minute, second};
  const double ayanamsa = mode;
  fuzz::Try([&] { Chart(place, at, foundation::RoundToInt32(ayanamsa)); });
  Periods(session, at);
}
