#include "screens/frmDurvela.h"

#include <algorithm>
#include <string>
#include <utility>

#include "forms/moment_picker.h"
#include "foundation/error.h"
#include "screens/frmCity.h"
#include "screens/place_labels.h"

namespace screens {
namespace {

constexpr float kTwips = layout::kTwipsPerPixel;
constexpr double kNoon = 0.5;
constexpr int kSlideInterval = 20;  // milliseconds
constexpr float kSlideStep = 10 * kTwips;

}  // namespace

frmDurvela::frmDurvela(Services services, forms::Form& dashboard, Navigation navigation)
    : ScaledForm("frmDurvela", "Durvela", timetable_layout::kWidth, timetable_layout::kHeight),
      services_(services),
      dashboard_(dashboard),
      navigation_(std::move(navigation)) {
  backColour = palette::kPaper;

  cmdShow.onClick = [this] { cmdShow_Click(); };
  cmdPreview.onClick = [this] { cmdPreview_Click(); };
  cmdSave.onClick = [this] { cmdSave_Click(); };
  cmdEditPlace.onClick = [this] { cmdEditPlace_Click(); };
  cmdClose.onClick = [this] { cmdClose_Click(); };
  cmdMinimize.onClick = [this] { cmdMinimize_Click(); };
  for (forms::Control* handle : {&lblTitle, &Picture1}) {
    handle->onMouseDown = [this](forms::Point at) { lblTitle_MouseDown(at); };
    handle->onMouseMove = [this](forms::Point at) { lblTitle_MouseMove(at); };
    handle->onMouseUp = [this](forms::Point) { lblTitle_MouseUp(); };
  }
  for (const auto& [picker, remark] :
       {std::pair(&DT1, &StartRemark), {&DT2, &EndRemark}, {&dtTime, &TimeRemark}}) {
    picker->onChange = [this, picker, remark] {
      remark->visible = !picker->refusal.empty();
      InputsChanged();
    };
  }
  Label9.onClick = [this] { OpenWebsite(services_.browser); };
  VScroll1.onChange = [this] { VScroll1_Change(); };
  picRes.onMouseWheel = [this](int steps) {
    SetScroll(VScroll1, VScroll1.scroll.value - steps * VScroll1.scroll.smallChange);
  };
  Timer1.onTimer = [this] { Timer1_Timer(); };
}

// Resets the form, whatever state it was closed in.
void frmDurvela::Form_Load() {
  ScaledForm::Form_Load();
  activeControl = &DT1;
  moving_ = false;

  FillFromDefaults();
  foundation::InitSessionRecord(services_.session, PlaceNow());
  FitPage();
  cmdShow_Click();
  StartSlide();
}

void frmDurvela::FillFromDefaults() {
  ShowDefaultPlace(services_.settings, PlaceLabelsOf(*this));
  ReadClock();
  const foundation::DateTimeFields today = foundation::FieldsOf(PlaceNow());
  forms::SetMoment(DT1, foundation::DateFromParts(today.year, today.month, today.day));
  forms::SetMoment(DT2, foundation::DateFromParts(today.year, today.month + 1, today.day));
  forms::SetMoment(dtTime, kNoon);
}

void frmDurvela::Form_Resize() {
  const float slid = slideTo_ > 0 ? picSlide.place.left / slideTo_ : 1;
  ScaledForm::Form_Resize();
  slideTo_ = picSlide.place.left;
  picSlide.place.left = slid * slideTo_;
  FitPage();
}

void frmDurvela::Form_KeyDown(forms::KeyPress& press) {
  press.handled = press.key == forms::Key::Escape;
  if (press.handled) cmdClose_Click();
}

// The clock may have been chosen anew in another window.
void frmDurvela::Form_Activate() {
  InputsChanged();
}

void frmDurvela::cmdPreview_Click() {
  ReadClock();
  navigation_.report({.DT1 = DT1.moment,
                      .DT2 = DT2.moment,
                      .dtTime = dtTime.moment,
                      .latitude = lblLat.caption,
                      .longitude = lblLong.caption,
                      .zoneMeridian = lblZone.caption,
                      .zoneTime = lblZoneTime.caption,
                      .city = lblCity.caption,
                      .country = lblCountry.caption,
                      .ownClock = ownClock_ ? std::optional(place_) : std::nullopt},
                     lblStatus);
}

void frmDurvela::cmdSave_Click() {
  try {
    SaveDefaultPlace(services_.settings, PlaceLabelsOf(*this));
  } catch (const foundation::Error& error) {
    services_.boxes.Show(std::string("The place was not saved: ") + error.what(),
                         foundation::MessageIcon::Critical);
    return;
  }
  services_.boxes.Show("Place saved as default. It will load automatically next time",
                       foundation::MessageIcon::Information);
}

// Ignores a second click while the places are still being read.
void frmDurvela::cmdEditPlace_Click() {
  if (std::exchange(picking_, true)) return;
  frmCity& picker = navigation_.picker();
  picker.Load(lblCountry.caption, lblCity.caption, *this);
  // The user may have closed the form while the places were being read.
  if (services_.host.IsShown(*this)) services_.host.ShowModal(picker, *this);
  picking_ = false;
  InputsChanged();
}

void frmDurvela::cmdClose_Click() {
  services_.host.Show(dashboard_);
  services_.host.Unload(*this);
}

void frmDurvela::cmdMinimize_Click() {
  windowState = forms::WindowState::Minimised;
}

void frmDurvela::SaveTempVals() {
  windowState = windowState == forms::WindowState::Maximised ? forms::WindowState::Normal
                                                             : forms::WindowState::Maximised;
}

void frmDurvela::lblTitle_MouseDown(forms::Point at) {
  moving_ = true;
  pressedX_ = static_cast<float>(at.x);
  pressedY_ = static_cast<float>(at.y);
}

// Maximised windows do not move.
void frmDurvela::lblTitle_MouseMove(forms::Point at) {
  if (!moving_ || windowState != forms::WindowState::Normal) return;
  left = left - pressedX_ + static_cast<float>(at.x);
  top = top - pressedY_ + static_cast<float>(at.y);
}

void frmDurvela::lblTitle_MouseUp() {
  moving_ = false;
}

// A small sun slides along the head once, to its place.
void frmDurvela::StartSlide() {
  slideTo_ = picSlide.place.left;
  picSlide.place.left = frRes.place.left;
  Timer1.interval = kSlideInterval;
}

void frmDurvela::Timer1_Timer() {
  picSlide.place.left = std::min(picSlide.place.left + kSlideStep, slideTo_);
  if (picSlide.place.left == slideTo_) Timer1.interval = 0;
}

}  // namespace screens
