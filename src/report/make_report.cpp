#include "report/make_report.h"

#include <cstdint>
#include <memory>

#include "foundation/date_text.h"
#include "foundation/locale_names.h"
#include "foundation/numbers.h"
#include "report/form_drawing.h"
#include "report/page_row.h"

namespace report {
namespace {

using foundation::DateTime;
using foundation::DateTimeFields;
using foundation::NumberText;

class ReportMaker {
 public:
  ReportMaker(const ReportInput& input, foundation::SessionTable& session,
              foundation::Yielder& yielder, PageReceiver& receiver)
      : input_(input), session_(session), yielder_(yielder), receiver_(receiver) {}

  void Run() {
    WritePlace();
    BeginPage();
    receiver_.Begin(*page_);
    DateTime day = input_.DT1;
    int month = foundation::FieldsOf(day).month;
    // Counts days: with times added, rounding could miss the last one.
    while (day <= input_.DT2) {
      const int monthOfDay = foundation::FieldsOf(day).month;
      if (monthOfDay != month) {
        EndPage(month, day);
        BeginPage();
        month = monthOfDay;
      }
      AddRow(AtTime(day));
      day += 1;
      ShowStatus(day);
      yielder_.Yield();
    }
    receiver_.ShowProgress("");
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

  void BeginPage() {
    page_ = std::make_unique<pk_Durvela>();
    row_ = 0;
  }

  void AddRow(DateTime date) {
    WritePlace();
    FillHead(*page_, date, session_, receiver_.Target());
    FillRow(*page_, row_++, date, session_);
  }

  void ShowStatus(DateTime day) {
    const DateTimeFields at = foundation::FieldsOf(day);
    receiver_.ShowProgress("Loading.. " + foundation::DayMonthYear(at.day, at.month, at.year, ' '));
  }

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
  foundation::SessionTable& session_;
  foundation::Yielder& yielder_;
  PageReceiver& receiver_;
  std::unique_ptr<pk_Durvela> page_;
  std::int16_t number_ = 1;
  int row_ = 0;
};

}  // namespace

void MakeReport(const ReportInput& input, foundation::SessionTable& session,
                foundation::Yielder& yielder, PageReceiver& receiver) {
  ReportMaker(input, session, yielder, receiver).Run();
}

}  // namespace report
