// A city picker on fakes, with an atlas of its own and a form that takes the result.
#pragma once

#include "atlas/clsAtlas.h"
#include "screens/frmCity.h"
#include "support/app_folder.h"
#include "support/machine_fakes.h"
#include "support/screen_fakes.h"

namespace screens {

// With the labels that a picker writes to.
struct Caller : forms::Form {
  Caller() : Form("Caller", "Caller", 3000, 3000) {}

  CONTROL(Label, lblCity, {.caption = "Delhi"});
  CONTROL(Label, lblCountry, {.caption = "India"});
  CONTROL(Label, lblLat, {});
  CONTROL(Label, lblLong, {});
  CONTROL(Label, lblZoneTime, {});
  CONTROL(Label, lblZone, {});

  std::string Place() {
    std::string place;
    for (const forms::Control& label : Controls()) place += label.caption + " ";
    return place;
  }
};

struct Picker {
  // The entry selected in the list of places.
  std::string Chosen() const {
    const forms::ItemList& list = *form.lstCity.items;
    return list.ListIndex() < 0 ? "none" : std::string(list.List(list.ListIndex()));
  }

  support::AppFolderScope folder;
  support::FakeYielder yielder;
  support::FakeHost host;
  atlas::clsAtlas atlas{yielder};
  Caller caller;
  frmCity form{host, Filled(folder, atlas)};

 private:
  static atlas::clsAtlas& Filled(const support::AppFolderScope& folder, atlas::clsAtlas& atlas) {
    // In no order.
    const atlas::PlaceRecord places[] = {
        {"Ujjain", "Ujjain", "Madhya Pradesh", "23.11", "N", "75.47", "E"},
        {"Bombay", "Mumbai", "Maharashtra", "18.58", "N", "72.50", "E"},
        {"Delhi Cantonment", "Delhi Cantonment", "Delhi", "28.36", "N", "77.08", "E"},
        {"Delhi", "Delhi", "Delhi", "28.40", "N", "77.13", "E"}};
    folder.Write("atlas/Void.city", "");
    for (const auto& place : places) atlas.AddPlace("India", place);
    atlas.AddPlace("Fiji", {"Nadi", "Nadi", "Western", "17.48", "S", "177.25", "E"});
    atlas.AddPlace("Atlantis", {"Poseidonis", "Poseidonis", "Old", "31.15", "N", "24.16", "W"});
    return atlas;
  }
};

}  // namespace screens
