#include "report/make_report.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <memory>

#include "foundation/date_text.h"
#include "foundation/locale_names.h"
#include "foundation/numbers.h"
#include "report/form_drawing.h"
#include "report/own_clock_row.h"
#include "report/page_row.h"
#include "words/clock_changes.h"
#include "words/sun_text.h"

namespace report {
namespace {

using foundation::DateTime;
using foundation::DateTimeFields;
using foundation::NumberText;

class ReportMaker {
 public:
  ReportMaker(const ReportInput& input, foundation::SessionTable& session,
              foundation::Yielder& yielder, PageReceiver& receiver)
      : input_(input),
        ownClock_(input.ownClock),
        session_(session),
        yielder_(yielder),
        receiver_(receiver) {}

  void Run() {
    DateTime day = input_.DT1;
    WritePlace();
    BeginPage(day);
    receiver_.Begin(*page_);
    int month = foundation::FieldsOf(day).month;
    // Counts days: with times added, rounding could miss the last one.
    while (day <= input_.DT2) {
      const int monthOfDay = foundation::FieldsOf(day).month;
      if (monthOfDay != month) {
        EndPage(month, day);
        BeginPage(day);
        month = monthOfDay;
      }
      AddRow(AtTime(day));
      day += 1;
      ShowStatus(day);
      yielder_.Yield();
    }
    receiver_.ShowProgress(NoSun());
    EndPage(month, day);
  }

 private:
  // Called for each row: while the report yields, the dashboard writes its place to the record.
  void WritePlace() {
    foundation::SessionRecord& record = session_.Current();
    record.LatitudeText = input_.latitude;
    record.LongitudeText = input_.longitude;
    record.ZoneMeridianText = input_.zoneMeridian;
    record.ZoneTimeText = input_.zoneTime;
    record.CityName = input_.city;
    record.CountryName = input_.country;
  }

  DateTime AtTime(DateTime date) const {
    const DateTimeFields time = foundation::FieldsOf(input_.dtTime);
    return date + foundation::TimeFromParts(time.hour, time.minute, time.second);
  }

  void BeginPage(DateTime first) {
    page_ = std::make_unique<pk_Durvela>();
    row_ = 0;
    if (ownClock_) zone_ = OwnZone(first);
  }

  // "UTC-4, from 1 November UTC-5", of the days on the page that begins with one.
  std::string OwnZone(DateTime first) const {
    const DateTimeFields at = foundation::FieldsOf(first);
    const DateTime endOfMonth = foundation::DateFromParts(at.year, at.month + 1, 0);
    return words::ZoneOfDays(ownClock_->Clock().clock, DateOf(first),
                             DateOf(std::min(endOfMonth, input_.DT2)));
  }

  static std::chrono::local_days DateOf(DateTime day) {
    return std::chrono::floor<std::chrono::days>(foundation::CivilTimeOf(day));
  }

  void AddRow(DateTime date) {
    WritePlace();
    forms::DrawingTarget& target = receiver_.Target();
    if (ownClock_) {
      FillHead(*page_, date, session_.Current(), zone_, target);
      const OwnClockRow row = RowByOwnClock(*ownClock_, date, session_);
      FillRow(*page_, row_, date, row.times);
      FillNote(*page_, row_, row.change);
      polarDays_ += row.sun == day::Sun::State::PolarDay ? 1 : 0;
      polarNights_ += row.sun == day::Sun::State::PolarNight ? 1 : 0;
    } else {
      FillHead(*page_, date, session_.Current(), target);
      FillRow(*page_, row_, date, RowByRecord(date, session_));
    }
    ++row_;
  }

  void ShowStatus(DateTime day) {
    const DateTimeFields at = foundation::FieldsOf(day);
    receiver_.ShowProgress("Loading.. " + foundation::DayMonthYear(at.day, at.month, at.year, ' ') +
                           (NoSun().empty() ? "" : ". " + NoSun()));
  }

  std::string NoSun() const { return words::NoSunDaysText(polarDays_, polarNights_); }

  // `next` is the first day after the page; the title uses its year.
  void EndPage(int month, DateTime next) {
    forms::DrawingTarget& target = receiver_.Target();
    target.Cls();
    DrawFormOnTarget(*page_, target, 0, 0);
    receiver_.TakePage(number_, Title(month, next));
    number_ = foundation::RoundToInt16(number_ + 1);
  }

  std::string Title(int month, DateTime next) const {
    return "Durvela " + foundation::MonthName(month) + " " +
           NumberText(foundation::FieldsOf(next).year) + " ..P" + NumberText(number_);
  }

  const ReportInput& input_;
  std::optional<day::KeptPlace> ownClock_;
  foundation::SessionTable& session_;
  foundation::Yielder& yielder_;
  PageReceiver& receiver_;
  std::unique_ptr<pk_Durvela> page_;
  std::int16_t number_ = 1;
  std::string zone_;  // of the page's days by the own clock
  int row_ = 0;
  int polarDays_ = 0, polarNights_ = 0;  // in all rows
};

}  // namespace

void MakeReport(const ReportInput& input, foundation::SessionTable& session,
                foundation::Yielder& yielder, PageReceiver& receiver) {
  ReportMaker(input, session, yielder, receiver).Run();
}

}  // namespace report
