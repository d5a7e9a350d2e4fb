// A city picker with fakes, its own atlas and a dashboard that receives the result.
#pragma once

#include "atlas/clsAtlas.h"
#include "screens/frmCity.h"
#include "support/app_folder.h"
#include "support/dashboard.h"

namespace screens {

struct Picker : Fakes {
  // The entry selected in the list of places.
  std::string Chosen() const {
    const forms::ItemList& list = *form.lstCity.items;
    return list.ListIndex() < 0 ? "none" : std::string(list.List(list.ListIndex()));
  }

  support::AppFolderScope folder;
  support::FakeYielder yielder;
  atlas::clsAtlas atlas{yielder};
  frmMain caller{services};
  frmCity form{host, Filled(folder, atlas)};

 private:
  static atlas::clsAtlas& Filled(const support::AppFolderScope& folder, atlas::clsAtlas& atlas) {
    // Unsorted.
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
