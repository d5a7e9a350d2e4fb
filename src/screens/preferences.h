// Preferences: whose clock the program reads, and the time zone of the default place.
#pragma once

#include <functional>

#include "atlas/place_clock.h"
#include "screens/preferences_layout.h"
#include "screens/scaled_form.h"
#include "screens/services.h"
#include "screens/zone_list.h"

namespace screens {

// Each change is saved at once. If that fails, a message says so and the change is undone.
class Preferences : public ScaledForm {
 public:
  // The list must outlive the form.
  Preferences(Services services, ZoneList& zones);

  // The table of controls, bottom first.
  CONTROL(Shape, Head, preferences_layout::Head());
  CONTROL(PictureBox, HeadPicture, preferences_layout::HeadPicture());
  CONTROL(Label, Title, preferences_layout::Title());

  CONTROL(Label, ClockCaption, preferences_layout::Caption(96, "Clock"));
  CONTROL(ComboBox, ClockChoices, preferences_layout::Choices(92, "Clock", 0));
  CONTROL(Label, ClockMeaning, preferences_layout::Meaning(138));
  CONTROL(Line, ClockRule, preferences_layout::Rule(188));

  CONTROL(Label, ZoneCaption, preferences_layout::Caption(208, "Zone"));
  CONTROL(Label, Place, preferences_layout::Value(208, true));
  CONTROL(Label, Zone, preferences_layout::Value(236, false));
  CONTROL(Label, ZoneSource, preferences_layout::Remark(264));
  CONTROL(CommandButton, ChooseZone, preferences_layout::Button(456, 208, "&Zone…", 1));
  CONTROL(Line, ZoneRule, preferences_layout::Rule(304));

  CONTROL(CommandButton, Defaults, preferences_layout::Button(32, 336, "&Defaults", 2));
  CONTROL(CommandButton, Close, preferences_layout::MainButton(456, 336, "&Close", 3));

  void Form_Load() override;
  void Form_KeyDown(forms::KeyPress& press) override;

  void ClockChoices_Click();
  void ChooseZone_Click();
  void Defaults_Click();
  void Close_Click();

 private:
  void Save(const std::function<void()>& save);
  void ShowSettings();
  void ShowZone(const atlas::PlaceClock& clock, std::string_view source);

  Services services_;
  ZoneList& zones_;
};

}  // namespace screens
