// frmCity, the city picker: a country, a search text, and the country's places below.
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
  // Reads the countries; host and atlas outlive the form.
  frmCity(forms::FormHost& host, atlas::clsAtlas& atlas);

  // The table of controls, lowest first.
  CONTROL(Shape, Head, city_layout::Head());
  CONTROL(ComboBox, cmbCountry, city_layout::Country());
  CONTROL(Label, Label15, city_layout::CountryCaption());
  CONTROL(TextBox, txtCity, city_layout::SearchText());
  CONTROL(Label, Label14, city_layout::CityCaption());
  CONTROL(ListBox, lstCity, city_layout::Cities());

  // Before the form is shown: where the search begins, and the form whose labels lblCity,
  // lblCountry, lblLat, lblLong, lblZoneTime and lblZone get the place that is accepted.
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
  int loading_ = 0;  // loads that run, one inside another
  bool searched_ = false;
};

}  // namespace screens
