// Any bytes at all as a city file, and any lines as its records before they were scrambled: lists
// that agree, and a file that loses no line when one is changed.

#include "atlas/city_file.h"
#include "atlas/clsAtlas.h"
#include "atlas/modEncDec.h"
#include "forms/item_list.h"
#include "fuzz/fuzz.h"
#include "support/app_folder.h"
#include "support/machine_fakes.h"

namespace {

constexpr std::string_view kCountry = "Somewhere";

std::size_t Items() {
  atlas::CityReader reader(atlas::CityFile(kCountry));
  std::size_t items = 0;
  for (; !reader.AtEnd(); ++items) reader.Item();
  return items;
}

atlas::PlaceRecord First(const atlas::clsAtlas& atlas) {
  const auto split = [](std::string text) {
    const std::string sign = text.empty() ? "" : text.substr(text.size() - 1);
    if (!text.empty()) text.pop_back();
    return std::pair(text, sign);
  };
  const auto [latitude, latsign] = split(atlas.getLat(1));
  const auto [longitude, longsign] = split(atlas.getLong(1));
  return {atlas.getPlace(1), atlas.getCity(1), atlas.getState(1), latitude,
          latsign,           longitude,        longsign};
}

void Work(const support::AppFolderScope& folder, std::string_view file) {
  folder.Write("atlas/Somewhere.city", file);
  support::FakeYielder yielder;
  atlas::clsAtlas atlas(yielder);
  forms::ItemList list(true);
  atlas.LoadCities(kCountry, &list);
  fuzz::Require(list.ListCount() == atlas.getLength());
  fuzz::Require(static_cast<std::size_t>(atlas.getLength()) <= Items());

  const std::size_t before = Items();
  const atlas::PlaceRecord old = First(atlas);
  atlas::PlaceRecord changed = old;
  changed.Place = "Ujjain";
  atlas.EditPlace(kCountry, old, changed);
  const std::size_t edited = Items();
  fuzz::Require(edited >= before);  // a letter beyond ASCII may have become a comma
  atlas.DeletePlace(kCountry, changed);
  fuzz::Require(Items() == edited);
  atlas.AddPlace(kCountry, changed);
  fuzz::Require(Items() >= edited);
}

}  // namespace

void fuzz::Run(const std::string& bytes) {
  static const support::AppFolderScope folder;
  Work(folder, bytes);
  std::string scrambled;
  for (std::string_view rest = bytes; !rest.empty();) {
    const foundation::ByteText line(std::string(foundation::TakeLine(rest)));
    scrambled += atlas::EncodeText(line, atlas::kAtlasKey).Bytes() + "\r\n";
  }
  Work(folder, scrambled);
}
