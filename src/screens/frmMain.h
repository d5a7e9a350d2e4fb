// frmMain, the dashboard: today at the default place, and the menu to all other screens.
#pragma once

#include <functional>

#include "atlas/place_clock.h"
#include "day/kept_place.h"
#include "foundation/bounded_array.h"
#include "screens/contact.h"
#include "screens/day_scene.h"
#include "screens/frmMain_layout.h"
#include "screens/scaled_form.h"
#include "screens/services.h"

namespace screens {

class frmMain : public ScaledForm {
 public:
  static constexpr int kMenuItems = 8;

  explicit frmMain(Services services);

  // The table of controls, bottom first.
  CONTROL(Image, Image1, dashboard_layout::Background());
  CONTROL(Shape, Card, dashboard_layout::Card());
  CONTROL(Shape, DurvelaField, dashboard_layout::DurvelaField());
  CONTROL(Line, CardRule, dashboard_layout::CardRule());

  CONTROL(Label, TodayCaption, dashboard_layout::OnSky(213, 20, 9, "TODAY:"));
  CONTROL(Label, lblDate, dashboard_layout::OnSky(236, 30, 14.25F, "", true));
  CONTROL(Label, lblTime, dashboard_layout::OnSky(258, 76, 40.5F, ""));
  CONTROL(Label, ThereCaption, dashboard_layout::BesideTime("there"));

  CONTROL(Label, lblCity, dashboard_layout::CardHead(38));
  CONTROL(Label, CountryCaption, dashboard_layout::CardCaption(72, "Country"));
  CONTROL(Label, lblCountry, dashboard_layout::CardValue(72));
  CONTROL(Label, LattitudeCaption, dashboard_layout::CardCaption(96, "Lattitude"));
  CONTROL(Label, lblLat, dashboard_layout::CardValue(96));
  CONTROL(Label, LongitudeCaption, dashboard_layout::CardCaption(120, "Longitude"));
  CONTROL(Label, lblLong, dashboard_layout::CardValue(120));
  CONTROL(Label, lblZone, dashboard_layout::CardCaption(144, ""));
  CONTROL(Label, lblZoneTime, dashboard_layout::CardValue(144));
  CONTROL(Label, ClockCaption, dashboard_layout::CardCaption(144, "Clock"));
  CONTROL(Label, lblClock, dashboard_layout::CardValue(144));

  CONTROL(Label, SunriseCaption, dashboard_layout::CardCaption(191, "Sunrise:"));
  CONTROL(Label, lblSR, dashboard_layout::CardFigure(188));
  CONTROL(Label, SunsetCaption, dashboard_layout::CardCaption(221, "Sunset:"));
  CONTROL(Label, lblSS, dashboard_layout::CardFigure(218));
  CONTROL(Label, DurvelaCaption, dashboard_layout::FieldCaption("Durvela:"));
  CONTROL(Label, lblDurvela, dashboard_layout::FieldFigure());

  CONTROL_ARRAY(PictureBox, PIC, dashboard_layout::MenuTiles());
  CONTROL_ARRAY(Label, LBL, dashboard_layout::MenuCaptions());

  CONTROL(Label, Label1, dashboard_layout::ContactLine(0, kWebsite));
  CONTROL(Label, Label12, dashboard_layout::ContactLine(1, kEmail));
  CONTROL(Label, Label13, dashboard_layout::ContactLine(2, kTelephone));
  CONTROL(Label, VersionCaption, dashboard_layout::VersionLine());

  CONTROL(CommandButton, cmdPreferences, dashboard_layout::PreferencesButton());

  CONTROL(Timer, Timer1, {.interval = 1000});

  // Sets what a menu item opens; until then it is disabled.
  void SetMenuItem(int index, std::function<void()> open);

  void SetPreferences(std::function<void()> open);

  void Form_Load() override;
  void Form_Resize() override;
  void Form_QueryUnload(bool& cancel) override;
  void Form_KeyDown(forms::KeyPress& press) override;
  void Form_MouseMove() override;
  void Form_MouseLeave() override;

  void Timer1_Timer();
  void PIC_Click(int index);
  void LBL_Click(int index);
  void LBL_MouseMove(int index);
  void Image1_MouseMove();

 private:
  DayScene TickByCountrysClock();
  DayScene TickByOwnClock();
  void FocusItem(int first, int step);
  void ShowSky();

  Services services_;
  foundation::BoundedArray<std::function<void()>, 0, kMenuItems - 1> open_;
  atlas::ClockChoice choice_ = atlas::ClockChoice::Own;
  day::KeptPlace place_;
  DayScene scene_;
};

}  // namespace screens
