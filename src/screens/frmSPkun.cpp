#include "screens/frmSPkun.h"

#include "engine/record_chart.h"
#include "foundation/files.h"
#include "foundation/folders.h"
#include "foundation/numbers.h"
#include "foundation/resume.h"
#include "report/form_drawing.h"
#include "report/page_files.h"
#include "screens/page_bands.h"

namespace screens {
namespace {

using foundation::Resume;
using layout::kTwipsPerPixel;

const std::string& Nth(const std::vector<std::string>& list, int number) {
  if (number < 1 || number > static_cast<int>(list.size())) {
    throw foundation::Error(foundation::ErrorKind::Subscript);
  }
  return list[static_cast<std::size_t>(number) - 1];
}

}  // namespace

frmSPkun::frmSPkun(PreviewServices services)
    : Form("frmSPkun", "Durvela - Print Preview", preview_layout::kWidth * kTwipsPerPixel,
           preview_layout::kHeight * kTwipsPerPixel),
      services_(services) {
  minimumWidth =
      cmdPrint.place.left + cmdPrint.place.width + preview_layout::kInset * kTwipsPerPixel;
  minimumHeight = scaleHeight * 0.5F;
  backColour = palette::kDesk;

  cmbPage.onClick = [this] { cmbPage_Click(); };
  lstPage.onClick = [this] { lstPage_Click(); };
  lstPage.onHover = [this](int row) { lstPage_Hover(row); };
  cmdBack.onClick = [this] { cmdback_Click(); };
  cmdNext.onClick = [this] { cmdNext_Click(); };
  cmdPrintPage.onClick = [this] { cmdPrintPage_Click(); };
  cmdPrint.onClick = [this] { cmdPrint_Click(); };
  cmdHide.onClick = [this] { cmdHide_Click(); };
  cmdShow.onClick = [this] { cmdShow_Click(); };
  cmdGO.onClick = [this] { cmdGO_Click(); };
  VScroll1.onChange = [this] { VScroll1_Change(); };
  HScroll1.onChange = [this] { HScroll1_Change(); };
  PIC.onMouseDown = [this](forms::MousePoint at) { PIC_MouseDown(at); };
  PIC.onMouseMove = [this](forms::MousePoint at) { PIC_MouseMove(at); };
  PIC.onMouseUp = [this](forms::Point) { PIC_MouseUp(); };
  PIC.onMouseWheel = [this](int steps) {
    SetScroll(VScroll1, VScroll1.scroll.value - steps * VScroll1.scroll.smallChange);
  };
  Timer1.onTimer = [this] { Timer1_Timer(); };
  Timer2.onTimer = [this] { Timer2_Timer(); };
}

void frmSPkun::RESET() {
  colPageName_.clear();
  colPageTitle_.clear();
  city.clear();
  lstPage.items->Clear();
  cmbPage.items->Clear();
  PIC.picture = nullptr;
  PIC.spokenText.clear();
  words_.clear();
  unwritten_.clear();
  directPages_ = 0;
  KillAllTmpFile();
}

void frmSPkun::KillAllTmpFile() {
  report::DeletePages();
}

void frmSPkun::CreateTMPfile(std::int16_t PageNum, const forms::Control& pictureBox) {
  unwritten_.insert(PageNum);
  Resume([&] {
    forms::Picture blank = {.width = pictureBox.place.width, .height = pictureBox.place.height};
    const forms::Picture& shown = pictureBox.picture ? *pictureBox.picture : blank;
    words_[PageNum] = forms::LinesOf(shown);
    report::SavePage(PageNum, services_.rasteriser.Render(shown));
    unwritten_.erase(PageNum);
  });
}

void frmSPkun::AddPage(std::string_view Pname, std::string_view PTitle) {
  colPageName_.emplace_back(Pname);
  colPageTitle_.emplace_back(PTitle);
  for (forms::Control* list : {&cmbPage, &lstPage}) {
    const int number = list->items->ListCount() + 1;
    list->items->AddItem(foundation::NumberText(number) + ": " + std::string(PTitle));
  }
}

const std::string& frmSPkun::PageName(int number) const {
  return Nth(colPageName_, number);
}

const std::string& frmSPkun::PageTitle(int number) const {
  return Nth(colPageTitle_, number);
}

void frmSPkun::ShowPage(std::int16_t& PageNum, std::string_view Pname, std::string_view PTitle,
                        bool ToPrinter) {
  // Only for its errors: if the record has no chart, no page is shown either.
  const foundation::SessionRecord& record = services_.session.Current();
  engine::clsPP chart;
  engine::GenRecordHoro(chart, record, record.Day, record.Month, record.Year, record.Hour,
                        record.Minute, record.Second);
  if (!ToPrinter) services_.host.TargetOf(PIC).Cls();
  if (backgroundPath_.empty()) {
    backgroundPath_ = (foundation::BackgroundFolder() / "default.jpg").string();
  }
  PIC.spokenText.clear();
  if (Pname != kCachePage) {
    DrawDirectly(PageNum, ToPrinter ? services_.printer : services_.host.TargetOf(PIC));
    return;
  }
  const std::size_t mark = PTitle.find('P');
  const std::string_view number = mark == std::string_view::npos ? PTitle : PTitle.substr(mark + 1);
  PageNum = foundation::RoundToInt16(foundation::LeadingNumber(number));
  PIC.picture = nullptr;
  // Its file may still hold a page of an earlier report.
  if (unwritten_.contains(PageNum)) {
    throw foundation::FileError(foundation::ErrorKind::FileAccess, report::PageFile(PageNum),
                                "cannot be written");
  }
  PIC.picture = report::LoadPage(PageNum);
  PIC.spokenText = words_[PageNum];
  if (ToPrinter) {
    services_.printer.PaintPicture(PIC.picture, 0, 0, PIC.picture->width, PIC.picture->height);
  }
}

void frmSPkun::DrawDirectly(std::int16_t PageNum, forms::DrawingTarget& target) {
  const frmPrintLayout layout;
  DrawBands(layout, PageNum, services_.session, services_.settings, target);
  const forms::Place& place = layout.lblCurrentPageNum.place;
  target.SetCurrentX(place.left - place.width);
  target.SetCurrentY(place.top);
  target.Print(foundation::NumberText(PageNum));
}

void frmSPkun::setPage(forms::Form& page, double X, double Y) {
  PaintForm(page, X, Y);
}

void frmSPkun::setPage2(forms::Form& page, double X, double Y) {
  PaintForm(page, X, Y);
}

void frmSPkun::PaintForm(forms::Form& page, double X, double Y) {
  if (++directPages_ == 1) {
    PIC.place.width = page.scaleWidth;
    PIC.place.height = page.scaleHeight;
    autoRedraw = true;
    services_.host.ForgetTarget(PIC);  // it had another size
    services_.host.TargetOf(PIC).Cls();
  }
  if (X == 0 && Y == 0) {
    PIC.picture = report::ImageOf(page);
    services_.host.ForgetTarget(PIC);  // the next target starts with this picture
  } else {
    services_.host.TargetOf(PIC).PaintPicture(report::ImageOf(page), X, Y, page.scaleWidth,
                                              page.scaleHeight);
  }
  forms::DrawingTarget& target = services_.host.TargetOf(PIC);
  for (const forms::Control& box : page.Controls()) {
    if (box.kind != forms::Kind::PictureBox || box.tag == "no") continue;
    target.PaintPicture(report::ImageOf(box), X + box.place.left, Y + box.place.top,
                        box.place.width, box.place.height);
  }
}

void frmSPkun::cmbPage_Click() {
  const int index = cmbPage.items->ListIndex();
  std::int16_t number = foundation::RoundToInt16(index + 1);
  lstPage.items->SetListIndex(index);
  ShowPage(number, PageName(index + 1), PageTitle(index + 1), false);
  for (forms::Control* bar : {&VScroll1, &HScroll1}) SetScroll(*bar, 0);
  TellPrinted(0);
}

void frmSPkun::lstPage_Click() {
  Select(cmbPage, lstPage.items->ListIndex());
}

void frmSPkun::lstPage_Hover(int row) {
  const bool onEntry = row >= 0 && row < lstPage.items->ListCount();
  lstPage.toolTip = onEntry ? std::string(lstPage.items->List(row)) : "";
}

void frmSPkun::cmdback_Click() {
  const int index = cmbPage.items->ListIndex() - 1;
  if (index >= 0) Select(cmbPage, index);
}

void frmSPkun::cmdNext_Click() {
  const int index = cmbPage.items->ListIndex() + 1;
  if (index < cmbPage.items->ListCount()) Select(cmbPage, index);
}

// Numbers typed here count from 0, unlike those in the lists.
void frmSPkun::cmdGO_Click() {
  int number = foundation::RoundToInt16(foundation::LeadingNumber(txtPage.caption));
  const int pages = cmbPage.items->ListCount();
  if (number >= pages) {
    number = pages - 1;
    SetText(txtPage, foundation::NumberText(number));
  }
  if (number < 0) {
    number = 0;
    SetText(txtPage, "0");
  }
  Select(cmbPage, number);
}

}  // namespace screens
