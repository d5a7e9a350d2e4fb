#include "report/page_row.h"

#include <string>

#include "dayperiods/clsUtilities.h"
#include "dayperiods/sunrise_at.h"
#include "engine/record_chart.h"
#include "foundation/bounded_array.h"
#include "foundation/letters.h"
#include "foundation/locale_names.h"
#include "foundation/numbers.h"
#include "foundation/time_text.h"

namespace report {
namespace {

using foundation::DateTimeFields;
using foundation::DecimalToTimeText;
using foundation::NumberText;
using foundation::SessionRecord;

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
  const double room = page_layout::kPlaceLineRight - page_layout::kPlaceLineLeft;
  if (wanted > room) {
    line.font.size *= static_cast<float>(room / wanted);
    target.SetFontSize(line.font.size);
  }
  line.place.width = static_cast<float>(target.TextWidth(caption));
  line.place.left = page_layout::kPlaceLineRight - line.place.width;
}

dayperiods::SunriseRows SunOf(const DateTimeFields& at, const SessionRecord& record) {
  engine::clsPP chart;
  engine::GenRecordHoro(chart, record, at);
  return dayperiods::SunriseAt(chart, at);
}

}  // namespace

void FillHead(pk_Durvela& page, foundation::DateTime moment,
              const foundation::SessionTable& session, forms::DrawingTarget& target) {
  const DateTimeFields at = foundation::FieldsOf(moment);
  page.lblHHH.caption =
      "nqosZyk ¼" + std::string(kMonths[at.month]) + " " + NumberText(at.year) + "½";
  const SessionRecord& record = session.Current();
  SetPlaceLine(page.lblHead3,
               "(" + record.CityName + "  Long:" + record.LongitudeText +
                   "  Lat:" + record.LatitudeText + "  Zone:" + record.ZoneTimeText + ")",
               target);
}

void FillRow(pk_Durvela& page, int row, foundation::DateTime moment,
             const foundation::SessionTable& session) {
  const DateTimeFields at = foundation::FieldsOf(moment);
  dayperiods::clsUtilities periods(session);
  periods.CalcDurvela(at.day, at.month, at.year, at.hour, at.minute, at.second);
  periods.CalcGulikYum(at.day, at.month, at.year, at.hour, at.minute, at.second);

  const std::string& weekday = foundation::WeekdayNameOfWeek(foundation::WeekdayOf(moment));
  page.lblDate[row].caption =
      NumberText(at.day) + "-" + std::string(foundation::FirstLetters(weekday, 3));
  const dayperiods::SunriseRows sun = SunOf(at, session.Current());
  page.lblSR[row].caption = DecimalToTimeText(sun.clockRise);
  page.lblSS[row].caption = DecimalToTimeText(sun.clockSet);
  page.lblDM[row].caption = DecimalToTimeText(sun.clockSet - sun.clockRise);
  page.lblDurvelaIN[row].caption = periods.DurvelaStart;
  page.lblDurvelaOut[row].caption = periods.DurvelaEnd;
  page.lblGulikIN[row].caption = periods.GulikStart;
  page.lblGulikOut[row].caption = periods.GulikEnd;
  page.lblyumIN[row].caption = periods.YumStart;
  page.lblyumOut[row].caption = periods.YumEnd;
}

}  // namespace report
