#include "screens/frmAbout.h"

namespace screens {
namespace {

constexpr float kStep = 5;  // twips

}  // namespace

frmAbout::frmAbout(Services services)
    : ScaledForm("frmAbout", std::string("About ") + foundation::kProgramName, about_layout::kWidth,
                 about_layout::kHeight),
      services_(services) {
  backColour = palette::kPaper;
  Timer1.onTimer = [this] { Timer1_Timer(); };
  picS.onMouseMove = [this](forms::Point) { picS_MouseMove(); };
  for (forms::Control* around : {&Picture1, &Picture2}) {
    around->onMouseMove = [this](forms::Point) { Form_MouseMove(); };
  }
  Label15.onClick = [this] { OpenWebsite(services_.browser); };
  cmdSysInfo.onClick = [this] { cmdSysInfo_Click(); };
  cmdOK.onClick = [this] { cmdOK_Click(); };
}

void frmAbout::Form_Load() {
  ScaledForm::Form_Load();
  activeControl = &cmdOK;
  Timer1.enabled = true;
}

void frmAbout::Form_KeyDown(forms::KeyPress& press) {
  press.handled = press.key == forms::Key::Escape;
  if (press.handled) cmdOK_Click();
}

void frmAbout::Form_MouseMove() {
  Timer1.enabled = true;
}

// Pauses the credits so that they can be read.
void frmAbout::picS_MouseMove() {
  Timer1.enabled = false;
}

void frmAbout::Timer1_Timer() {
  picS.place.top -= kStep;
  if (picS.place.top <= -picS.place.height) picS.place.top = Picture1.place.height;
}

void frmAbout::cmdOK_Click() {
  services_.host.Unload(*this);
}

// There is no system information tool to start.
void frmAbout::cmdSysInfo_Click() {
  services_.boxes.Show("System Information Is Unavailable At This Time",
                       foundation::MessageIcon::None);
}

}  // namespace screens
