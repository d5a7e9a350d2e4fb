#include "screens/frmCity.h"

#include "atlas/getCountryZone.h"
#include "foundation/angle_text.h"
#include "foundation/error.h"
#include "foundation/numbers.h"
#include "foundation/resume.h"
#include "foundation/text.h"
#include "screens/find_in_list.h"

namespace screens {

using foundation::Resume;

frmCity::frmCity(forms::FormHost& host, atlas::clsAtlas& atlas)
    : Form("frmCity", "Select City and Press Enter/Double Click", city_layout::kWidth,
           city_layout::kHeight),
      host_(host),
      atlas_(atlas) {
  minimumWidth = scaleWidth;
  minimumHeight = scaleHeight;
  backColour = palette::kPaper;
  cmbCountry.onClick = [this] { cmbCountry_Click(); };
  txtCity.onChange = [this] { txtCity_Change(); };
  txtCity.onKeyDown = [this](forms::KeyPress& press) { txtCity_KeyDown(press); };
  lstCity.onDoubleClick = [this] { lstCity_DblClick(); };

  atlas_.LoadCountry(*cmbCountry.items);
  ShowRemarks();
}

void frmCity::Load(std::string_view Country, std::string_view City, forms::Form& RetForm) {
  RetForm_ = &RetForm;
  activeControl = &txtCity;
  FindInCombo(Country, cmbCountry);
  SetText(txtCity, City);
  FindInList(City, lstCity);
  lstCity.emphasis = City;
  searched_ = false;  // not typed by the user
  ShowRemarks();
}

void frmCity::Form_Load() {
  sizes_.SaveSizes(*this);
}

void frmCity::Form_Resize() {
  sizes_.ResizeControls(*this, foundation::kFalse16);
}

// The form and its list live until the program ends.
void frmCity::Form_QueryUnload(bool& cancel) {
  cancel = true;
  host_.Hide(*this);
}

void frmCity::Form_Deactivate() {
  host_.Hide(*this);
}

void frmCity::Form_KeyDown(forms::KeyPress& press) {
  press.handled = press.key == forms::Key::Escape || press.key == forms::Key::Enter;
  if (press.key == forms::Key::Escape) host_.Hide(*this);
  if (press.key == forms::Key::Enter) Accept();
}

void frmCity::cmbCountry_Click() {
  searched_ = false;
  ++loading_;
  ShowRemarks();
  atlas_.LoadCities(cmbCountry.items->List(cmbCountry.items->ListIndex()), lstCity.items.get());
  --loading_;
  ShowRemarks();
}

void frmCity::txtCity_Change() {
  FindInList(txtCity.caption, lstCity);
  lstCity.emphasis = txtCity.caption;
  searched_ = true;
  ShowRemarks();
}

void frmCity::txtCity_KeyDown(forms::KeyPress& press) {
  press.handled = press.key == forms::Key::Down || press.key == forms::Key::Up;
  if (!press.handled) return;
  activeControl = &lstCity;
  const int step = press.key == forms::Key::Down ? 1 : -1;
  Resume([&] { Select(lstCity, lstCity.items->ListIndex() + step); });
}

void frmCity::lstCity_DblClick() {
  Accept();
}

// Errors while looking up the record's number are not caught: without a selection the program ends.
void frmCity::Accept() {
  const std::int32_t number = lstCity.items->ItemData(lstCity.items->ListIndex());
  const std::int16_t index = foundation::RoundToInt16(number + 1.0);
  Resume([&] {
    Result("lblCity").caption = atlas_.getCity(index) + "(" + atlas_.getState(index) + ")";
  });
  Resume([&] { Result("lblCountry").caption = atlas_.getCountry(index); });
  Resume([&] { Result("lblLat").caption = atlas_.getLat(index); });
  Resume([&] { Result("lblLong").caption = atlas_.getLong(index); });
  Resume(
      [&] { Result("lblZoneTime").caption = atlas::getCountryZone(Result("lblCountry").caption); });
  Resume([&] {
    Result("lblZone").caption = foundation::ZoneToMeridianText(Result("lblZoneTime").caption);
  });
  host_.Hide(*this);
}

forms::Control& frmCity::Result(std::string_view label) {
  if (RetForm_ == nullptr) throw foundation::Error(foundation::ErrorKind::ObjectNotSet);
  return RetForm_->ControlNamed(label);
}

// Whether the search found an entry.
bool frmCity::Found() const {
  const forms::ItemList& places = *lstCity.items;
  return places.ListIndex() >= 0 &&
         foundation::BeginsWith(places.List(places.ListIndex()), txtCity.caption);
}

void frmCity::ShowRemarks() {
  const int places = lstCity.items->ListCount();
  txtCity.trailing = loading_ > 0            ? "loading…"
                     : places == 0           ? ""
                     : searched_ && !Found() ? "no match"
                     : places == 1           ? "1 place"
                                             : foundation::GroupedText(places) + " places";
  lstCity.whenEmpty = loading_ > 0                          ? ""
                      : cmbCountry.items->ListCount() == 0  ? "The atlas holds no countries."
                      : cmbCountry.items->ListIndex() == -1 ? "Choose a country."
                                                            : "No places here.";
}

}  // namespace screens
