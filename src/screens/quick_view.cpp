#include "screens/quick_view.h"

#include <algorithm>
#include <string>

#include "dayperiods/clsUtilities.h"
#include "foundation/locale_names.h"
#include "foundation/numbers.h"
#include "report/own_clock_row.h"
#include "words/sun_text.h"

namespace screens {
namespace {

using foundation::NumberText;

constexpr double kFontSize = 13;  // points
constexpr double kNoteSize = 9;
constexpr double kRowGap = 100;  // twips
constexpr double kMargin = 60;   // right of the notes

// Left edges of the columns.
constexpr double kDate = 200, kWeekday = 1700, kStart = 3200, kTo = 4400, kEnd = 4900, kNote = 6060;

void PrintAt(forms::DrawingTarget& page, double x, double y, std::string_view text) {
  page.SetCurrentX(x);
  page.SetCurrentY(y);
  page.Print(text);
}

void DrawRow(forms::DrawingTarget& page, double y, foundation::DateTime moment,
             const std::string& from, const std::string& to) {
  const foundation::DateTimeFields at = foundation::FieldsOf(moment);
  PrintAt(page, kDate, y,
          NumberText(at.day) + "-" + NumberText(at.month) + "-" + NumberText(at.year));
  PrintAt(page, kWeekday, y, foundation::WeekdayName(foundation::WeekdayOf(moment)));
  PrintAt(page, kStart, y, from);
  PrintAt(page, kTo, y, "to");
  PrintAt(page, kEnd, y, to);
}

void DrawRow(forms::DrawingTarget& page, double y, foundation::DateTime moment,
             const foundation::SessionTable& session) {
  const foundation::DateTimeFields at = foundation::FieldsOf(moment);
  dayperiods::clsUtilities periods(session);
  periods.CalcDurvela(at.day, at.month, at.year, at.hour, at.minute, at.second);
  DrawRow(page, y, moment, periods.DurvelaStart, periods.DurvelaEnd);
}

std::string NoteOf(const report::OwnClockRow& row) {
  const std::string change(row.change), noSun(words::NoSunText(row.sun));
  return change.empty() || noSun.empty() ? change + noSun : change + ", " + noSun;
}

// Returns its right edge.
double DrawNote(forms::DrawingTarget& page, double y, const std::string& note) {
  if (note.empty()) return 0;
  const double rowHeight = page.TextHeight("W");
  page.SetFontSize(kNoteSize);
  PrintAt(page, kNote, y + (rowHeight - page.TextHeight("W")) / 2, note);
  const double right = kNote + page.TextWidth(note);
  page.SetFontSize(kFontSize);
  return right;
}

// Calls `drawRow` with each row's top and moment.
void DrawRows(forms::DrawingTarget& page, foundation::DateTime start, foundation::DateTime end,
              const auto& drawRow) {
  page.SetFontSize(kFontSize);
  page.Cls();
  double y = 0;
  for (foundation::DateTime moment = start; moment <= end; moment += 1) {
    drawRow(y, moment);
    y += page.TextHeight("W") + kRowGap;
  }
}

}  // namespace

void DrawQuickView(forms::DrawingTarget& page, foundation::DateTime start, foundation::DateTime end,
                   const foundation::SessionTable& session) {
  DrawRows(page, start, end,
           [&](double y, foundation::DateTime moment) { DrawRow(page, y, moment, session); });
}

double DrawQuickView(forms::DrawingTarget& page, foundation::DateTime start,
                     foundation::DateTime end, foundation::SessionTable& session,
                     day::KeptPlace& place) {
  double width = 0;
  DrawRows(page, start, end, [&](double y, foundation::DateTime moment) {
    const report::OwnClockRow row = report::RowByOwnClock(place, moment, session);
    // The note first, so that the pen ends below the row itself.
    width = std::max(width, DrawNote(page, y, NoteOf(row)));
    DrawRow(page, y, moment, row.times.durvela.start, row.times.durvela.end);
  });
  return width == 0 ? 0 : width + kMargin;
}

}  // namespace screens
