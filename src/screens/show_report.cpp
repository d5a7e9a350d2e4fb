#include "screens/show_report.h"

#include <string>

namespace screens {
namespace {

// Draws pages on the preview's picture box and stores them as page files.
class PreviewFiller : public report::PageReceiver {
 public:
  PreviewFiller(const std::string& city, forms::Control& status, frmSPkun& preview,
                forms::FormHost& host)
      : city_(city), status_(status), preview_(preview), host_(host) {}

  void Begin(const report::pk_Durvela& page) override {
    host_.Unload(preview_);
    preview_.RESET();
    preview_.city = city_;
    preview_.PIC.place.width = page.scaleWidth;
    preview_.PIC.place.height = page.scaleHeight;
  }

  forms::DrawingTarget& Target() override { return host_.TargetOf(preview_.PIC); }

  void TakePage(std::int16_t number, const std::string& title) override {
    preview_.CreateTMPfile(number, preview_.PIC);
    preview_.AddPage(kCachePage, title);
  }

  void ShowProgress(const std::string& text) override { status_.caption = text; }

 private:
  const std::string& city_;
  forms::Control& status_;
  frmSPkun& preview_;
  forms::FormHost& host_;
};

}  // namespace

void ShowReport(const report::ReportInput& input, forms::Control& status, frmSPkun& preview,
                const PreviewServices& services) {
  PreviewFiller filler(input.city, status, preview, services.host);
  MakeReport(input, services.session, services.yielder, filler);
  services.host.Show(preview);
  services.yielder.Yield();
  preview.cmdHide_Click();
  Select(preview.cmbPage, 0);
}

}  // namespace screens
