#include "screens/quick_view.h"

#include <string>

#include "dayperiods/clsUtilities.h"
#include "foundation/locale_names.h"
#include "foundation/numbers.h"

namespace screens {
namespace {

using foundation::NumberText;

constexpr double kFontSize = 13;  // points
constexpr double kRowGap = 100;   // twips

// Left edges of the columns.
constexpr double kDate = 200, kWeekday = 1700, kStart = 3200, kTo = 4400, kEnd = 4900;

void PrintAt(forms::DrawingTarget& page, double x, double y, std::string_view text) {
  page.SetCurrentX(x);
  page.SetCurrentY(y);
  page.Print(text);
}

void DrawRow(forms::DrawingTarget& page, double y, foundation::DateTime moment,
             const foundation::SessionTable& session) {
  const foundation::DateTimeFields at = foundation::FieldsOf(moment);
  dayperiods::clsUtilities periods(session);
  periods.CalcDurvela(at.day, at.month, at.year, at.hour, at.minute, at.second);
  PrintAt(page, kDate, y,
          NumberText(at.day) + "-" + NumberText(at.month) + "-" + NumberText(at.year));
  PrintAt(page, kWeekday, y, foundation::WeekdayName(foundation::WeekdayOf(moment)));
  PrintAt(page, kStart, y, periods.DurvelaStart);
  PrintAt(page, kTo, y, "to");
  PrintAt(page, kEnd, y, periods.DurvelaEnd);
}

}  // namespace

void DrawQuickView(forms::DrawingTarget& page, foundation::DateTime start, foundation::DateTime end,
                   const foundation::SessionTable& session) {
  page.SetFontSize(kFontSize);
  page.Cls();
  double y = 0;
  for (foundation::DateTime moment = start; moment <= end; moment += 1) {
    DrawRow(page, y, moment, session);
    y += page.TextHeight("W") + kRowGap;
  }
}

}  // namespace screens
