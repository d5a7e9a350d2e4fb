// frmMain, the dashboard: today at the default place, and the way to every other screen.
#pragma once

#include <functional>

#include "forms/clsVSZ.h"
#include "forms/form.h"
#include "foundation/bounded_array.h"
#include "screens/contact.h"
#include "screens/day_scene.h"
#include "screens/frmMain_layout.h"
#include "screens/services.h"

namespace screens {

class frmMain : public forms::Form {
 public:
  static constexpr int kMenuItems = 8;

  explicit frmMain(Services services);

  // The table of controls, lowest first.
  CONTROL(Image, Image1, layout::Background());
  CONTROL(Shape, Card, layout::Card());
  CONTROL(Shape, DurvelaField, layout::DurvelaField());
  CONTROL(Line, CardRule, layout::CardRule());

  CONTROL(Label, TodayCaption, layout::OnSky(213, 20, 9, "TODAY:"));
  CONTROL(Label, lblDate, layout::OnSky(236, 30, 14.25F, "", true));
  CONTROL(Label, lblTime, layout::OnSky(258, 76, 40.5F, ""));

  CONTROL(Label, lblCity, layout::CardHead(38));
  CONTROL(Label, CountryCaption, layout::CardCaption(72, "Country"));
  CONTROL(Label, lblCountry, layout::CardValue(72));
  CONTROL(Label, LattitudeCaption, layout::CardCaption(96, "Lattitude"));
  CONTROL(Label, lblLat, layout::CardValue(96));
  CONTROL(Label, LongitudeCaption, layout::CardCaption(120, "Longitude"));
  CONTROL(Label, lblLong, layout::CardValue(120));
  CONTROL(Label, lblZone, layout::CardCaption(144, ""));
  CONTROL(Label, lblZoneTime, layout::CardValue(144));

  CONTROL(Label, SunriseCaption, layout::CardCaption(191, "Sunrise:"));
  CONTROL(Label, lblSR, layout::CardFigure(188));
  CONTROL(Label, SunsetCaption, layout::CardCaption(221, "Sunset:"));
  CONTROL(Label, lblSS, layout::CardFigure(218));
  CONTROL(Label, DurvelaCaption, layout::FieldCaption("Durvela:"));
  CONTROL(Label, lblDurvela, layout::FieldFigure());

  CONTROL_ARRAY(PictureBox, PIC, layout::MenuTiles());
  CONTROL_ARRAY(Label, LBL, layout::MenuCaptions());

  CONTROL(Label, Label1, layout::ContactLine(0, kWebsite));
  CONTROL(Label, Label12, layout::ContactLine(1, kEmail));
  CONTROL(Label, Label13, layout::ContactLine(2, kTelephone));
  CONTROL(Label, VersionCaption, layout::VersionLine());

  CONTROL(Timer, Timer1, {.interval = 1000});

  // Gives a menu item its screen; until then the item is disabled.
  void SetMenuItem(int index, std::function<void()> open);

  void Form_Load() override;
  void Form_Resize() override;
  void Form_QueryUnload(bool& cancel) override;
  void Form_MouseMove() override;
  void Form_MouseLeave() override;

  void Timer1_Timer();
  void PIC_Click(int index);
  void LBL_Click(int index);
  void LBL_MouseMove(int index);
  void Image1_MouseMove();

 private:
  void ShowSky();

  Services services_;
  forms::clsVSZ sizes_;
  foundation::BoundedArray<std::function<void()>, 0, kMenuItems - 1> open_;
  DayScene scene_;
};

}  // namespace screens
