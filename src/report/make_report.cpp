#include "report/make_report.h"

#include <cstdint>
#include <memory>

#include "foundation/date_text.h"
#include "foundation/locale_names.h"
#include "foundation/numbers.h"
#include "report/form_drawing.h"
#include "report/page_row.h"
#include "report/pk_Durvela.h"

namespace report {
namespace {

using foundation::DateTime;
using foundation::DateTimeFields;
using foundation::NumberText;

class ReportMaker {
 public:
  ReportMaker(const ReportInput& input, frmSPkun& preview, const Services& services)
      : input_(input), preview_(preview), services_(services) {}

  void Run() {
    WritePlace();
    services_.host.Unload(preview_);
    preview_.RESET();
    preview_.city = input_.city;
    DateTime day = input_.DT1;
    int month = foundation::FieldsOf(day).month;
    BeginPage();
    preview_.PIC.place.width = page_->scaleWidth;
    preview_.PIC.place.height = page_->scaleHeight;
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
      services_.yielder.Yield();
    }
    input_.lblStatus.caption.clear();
    EndPage(month, day);
    page_.reset();
    Present();
  }

 private:
  // Called for each row: while the report yields, the dashboard writes its place to the record.
  void WritePlace() {
    foundation::SessionRecord& record = services_.session.Current();
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
    FillHead(*page_, date, services_.session, services_.host.TargetOf(preview_.PIC));
    FillRow(*page_, row_++, date, services_.session);
  }

  void ShowStatus(DateTime day) {
    const DateTimeFields at = foundation::FieldsOf(day);
    input_.lblStatus.caption =
        "Loading.. " + foundation::DayMonthYear(at.day, at.month, at.year, ' ');
  }

  // `next` is the first day after the page; the title uses its year.
  void EndPage(int month, DateTime next) {
    forms::DrawingTarget& target = services_.host.TargetOf(preview_.PIC);
    target.Cls();
    DrawFormOnTarget(*page_, target, 0, 0);
    preview_.CreateTMPfile(number_, preview_.PIC);
    preview_.AddPage(kCachePage, Title(month, next));
    number_ = foundation::RoundToInt16(number_ + 1);
  }

  std::string Title(int month, DateTime next) const {
    return "Durvela " + foundation::MonthName(month) + " " +
           NumberText(foundation::FieldsOf(next).year) + " ..P" + NumberText(number_);
  }

  void Present() {
    services_.host.Show(preview_);
    services_.yielder.Yield();
    preview_.cmdHide_Click();
    Select(preview_.cmbPage, 0);
  }

  const ReportInput& input_;
  frmSPkun& preview_;
  const Services& services_;
  std::unique_ptr<pk_Durvela> page_;
  std::int16_t number_ = 1;
  int row_ = 0;
};

}  // namespace

void MakeReport(const ReportInput& input, frmSPkun& preview, const Services& services) {
  ReportMaker(input, preview, services).Run();
}

}  // namespace report
