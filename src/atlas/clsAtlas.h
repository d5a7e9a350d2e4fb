// The atlas: the only code that reads and writes the city files, one per country.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "forms/list_control.h"
#include "foundation/byte_text.h"
#include "foundation/machine.h"

namespace atlas {

// The fields of a place, except for the country, which is that of the file.
struct PlaceRecord {
  std::string Place;  // listed and searched by
  std::string City;   // returned when the place is chosen
  std::string State;
  std::string Latitude;   // degrees.minutes, "28.40"
  std::string Latsign;    // "N" or "S"
  std::string Longitude;  // "77.13"
  std::string Longsign;   // "E" or "W"
};

// Getters read the country loaded last. Operations do not report errors: one that cannot read or
// write stops and keeps what it has done so far. LoadCities yields after each record, EditPlace and
// DeletePlace after each line they read. A load called meanwhile ends them, so the later of two
// loads wins.
class clsAtlas {
 public:
  // The yielder must outlive the atlas.
  explicit clsAtlas(foundation::Yielder& yielder) : yielder_(yielder) {}

  // Fills the list with all countries that have a file, sorted ignoring case.
  void LoadCountry(forms::ListControl& lstC) const;

  // Reads a country's records. The list, unless null, gets "Place, State, Country" for each, with
  // the record's number from 0 as item data; at 31,800 entries it is cleared before the next.
  void LoadCities(std::string_view CountrySelected, forms::ListControl* lstC);

  // Replaces every line that holds the old record; all fields must match, including case. A line
  // whose scrambled bytes contain a comma (printable ASCII never does) is split there; DeletePlace
  // does so too.
  void EditPlace(std::string_view Country, const PlaceRecord& old, const PlaceRecord& changed);
  // Replaces every line that holds the record with a copy of the line before it, so the file keeps
  // its number of lines. A deleted first record leaves an empty line, which ends a load.
  void DeletePlace(std::string_view Country, const PlaceRecord& record);
  // Appends the record; makes the file of a country that has none, and leaves it empty if the
  // record cannot be written.
  void AddPlace(std::string_view Country, const PlaceRecord& record);

  // Fields of record Index, counted from 1; empty if there is none.
  std::string getPlace(std::int16_t Index) const { return Entry(0, Index); }
  std::string getCity(std::int16_t Index) const { return Entry(1, Index); }
  std::string getState(std::int16_t Index) const { return Entry(2, Index); }
  std::string getCountry(std::int16_t Index) const { return Entry(3, Index); }
  std::string getLat(std::int16_t Index) const { return Entry(4, Index); }   // "28.40N"
  std::string getLong(std::int16_t Index) const { return Entry(5, Index); }  // "77.13E"
  std::string getZone(std::int16_t Index) const { return Entry(6, Index); }  // always empty

  // Number of records loaded.
  int getLength() const { return static_cast<int>(colAtlas_[0].size()); }

 private:
  class OpenFile;

  void LoadRecords(std::string_view country, forms::ListControl* list);
  void Enter(const std::array<std::string, 8>& fields, forms::ListControl* list);
  std::vector<foundation::ByteText> ReadLines(const std::filesystem::path& file);
  template <typename Operation>
  void Silently(Operation operation);
  std::string Entry(std::size_t list, std::int16_t index) const;

  foundation::Yielder& yielder_;
  std::array<std::vector<std::string>, 7> colAtlas_;
  unsigned closings_ = 0;  // how often all open files have been closed
};

}  // namespace atlas
