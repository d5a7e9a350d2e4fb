#include "screens/frmMain.h"

#include <utility>

#include "foundation/resume.h"
#include "screens/dashboard_tick.h"
#include "screens/day_sky.h"

namespace screens {
namespace {

constexpr float kTwips = layout::kTwipsPerPixel;

}  // namespace

frmMain::frmMain(Services services)
    : ScaledForm("frmMain", "Durvela 2", dashboard_layout::kWidth, dashboard_layout::kHeight),
      services_(services) {
  backColour = palette::kEarth;

  Timer1.onTimer = [this] { Timer1_Timer(); };
  Image1.onMouseMove = [this](forms::Point) { Image1_MouseMove(); };
  for (int i = PIC.LBound(); i <= PIC.UBound(); ++i) {
    PIC[i].onClick = [this, i] { PIC_Click(i); };
    PIC[i].onMouseMove = [this, i](forms::Point) { LBL_MouseMove(i); };
    LBL[i].onClick = [this, i] { LBL_Click(i); };
    LBL[i].onMouseMove = [this, i](forms::Point) { LBL_MouseMove(i); };
    for (forms::Control* part : {&PIC[i], &LBL[i]}) {
      part->onMouseDown = [this, i](forms::Point) { PIC[i].pressed = true; };
      part->onMouseUp = [this, i](forms::Point) { PIC[i].pressed = false; };
    }
  }
  for (forms::Control* line : {&Label1, &Label12, &Label13}) {
    line->onClick = [this] { OpenWebsite(services_.browser); };
  }
}

void frmMain::SetMenuItem(int index, std::function<void()> open) {
  PIC[index].enabled = LBL[index].enabled = static_cast<bool>(open);
  open_[index] = std::move(open);
}

void frmMain::SetPreferences(std::function<void()> open) {
  cmdPreferences.onClick = std::move(open);
}

// Ticks at once, so that the dashboard never appears without figures.
void frmMain::Form_Load() {
  sizes_.SaveSizes(*this);
  Timer1_Timer();
}

void frmMain::Form_Resize() {
  ScaledForm::Form_Resize();
  ShowSky();
}

void frmMain::Form_QueryUnload(bool& cancel) {
  cancel = true;
  const auto answer =
      services_.boxes.Show("Are you sure you want to exit?", foundation::MessageIcon::Exclamation,
                           foundation::MessageButtons::YesNo);
  if (answer == foundation::MessageAnswer::Yes) services_.host.EndProgram();
}

// Left, Right, Home and End move along the menu.
void frmMain::Form_KeyDown(forms::KeyPress& press) {
  if (activeControl == nullptr) return;
  press.handled = true;
  switch (press.key) {
    case forms::Key::Left:
      return FocusItem(activeControl->index - 1, -1);
    case forms::Key::Right:
      return FocusItem(activeControl->index + 1, 1);
    case forms::Key::Home:
      return FocusItem(PIC.LBound(), 1);
    case forms::Key::End:
      return FocusItem(PIC.UBound(), -1);
    default:
      press.handled = false;
  }
}

// Focuses the first enabled item in the direction of the step, if any.
void frmMain::FocusItem(int first, int step) {
  for (int i = first; i >= PIC.LBound() && i <= PIC.UBound(); i += step) {
    if (!PIC[i].enabled) continue;
    activeControl = &PIC[i];
    return;
  }
}

void frmMain::Form_MouseMove() {
  Image1_MouseMove();
}
void frmMain::Form_MouseLeave() {
  Image1_MouseMove();
}

void frmMain::Timer1_Timer() {
  foundation::Resume([&] { choice_ = atlas::ReadClockChoice(services_.settings); });
  foundation::Resume([&] {
    DayScene scene = choice_ == atlas::ClockChoice::Own ? TickByOwnClock() : TickByCountrysClock();
    if (Image1.picture && scene == scene_) return;
    scene_ = std::move(scene);
    ShowSky();
  });
}

DayScene frmMain::TickByCountrysClock() {
  const foundation::DateTime now = services_.clock.Now();
  Tick(now, services_.settings, services_.session, *this);
  return SceneOf(now, services_.session);
}

DayScene frmMain::TickByOwnClock() {
  const clocks::Instant now = services_.clock.InstantNow();
  screens::TickByOwnClock(now, services_.clock.OffsetAt(now), services_.settings, services_.session,
                          place_, *this);
  return SceneOf(now, place_, services_.session);
}

void frmMain::PIC_Click(int index) {
  if (const auto& open = open_[index]) open();
}

void frmMain::LBL_Click(int index) {
  PIC_Click(index);
}

void frmMain::LBL_MouseMove(int index) {
  if (LBL[index].font.underline) return;
  Image1_MouseMove();
  LBL[index].font.underline = true;
  PIC[index].hot = true;
}

void frmMain::Image1_MouseMove() {
  for (int i = LBL.LBound(); i <= LBL.UBound(); ++i) {
    LBL[i].font.underline = false;
    PIC[i].hot = false;
  }
}

void frmMain::ShowSky() {
  Image1.picture = SkyPicture(scene_, Image1.place.width / kTwips, Image1.place.height / kTwips);
}

}  // namespace screens
