// Arbitrary bytes as a city file, and arbitrary lines as its records before scrambling. Lists must
// agree, and editing must not lose lines.

#include "atlas/city_file.h"
#include "atlas/clsAtlas.h"
#include "atlas/scrambling.h"
#include "forms/item_list.h"
#include "fuzz/fuzz.h"
#include "support/app_folder.h"
#include "support/machine_fakes.h"

namespace {

constexpr std::string_view kCountry = "Somewhere";

int Items() {
  atlas::CityReader reader(atlas::CityFile(kCountry));
  int items = 0;
  for (; !reader.AtEnd(); ++items) reader.Item();
  return items;
}

// Splits a coordinate from the letter at its end.
std::pair<std::string, std::string> Split(const std::string& text) {
  const std::size_t end = text.empty() ? 0 : text.size() - 1;
  return {text.substr(0, end), text.substr(end)};
}

void Work(std::string_view file) {
  static const support::AppFolderScope folder;
  folder.Write("atlas/Somewhere.city", file);
  support::FakeYielder yielder;
  atlas::clsAtlas atlas(yielder);
  forms::ItemList list(true);
  atlas.LoadCities(kCountry, &list);
  const int before = Items();
  fuzz::Require(list.ListCount() == atlas.getLength() && list.ListCount() <= before);

  const auto [latitude, north] = Split(atlas.getLat(1));
  const auto [longitude, east] = Split(atlas.getLong(1));
  const atlas::PlaceRecord old = {
      atlas.getPlace(1), atlas.getCity(1), atlas.getState(1), latitude, north, longitude, east};
  atlas::PlaceRecord changed = old;
  changed.Place = "Ujjain";
  atlas.EditPlace(kCountry, old, changed);
  const int edited = Items();
  fuzz::Require(edited >= before);  // a letter outside ASCII may have become a comma
  atlas.DeletePlace(kCountry, changed);
  fuzz::Require(Items() == edited);
  atlas.AddPlace(kCountry, changed);
  fuzz::Require(Items() >= edited);
}

}  // namespace

void fuzz::Run(const std::string& bytes) {
  Work(bytes);
  std::string scrambled;
  for (std::string_view rest = bytes; !rest.empty();) {
    const foundation::ByteText line(std::string(foundation::TakeLine(rest)));
    scrambled += atlas::EncodeText(line, atlas::kAtlasKey).Bytes() + "\r\n";
  }
  Work(scrambled);
}
