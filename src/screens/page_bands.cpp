#include "screens/page_bands.h"

#include "foundation/numbers.h"
#include "foundation/time_text.h"
#include "foundation/version.h"
#include "report/display_styles.h"
#include "report/form_drawing.h"

namespace screens {
namespace {

using foundation::NumberText;

constexpr float kTagGap = 50;  // twips

std::string Born(const foundation::SessionRecord& record) {
  return "Date: " + NumberText(record.Day) + "/" + NumberText(record.Month) + "/" +
         NumberText(record.Year) + "  Time: " + foundation::PadDigits(record.Hour, 2) + ":" +
         foundation::PadDigits(record.Minute, 2) + ":" + foundation::PadDigits(record.Second, 2) +
         "  Place: " + record.CityName + " " + record.LatitudeText + " " + record.LongitudeText +
         " " + record.ZoneMeridianText;
}

}  // namespace

frmHeader::frmHeader(const foundation::SessionTable& session) : Form("frmHeader", "", 11250, 900) {
  lblName.caption = session.Current().PersonName;
  lblDOB.caption = Born(session.Current());
  report::ApplyDisplayStyles(*this, session.CurrentLanguage);
}

frmFooter::frmFooter(foundation::Settings& settings, std::int32_t language)
    : Form("frmFooter", "", 11250, 900) {
  const auto line = [&](std::string_view key) {
    return settings.GetSetting(foundation::kProgramName, foundation::kFooterSection, key, "");
  };
  lblCompany.caption = line("company");
  lblTag.caption = line("tag");
  lblAddress.caption = line("address");
  report::ApplyDisplayStyles(*this, language);
  lblCompany_Change();
}

void frmFooter::lblCompany_Change() {
  lblTag.place.left = lblCompany.place.left + lblCompany.place.width + kTagGap;
}

void DrawBands(const frmPrintLayout& layout, int PageNum, const foundation::SessionTable& session,
               foundation::Settings& settings, forms::DrawingTarget& target) {
  if (PageNum == 0) {
    frmHeader header(session);
    report::DrawFormOnTarget(header, target, layout.picHead.place.left, layout.picHead.place.top);
  }
  frmFooter footer(settings, session.CurrentLanguage);
  report::DrawFormOnTarget(footer, target, layout.picFoot.place.left, layout.picFoot.place.top);
}

}  // namespace screens
