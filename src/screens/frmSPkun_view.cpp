// Layout, scrolling and the sliding side panel of the preview.

#include <algorithm>

#include "foundation/numbers.h"
#include "foundation/resume.h"
#include "screens/frmSPkun.h"

namespace screens {
namespace {

using foundation::Resume;
using layout::kTwipsPerPixel;

constexpr int kKeyStep = 1000;                        // twips per arrow key
constexpr float kSlideStep = 100;                     // twips
constexpr double kSmallStep = 0.1, kLargeStep = 0.5;  // of the full range

// Disables and hides a bar if there is nothing to scroll. Overflow beyond 16 bits.
void SetRange(forms::Control& bar, float distance, double largeStep) {
  const std::int16_t maximum = foundation::RoundToInt16(std::max(distance, 0.0F));
  bar.enabled = bar.visible = maximum > 0;
  bar.scroll.maximum = maximum;
  bar.scroll.smallChange = std::max(1, foundation::RoundToInt32(kSmallStep * maximum));
  bar.scroll.largeChange = std::max(1, foundation::RoundToInt32(largeStep * maximum));
  forms::SetScroll(bar, bar.scroll.value);
}

}  // namespace

void frmSPkun::VScroll1_Change() {
  PIC.place.top = static_cast<float>(-VScroll1.scroll.value);
}

void frmSPkun::HScroll1_Change() {
  PIC.place.left = static_cast<float>(-HScroll1.scroll.value);
}

void frmSPkun::Form_KeyDown(forms::KeyPress& press) {
  if (press.key == forms::Key::Escape) {
    services_.host.Unload(*this);
    press.handled = true;
    return;
  }
  const int step = press.key == forms::Key::Up     ? -kKeyStep
                   : press.key == forms::Key::Down ? kKeyStep
                                                   : 0;
  if (step == 0) return;
  SetScroll(VScroll1, VScroll1.scroll.value + step);
  press.handled = true;  // even if there is nothing to scroll
}

void frmSPkun::PIC_MouseDown(forms::MousePoint at) {
  if (at.shift) return;
  Resume([&] {
    dragX_ = foundation::RoundToInt32(at.x);
    dragY_ = foundation::RoundToInt32(at.y);
    dragging_ = PIC.grabCursor = true;
  });
}

// The page follows the mouse in each direction that can scroll.
void frmSPkun::PIC_MouseMove(forms::MousePoint at) {
  if (!dragging_ || at.shift) return;
  const auto offset = [](const forms::Control& bar, float current, double moved) {
    if (!bar.enabled) return current;
    const double wanted = -(current + moved);
    return static_cast<float>(
        -std::clamp(wanted, double(bar.scroll.minimum), double(bar.scroll.maximum)));
  };
  PIC.place.top = offset(VScroll1, PIC.place.top, at.y - dragY_);
  PIC.place.left = offset(HScroll1, PIC.place.left, at.x - dragX_);
}

void frmSPkun::PIC_MouseUp() {
  dragging_ = PIC.grabCursor = false;
  Resume([&] {
    if (VScroll1.enabled) SetScroll(VScroll1, foundation::RoundToInt32(-PIC.place.top));
    if (HScroll1.enabled) SetScroll(HScroll1, foundation::RoundToInt32(-PIC.place.left));
  });
}

// Stops sliding the other way: two opposed timers would never finish.
void frmSPkun::cmdHide_Click() {
  Timer1.enabled = true;
  Timer2.enabled = false;
  OpenPanel(false);
}

void frmSPkun::cmdShow_Click() {
  Timer2.enabled = true;
  Timer1.enabled = false;
  OpenPanel(true);
}

// Moves the focus off a control that disappears. The list stays visible until the panel is shut.
void frmSPkun::OpenPanel(bool open) {
  cmdHide.visible = lstPage.tabStop = open;
  if (open) lstPage.visible = true;
  cmdShow.visible = !open;
  forms::Control& gone = open ? cmdShow : cmdHide;
  if (activeControl == &gone || (activeControl == &lstPage && !open)) {
    activeControl = open ? &cmdHide : &cmdShow;
  }
}

void frmSPkun::Timer1_Timer() {
  ResizePanel(picLeft.place.width - kSlideStep);
  if (picLeft.place.width > cmdHide.place.width) return;
  Timer1.enabled = lstPage.visible = false;
  LayOut();
}

void frmSPkun::Timer2_Timer() {
  ResizePanel(picLeft.place.width + kSlideStep);
  if (picLeft.place.width < lstPage.place.width) return;
  Timer2.enabled = false;
  LayOut();
}

// Keeps the panel's controls at its right edge.
void frmSPkun::ResizePanel(float panelWidth) {
  picLeft.place.width = panelWidth;
  for (forms::Control* control : {&cmdHide, &cmdShow, &lstPage}) {
    control->place.left = picLeft.place.width - control->place.width;
  }
}

// Always starts with the panel open.
void frmSPkun::Form_Load() {
  scaleWidth = preview_layout::kWidth * kTwipsPerPixel;
  scaleHeight = preview_layout::kHeight * kTwipsPerPixel;
  windowState = forms::WindowState::Normal;
  Timer1.enabled = Timer2.enabled = false;
  OpenPanel(true);
  ResizePanel(preview_layout::kPanelWidth * kTwipsPerPixel);
  activeControl = &cmbPage;
  LayOut();
}

void frmSPkun::Form_Resize() {
  LayOut();
}

void frmSPkun::LayOut() {
  constexpr float kBar = preview_layout::kBar * kTwipsPerPixel;
  picTOOL.place.width = scaleWidth;
  const float above = picTOOL.place.height;
  const float below = std::max(0.0F, scaleHeight - above);
  lblProduct.place.left =
      scaleWidth - lblProduct.place.width - preview_layout::kInset * kTwipsPerPixel;
  lblProduct.visible = lblProduct.place.left > cmdPrint.place.left + cmdPrint.place.width;
  picLeft.place = {0, above, picLeft.place.width, below};
  lstPage.place.height = std::max(0.0F, below - lstPage.place.top);

  const float pageLeft = picLeft.place.width + preview_layout::kPanelGap;
  picPage.place = {pageLeft, above, std::max(0.0F, scaleWidth - pageLeft - kBar),
                   std::max(0.0F, below - kBar)};
  VScroll1.place = {scaleWidth - kBar, above, kBar, picPage.place.height};
  HScroll1.place = {picLeft.place.width, scaleHeight - kBar,
                    scaleWidth - picLeft.place.width - kBar, kBar};
  Resume([&] {
    SetRange(VScroll1, PIC.place.height - picPage.place.height, kLargeStep);
    SetRange(HScroll1, PIC.place.width - picPage.place.width, kSmallStep);
  });
}

}  // namespace screens
