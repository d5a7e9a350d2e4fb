// A list of all time zones, searched as the user types.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/screen_services.h"
#include "foundation/machine.h"
#include "screens/scaled_form.h"
#include "screens/zone_list_layout.h"

namespace screens {

class ZoneList : public ScaledForm {
 public:
  // Clock and host must outlive the form.
  ZoneList(const foundation::Clock& clock, forms::FormHost& host);

  // The table of controls, bottom first.
  CONTROL(Shape, Head, zone_list_layout::Head());
  CONTROL(TextBox, Search, zone_list_layout::Search());
  CONTROL(ListBox, Zones, zone_list_layout::Zones());
  CONTROL(Label, Offset, zone_list_layout::Offset());
  CONTROL(CommandButton, PlacesZone, zone_list_layout::Button(16, 152, "The &place's zone", 2));
  CONTROL(CommandButton, Cancel, zone_list_layout::Button(264, 112, "Cancel", 3));
  CONTROL(CommandButton, Accept, zone_list_layout::MainButton(392, 112, "&Choose", 4));

  // Call before showing the form. Lists all zones and selects this one, if it is listed.
  void Load(std::string_view zone);

  // Once the form is closed: the chosen zone's IANA name, or an empty text for the place's own
  // zone; nothing if the user cancelled.
  const std::optional<std::string>& Answer() const { return answer_; }

  void Form_KeyDown(forms::KeyPress& press) override;

  void Search_Change();
  void Search_KeyDown(forms::KeyPress& press);
  void Zones_Click();
  void Accept_Click();
  void PlacesZone_Click();
  void Cancel_Click();

 private:
  void Fill();
  void CloseWith(std::optional<std::string> answer);
  void ShowOffset();

  const foundation::Clock& clock_;
  forms::FormHost& host_;
  std::vector<std::string> names_;
  std::string inUse_;
  std::optional<std::string> answer_;
};

}  // namespace screens
