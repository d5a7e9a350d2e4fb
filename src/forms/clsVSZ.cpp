#include "forms/clsVSZ.h"

#include "forms/units.h"
#include "foundation/resume.h"

namespace forms {
namespace {

using foundation::Resume;

}  // namespace

void clsVSZ::SaveSizes(Form& form) {
  sizes_.assign(form.Controls().size(), {});
  std::size_t i = 0;
  for (Control& control : form.Controls()) {
    ControlSize& size = sizes_[i++];
    if (control.kind == Kind::Line) {
      const LineEnds& ends = control.ends;
      size = {ends.x1, ends.y1, ends.x2 - ends.x1, ends.y2 - ends.y1, 0};
      continue;
    }
    Resume([&] {
      const Place& place = PlaceOf(control);
      size = {place.left, place.top, place.width, place.height, 0};
      size.FontSize = FontOf(control).size;
    });
  }
  formWidth_ = form.scaleWidth;
  formHeight_ = form.scaleHeight;
}

void clsVSZ::SaveFirstSizes(Form& form) {
  form.windowState = WindowState::Normal;
  if (formWidth_ != 0) {
    form.scaleWidth = formWidth_;
    form.scaleHeight = formHeight_;
    ResizeControls(form, foundation::kFalse16);
  }
  SaveSizes(form);
}

void clsVSZ::ResizeControls(Form& form, const foundation::Boolean16& keepSizes) {
  form.autoRedraw = true;
  form.paintedPicture = {0, 0, form.scaleWidth, form.scaleHeight};
  if (formWidth_ == 0 || form.windowState == WindowState::Minimised) return;
  const Ratios ratios = {form.scaleWidth / formWidth_, form.scaleHeight / formHeight_};
  std::size_t i = 0;
  for (Control& control : form.Controls()) {
    if (i == sizes_.size()) break;  // added after the sizes were saved
    const ControlSize& size = sizes_[i++];
    if (control.tag == "nr") continue;
    if (control.kind == Kind::Line) {
      ResizeLine(control, size, ratios);
    } else {
      ResizeControl(control, size, ratios, keepSizes != foundation::kFalse16);
    }
  }
}

void clsVSZ::ResizeLine(Control& control, const ControlSize& size, Ratios ratios) const {
  LineEnds& ends = control.ends;
  ends.x1 = ratios.x * size.Left;
  ends.y1 = ratios.y * size.Top;
  ends.x2 = ends.x1 + ratios.x * size.Width;
  ends.y2 = ends.y1 + ratios.y * size.Height;
}

void clsVSZ::ResizeControl(Control& control, const ControlSize& size, Ratios ratios,
                           bool keepSizes) const {
  Resume([&] {
    Place& place = PlaceOf(control);
    place.left = ratios.x * size.Left;
    place.top = ratios.y * size.Top;
    if (keepSizes) return;
    place.width = ratios.x * size.Width;
    if (control.kind != Kind::ComboBox) place.height = ratios.y * size.Height;
  });
  if (control.tag == "nf" || keepSizes) return;
  Resume([&] {
    Font& font = FontOf(control);
    font.size = ratios.y * size.FontSize;
    if (font.size < kSmallestFont) font.size = static_cast<float>(kSmallestFont);
  });
}

}  // namespace forms
