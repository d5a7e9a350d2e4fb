// frmAbout: the program's version and scrolling credits.
#pragma once

#include "screens/frmAbout_layout.h"
#include "screens/scaled_form.h"
#include "screens/services.h"

namespace screens {

class frmAbout : public ScaledForm {
 public:
  explicit frmAbout(Services services);

  // The table of controls, bottom first.
  CONTROL(Shape, Head, about_layout::Head());
  CONTROL(PictureBox, Picture2, about_layout::HeadPicture());
  CONTROL(Label, lblTitle, about_layout::Title());
  CONTROL(Label, lblVersion, about_layout::Version());
  CONTROL(PictureBox, Picture1, about_layout::CreditsWindow());
  CONTROL(PictureBox, picS, about_layout::Credits(Picture1));
  CONTROL(Label, Label15, about_layout::Website());
  CONTROL(CommandButton, cmdSysInfo, about_layout::SysInfo());
  CONTROL(CommandButton, cmdOK, about_layout::Ok());
  CONTROL(Timer, Timer1, {.interval = 50});

  void Form_Load() override;
  void Form_KeyDown(forms::KeyPress& press) override;
  void Form_MouseMove() override;

  void Timer1_Timer();  // scrolls the credits one step
  void picS_MouseMove();
  void cmdOK_Click();
  void cmdSysInfo_Click();

 private:
  Services services_;
};

}  // namespace screens
