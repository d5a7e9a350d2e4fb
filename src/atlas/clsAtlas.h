// The atlas: the only reader and writer of the city files, one for each country.
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

// The eight fields of a place but its country, which is that of the file.
struct PlaceRecord {
  std::string Place;  // listed and searched by
  std::string City;   // what a choice hands back
  std::string State;
  std::string Latitude;   // degrees.minutes, "28.40"
  std::string Latsign;    // "N" or "S"
  std::string Longitude;  // "77.13"
  std::string Longsign;   // "E" or "W"
};

// Getters read the country loaded last. No operation fails: what cannot be read or written ends
// it, with what was done so far. LoadCities yields after each record, EditPlace and DeletePlace
// after each line they read; a load called meanwhile ends them, so that of two loads the later
// one holds.
class clsAtlas {
 public:
  // The yielder outlives the atlas.
  explicit clsAtlas(foundation::Yielder& yielder) : yielder_(yielder) {}

  // Fills the list with the names of all countries that have a file, sorted, case aside.
  void LoadCountry(forms::ListControl& lstC) const;

  // Reads a country's records. The list, if there is one, gets "Place, State, Country" of each
  // with its number from 0 beside it; a list of 31,800 entries is emptied before the next.
  void LoadCities(std::string_view CountrySelected, forms::ListControl* lstC);

  // Writes the new record over every line that holds the old one, in all fields and their case. A
  // line whose scrambled bytes hold a comma, which no printable ASCII makes, comes apart there, in
  // DeletePlace too.
  void EditPlace(std::string_view Country, const PlaceRecord& old, const PlaceRecord& changed);
  // Writes a copy of the line before over every line that holds the record. The file keeps its
  // number of lines; a record that stood first leaves an empty line, which ends a load.
  void DeletePlace(std::string_view Country, const PlaceRecord& record);
  // Appends the record; makes the file of a country that has none, and leaves it empty if the
  // record cannot be written.
  void AddPlace(std::string_view Country, const PlaceRecord& record);

  // Fields of record Index, from 1; an empty text where there is none.
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
  unsigned closings_ = 0;  // how often all open files were closed at once
};

}  // namespace atlas
