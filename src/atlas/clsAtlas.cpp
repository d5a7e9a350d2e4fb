#include "atlas/clsAtlas.h"

#include "atlas/city_file.h"
#include "atlas/scrambling.h"
#include "foundation/files.h"

namespace atlas {
namespace {

using foundation::ByteText;

constexpr int kMaxEntries = 31800;  // in a list control

std::string Display(const std::array<std::string, 8>& fields) {
  const auto& [place, city, state, country, latitude, latsign, longitude, longsign] = fields;
  return place + ", " + state + ", " + country;
}

// The eight fields of a scrambled line; commas after the seventh belong to the last field.
// InvalidCall if there are too few.
std::array<std::string, 8> FieldsOf(const ByteText& line) {
  const std::string record = foundation::FromBytes(DecodeText(line, kAtlasKey));
  std::array<std::string, 8> fields;
  std::string_view rest = record;
  for (std::size_t i = 0; i + 1 < fields.size(); ++i) {
    const std::size_t comma = rest.find(',');
    if (comma == std::string_view::npos) {
      throw foundation::Error(foundation::ErrorKind::InvalidCall);
    }
    fields[i] = rest.substr(0, comma);
    rest.remove_prefix(comma + 1);
  }
  fields.back() = rest;
  return fields;
}

// InvalidCall if a field holds characters that a city file cannot.
ByteText Scrambled(std::string_view country, const PlaceRecord& r) {
  std::string record = r.Place;
  for (const std::string_view field :
       {std::string_view(r.City), std::string_view(r.State), country, std::string_view(r.Latitude),
        std::string_view(r.Latsign), std::string_view(r.Longitude), std::string_view(r.Longsign)}) {
    record.append(",").append(field);
  }
  const ByteText bytes = foundation::ToBytes(record);
  if (foundation::FromBytes(bytes) != record) {
    throw foundation::Error(foundation::ErrorKind::InvalidCall);
  }
  return EncodeText(bytes, kAtlasKey);
}

}  // namespace

// A city file being read. Reading fails once all open files have been closed.
class clsAtlas::OpenFile {
 public:
  OpenFile(const clsAtlas& atlas, const std::filesystem::path& file)
      : atlas_(atlas), openedAt_(atlas.closings_), file_(file), reader_(file) {}

  bool AtEnd() {
    if (atlas_.closings_ != openedAt_) {
      throw foundation::FileError(foundation::ErrorKind::FileAccess, file_, "has been closed");
    }
    return reader_.AtEnd();
  }
  ByteText ReadItem() { return reader_.Item(); }

 private:
  const clsAtlas& atlas_;
  unsigned openedAt_;
  std::filesystem::path file_;
  CityReader reader_;
};

template <typename Operation>
void clsAtlas::Silently(Operation operation) {
  try {
    operation();
  } catch (const foundation::Error&) {
    ++closings_;
  }
}

void clsAtlas::LoadCountry(forms::ListControl& lstC) const {
  lstC.Clear();
  for (const std::string& country : Countries()) lstC.AddItem(country);
}

void clsAtlas::LoadCities(std::string_view CountrySelected, forms::ListControl* lstC) {
  if (lstC != nullptr) lstC->Clear();
  colAtlas_ = {};
  Silently([&] {
    LoadRecords(CountrySelected, lstC);
    ++closings_;
  });
}

void clsAtlas::LoadRecords(std::string_view country, forms::ListControl* list) {
  OpenFile file(*this, CityFile(country));
  while (!file.AtEnd()) {
    Enter(FieldsOf(file.ReadItem()), list);
    yielder_.Yield();
  }
}

void clsAtlas::Enter(const std::array<std::string, 8>& fields, forms::ListControl* list) {
  if (list != nullptr) {
    if (list->ListCount() >= kMaxEntries) list->Clear();
    list->SetItemData(list->AddItem(Display(fields)), getLength());
  }
  const auto& [place, city, state, country, latitude, latsign, longitude, longsign] = fields;
  const std::array<std::string, 7> entries = {
      place, city, state, country, latitude + latsign, longitude + longsign, ""};
  for (std::size_t i = 0; i < entries.size(); ++i) colAtlas_[i].push_back(entries[i]);
}

std::vector<ByteText> clsAtlas::ReadLines(const std::filesystem::path& path) {
  OpenFile file(*this, path);
  std::vector<ByteText> lines;
  while (!file.AtEnd()) {
    lines.push_back(file.ReadItem());
    yielder_.Yield();
  }
  return lines;
}

void clsAtlas::EditPlace(std::string_view Country, const PlaceRecord& old,
                         const PlaceRecord& changed) {
  Silently([&] {
    const auto file = CityFile(Country);
    const ByteText wanted = Scrambled(Country, old), replacement = Scrambled(Country, changed);
    std::vector<ByteText> lines = ReadLines(file);
    for (ByteText& line : lines) {
      if (line == wanted) line = replacement;
    }
    WriteLines(file, Writing::FromStart, lines);
  });
}

void clsAtlas::DeletePlace(std::string_view Country, const PlaceRecord& record) {
  Silently([&] {
    const auto file = CityFile(Country);
    const ByteText wanted = Scrambled(Country, record);
    std::vector<ByteText> lines = ReadLines(file);
    ByteText before;
    for (ByteText& line : lines) {
      if (line == wanted) line = before;
      before = line;
    }
    WriteLines(file, Writing::FromStart, lines);
  });
}

void clsAtlas::AddPlace(std::string_view Country, const PlaceRecord& record) {
  Silently([&] {
    const auto file = CityFile(Country);
    WriteLines(file, Writing::AtEnd, {});  // a country gets its file, even if its record fails
    WriteLines(file, Writing::AtEnd, {Scrambled(Country, record)});
  });
}

std::string clsAtlas::Entry(std::size_t list, std::int16_t index) const {
  const std::vector<std::string>& entries = colAtlas_[list];
  if (index < 1 || static_cast<std::size_t>(index) > entries.size()) return {};
  return entries[static_cast<std::size_t>(index) - 1];
}

}  // namespace atlas
