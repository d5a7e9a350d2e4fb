#include "report/page_row.h"

#include <string>

#include "foundation/bounded_array.h"
#include "foundation/letters.h"
#include "foundation/locale_names.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "report/form_drawing.h"

namespace report {
namespace {

using foundation::DateTimeFields;
using foundation::NumberText;
using foundation::SessionRecord;

constexpr double kPlaceLineRoom = page_layout::kPlaceLineRight - page_layout::kPlaceLineLeft;

// In the legacy Hindi encoding.
constexpr foundation::BoundedArray<std::string_view, 1, 12> kMonths{
    {"tuojh", "Qjojh", "ekpZ", "vizSy", "ebZ", "twu", "tqykbZ", "vxLr", "flrEcj", "vDrwcj", "uoEcj",
     "fnlEcj"}};

void SetPlaceLine(forms::Control& line, const std::string& caption, forms::DrawingTarget& target) {
  line.caption = caption;
  target.SetFont(line.font.name);
  target.SetFontBold(line.font.bold);
  target.SetFontItalic(line.font.italic);
  line.font.size = page_layout::kPlaceLineSize;
  target.SetFontSize(line.font.size);
  const double wanted = target.TextWidth(caption);
  if (wanted > kPlaceLineRoom) {
    line.font.size *= static_cast<float>(kPlaceLineRoom / wanted);
    target.SetFontSize(line.font.size);
  }
  line.place.width = static_cast<float>(target.TextWidth(caption));
  line.place.left = page_layout::kPlaceLineRight - line.place.width;
}

std::string PlaceText(const SessionRecord& record, std::string_view city, std::string_view zone) {
  return "(" + std::string(city) + "  Long:" + record.LongitudeText +
         "  Lat:" + record.LatitudeText + "  Zone:" + std::string(zone) + ")";
}

// The place, with a city cut short if the smallest letters still need more room.
std::string FittingPlaceText(const SessionRecord& record, std::string_view zone,
                             const forms::Font& font, forms::DrawingTarget& target) {
  target.SetFont(font.name);
  target.SetFontBold(font.bold);
  target.SetFontItalic(font.italic);
  target.SetFontSize(kSmallestPrinted);
  std::string text = PlaceText(record, record.CityName, zone);
  for (int left = static_cast<int>(foundation::Characters(record.CityName).size());
       left > 0 && target.TextWidth(text) > kPlaceLineRoom; --left) {
    const auto city = foundation::FirstCharacters(record.CityName, left - 1);
    text = PlaceText(record, std::string(city) + "…", zone);
  }
  return text;
}

void SetTitle(forms::Control& title, foundation::DateTime moment) {
  const DateTimeFields at = foundation::FieldsOf(moment);
  title.caption = "nqosZyk ¼" + std::string(kMonths[at.month]) + " " + NumberText(at.year) + "½";
}

}  // namespace

void FillHead(pk_Durvela& page, foundation::DateTime moment, const SessionRecord& record,
              forms::DrawingTarget& target) {
  SetTitle(page.lblHHH, moment);
  SetPlaceLine(page.lblHead3, PlaceText(record, record.CityName, record.ZoneTimeText), target);
}

void FillHead(pk_Durvela& page, foundation::DateTime moment, const SessionRecord& record,
              std::string_view zone, forms::DrawingTarget& target) {
  SetTitle(page.lblHHH, moment);
  const std::string place = FittingPlaceText(record, zone, page.lblHead3.font, target);
  SetPlaceLine(page.lblHead3, place, target);
}

void FillRow(pk_Durvela& page, int row, foundation::DateTime moment, const words::DayRow& times) {
  const DateTimeFields at = foundation::FieldsOf(moment);
  const std::string& weekday = foundation::WeekdayNameOfWeek(foundation::WeekdayOf(moment));
  page.lblDate[row].caption =
      NumberText(at.day) + "-" + std::string(foundation::FirstLetters(weekday, 3));
  page.lblSR[row].caption = times.sunrise;
  page.lblSS[row].caption = times.sunset;
  page.lblDM[row].caption = times.daylight;
  page.lblDurvelaIN[row].caption = times.durvela.start;
  page.lblDurvelaOut[row].caption = times.durvela.end;
  page.lblGulikIN[row].caption = times.gulik.start;
  page.lblGulikOut[row].caption = times.gulik.end;
  page.lblyumIN[row].caption = times.yum.start;
  page.lblyumOut[row].caption = times.yum.end;
}

void FillNote(pk_Durvela& page, int row, std::string_view change) {
  if (change.empty()) return;
  std::string& note = page.lblNote[row].caption;
  note.clear();
  for (const std::string_view word : foundation::Split(change, ' ')) {
    note += (note.empty() ? "" : "\r\n") + std::string(word);
  }
}

}  // namespace report
