// frmDurvela, the timetable: Durvela for every day of a range of dates at a place.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "day/kept_place.h"
#include "report/make_report.h"
#include "screens/contact.h"
#include "screens/frmDurvela_layout.h"
#include "screens/scaled_form.h"
#include "screens/services.h"

namespace screens {

class frmCity;

class frmDurvela : public ScaledForm {
 public:
  // The screens that the form opens. The picker is not requested until a place is edited.
  struct Navigation {
    std::function<frmCity&()> picker;
    std::function<void(const report::ReportInput&, forms::Control& status)> report;
  };

  // Closing returns to the dashboard, which must outlive the form.
  frmDurvela(Services services, forms::Form& dashboard, Navigation navigation);

  // The table of controls, bottom first.
  CONTROL(Shape, Head, timetable_layout::Head());
  CONTROL(PictureBox, picSlide, timetable_layout::Slide());
  CONTROL(PictureBox, Picture1, timetable_layout::HeadPicture());
  CONTROL(Label, lblTitle, timetable_layout::Title());
  CONTROL(CommandButton, cmdMinimize, timetable_layout::HeadButton(728, "&Minimise", 7));
  CONTROL(CommandButton, cmdClose, timetable_layout::HeadButton(836, "&Close", 8));

  CONTROL(Shape, RangeCard, timetable_layout::Card(88, 144));
  CONTROL(Label, StartCaption, timetable_layout::Caption(108, "Starting Date"));
  CONTROL(DatePicker, DT1, timetable_layout::Picker(108, "Starting Date", 0));
  CONTROL(Label, StartRemark, timetable_layout::Remark(108, "Not a date"));
  CONTROL(Label, EndCaption, timetable_layout::Caption(148, "Ending Date"));
  CONTROL(DatePicker, DT2, timetable_layout::Picker(148, "Ending Date", 1));
  CONTROL(Label, EndRemark, timetable_layout::Remark(148, "Not a date"));
  CONTROL(Label, TimeCaption, timetable_layout::Caption(188, "Time"));
  CONTROL(TimePicker, dtTime, timetable_layout::Picker(188, "Time", 2));
  CONTROL(Label, TimeRemark, timetable_layout::Remark(188, "Not a time"));

  CONTROL(Shape, PlaceCard, timetable_layout::Card(248, 276));
  CONTROL(Label, PlaceTitle, timetable_layout::CardTitle(260, "Place"));
  CONTROL(Label, CountryCaption, timetable_layout::Caption(296, "Country"));
  CONTROL(Label, lblCountry, timetable_layout::Value(296));
  CONTROL(Label, CityCaption, timetable_layout::Caption(324, "City"));
  CONTROL(Label, lblCity, timetable_layout::LongValue(324));
  CONTROL(Label, LattitudeCaption, timetable_layout::Caption(352, "Lattitude"));
  CONTROL(Label, lblLat, timetable_layout::Value(352));
  CONTROL(Label, LongitudeCaption, timetable_layout::Caption(380, "Longitude"));
  CONTROL(Label, lblLong, timetable_layout::Value(380));
  CONTROL(Label, ZoneCaption, timetable_layout::Caption(408, "Zone"));
  CONTROL(Label, lblZone, timetable_layout::Value(408));
  CONTROL(Label, ZoneTimeCaption, timetable_layout::Caption(436, "Zone time"));
  CONTROL(Label, lblZoneTime, timetable_layout::Value(436));
  CONTROL(Label, ClockCaption, timetable_layout::Caption(408, "Clock"));
  CONTROL(Label, lblClock, timetable_layout::Clock());
  CONTROL(Label, ClockNote, timetable_layout::ClockNote());
  CONTROL(CommandButton, cmdEditPlace, timetable_layout::Button(44, 472, 136, "&Edit Place", 3));
  CONTROL(CommandButton, cmdSave, timetable_layout::Button(188, 472, 152, "&Save as Default", 4));

  CONTROL(CommandButton, cmdShow, timetable_layout::Button(24, 540, 152, "< Quick View", 5));
  CONTROL(CommandButton, cmdPreview,
          timetable_layout::Button(184, 540, 176, "&Generate Report >", 6, forms::Look::Primary));
  CONTROL(Label, lblStatus, timetable_layout::Status());
  CONTROL(Label, Label9, timetable_layout::Details(kWebsite));

  CONTROL(Label, lblOldList, timetable_layout::OldList());
  CONTROL(PictureBox, frRes, timetable_layout::Frame());
  CONTROL(PictureBox, picRes, timetable_layout::Page(frRes));
  CONTROL(VScrollBar, VScroll1, timetable_layout::PageScroll(frRes));

  CONTROL(Timer, Timer1, {});

  void Form_Load() override;
  void Form_Resize() override;
  void Form_KeyDown(forms::KeyPress& press) override;
  void Form_Activate() override;

  void cmdShow_Click();  // Quick View
  void cmdPreview_Click();
  void cmdSave_Click();
  void cmdEditPlace_Click();
  void cmdClose_Click();
  void cmdMinimize_Click();
  void SaveTempVals();  // toggles between maximised and normal
  void VScroll1_Change();
  void lblTitle_MouseDown(forms::Point at);
  void lblTitle_MouseMove(forms::Point at);
  void lblTitle_MouseUp();
  void Timer1_Timer();

 private:
  // What a list is made from.
  struct Inputs {
    foundation::DateTime from = 0, to = 0, time = 0;
    std::array<std::string, foundation::kPlaceSettings.size()> place;
    std::optional<std::string> zone = {};  // of the place's own clock
    friend bool operator==(const Inputs&, const Inputs&) = default;
  };

  void FillFromDefaults();
  void DrawList();
  void SetListWidth(float width);
  void FitPage();
  Inputs ReadInputs();
  void InputsChanged();
  void MarkOldList();
  void ReadClock();
  foundation::DateTime PlaceNow() const;
  void ShowClock();
  void StartSlide();

  Services services_;
  forms::Form& dashboard_;
  Navigation navigation_;
  bool ownClock_ = true;  // the user's choice; otherwise the country's
  day::KeptPlace place_;  // of the labels
  Inputs shown_;          // by the current list
  float listWidth_ = timetable_layout::kPageWidth * layout::kTwipsPerPixel;
  float listEnd_ = 0;     // bottom of the last row, in twips
  bool picking_ = false;  // the picker is opening or open
  bool moving_ = false;
  float pressedX_ = 0, pressedY_ = 0;
  float slideTo_ = 0;
};

}  // namespace screens
