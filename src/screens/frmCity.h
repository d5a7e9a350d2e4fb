// frmCity, the city picker: a country, a search text, and the country's places.
#pragma once

#include <string_view>

#include "atlas/clsAtlas.h"
#include "forms/clsVSZ.h"
#include "forms/form.h"
#include "forms/screen_services.h"
#include "screens/frmCity_layout.h"

namespace screens {

class frmCity : public forms::Form {
 public:
  // Reads the list of countries. Host and atlas must outlive the form.
  frmCity(forms::FormHost& host, atlas::clsAtlas& atlas);

  // The table of controls, bottom first.
  CONTROL(Shape, Head, city_layout::Head());
  CONTROL(ComboBox, cmbCountry, city_layout::Country());
  CONTROL(Label, Label15, city_layout::CountryCaption());
  CONTROL(TextBox, txtCity, city_layout::SearchText());
  CONTROL(Label, Label14, city_layout::CityCaption());
  CONTROL(ListBox, lstCity, city_layout::Cities());

  // Call before showing the form. Sets where the search starts, and the form whose labels lblCity,
  // lblCountry, lblLat, lblLong, lblZoneTime and lblZone receive the accepted place.
  void Load(std::string_view Country, std::string_view City, forms::Form& RetForm);

  void Form_Load() override;
  void Form_Resize() override;
  void Form_QueryUnload(bool& cancel) override;
  void Form_KeyDown(forms::KeyPress& press) override;
  void Form_Deactivate() override;

  void cmbCountry_Click();
  void txtCity_Change();
  void txtCity_KeyDown(forms::KeyPress& press);
  void lstCity_DblClick();

 private:
  void Accept();
  bool Found() const;
  void ShowRemarks();
  forms::Control& Result(std::string_view label);

  forms::FormHost& host_;
  atlas::clsAtlas& atlas_;
  forms::clsVSZ sizes_;
  forms::Form* RetForm_ = nullptr;
  int loading_ = 0;  // loads in progress; they nest
  bool searched_ = false;
};

}  // namespace screens
