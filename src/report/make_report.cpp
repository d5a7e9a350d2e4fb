#include "report/make_report.h"

#include <cstdint>
#include <memory>

#include "foundation/locale_names.h"
#include "foundation/numbers.h"
#include "report/modPrint.h"
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
    TakePlace();
    services_.host.Unload(preview_);
    preview_.RESET();
    const DateTime last = AtTime(input_.DT2);
    DateTime date = AtTime(input_.DT1);
    int month = foundation::FieldsOf(date).month;
    BeginPage();
    preview_.PIC.place.width = page_->scaleWidth;
    preview_.PIC.place.height = page_->scaleHeight;
    for (; date <= last; date += 1) {
      const DateTimeFields at = foundation::FieldsOf(date);
      if (at.month != month) {
        EndPage(date);
        BeginPage();
        month = at.month;
      }
      AddRow(date);
      input_.lblStatus.caption = "Loading.. " + NumberText(at.day) + " " +
                                 foundation::MonthName(at.month) + " " + NumberText(at.year);
      services_.yielder.Yield();
    }
    input_.lblStatus.caption.clear();
    EndPage(date);
    page_.reset();
    Present();
  }

 private:
  // Others write their place into the record while the report yields.
  void TakePlace() {
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
    TakePlace();
    FillHead(*page_, date, services_.session, services_.host.TargetOf(preview_.PIC));
    FillRow(*page_, row_++, date, services_.session);
  }

  // `date` is the first one behind the page, and names it: its month is that of the last row, its
  // year that of this date.
  void EndPage(DateTime date) {
    forms::DrawingTarget& target = services_.host.TargetOf(preview_.PIC);
    target.Cls();
    DrawFormOnTarget(*page_, target, 0, 0);
    preview_.CreateTMPfile(number_, preview_.PIC);
    preview_.AddPage(kCachePage, Title(date));
    number_ = foundation::RoundToInt16(number_ + 1);
  }

  std::string Title(DateTime behind) const {
    const int month = foundation::FieldsOf(behind - 1).month;
    return "Durvela " + foundation::MonthName(month) + " " +
           NumberText(foundation::FieldsOf(behind).year) + " ..P" + NumberText(number_);
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
