// Writes the files of the atlas from the tables of places: for each country the scrambled records
// of <country>.city, and <country>.index.

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "atlas/city_file.h"
#include "atlas/index_file.h"
#include "atlas/scrambling.h"
#include "tools/atlas/index_lines.h"
#include "tools/atlas/place_table.h"

namespace {

namespace fs = std::filesystem;

// "28.05" for 28 degrees 5 minutes.
std::string DegreesAndMinutes(std::int32_t minutes) {
  const std::string pastDegrees = std::to_string(minutes % 60);
  return std::to_string(minutes / 60) + (pastDegrees.size() < 2 ? ".0" : ".") + pastDegrees;
}

// The name to search by: nobody types the mark that starts "'Aiea".
std::string_view SearchName(std::string_view place) {
  return place.substr(std::min(place.find_first_not_of("'`"), place.size() - 1));
}

std::string Record(const TablePlace& place, const std::string& country) {
  return std::string(SearchName(place.name)) + ',' + place.name + ',' + place.state + ',' +
         country + ',' + DegreesAndMinutes(LatitudeMinutes(place)) +
         (place.latitude < 0 ? ",S," : ",N,") + DegreesAndMinutes(LongitudeMinutes(place)) +
         (place.longitude < 0 ? ",W" : ",E");
}

void WriteFiles(const fs::path& table, const fs::path& folder) {
  const std::string country = table.stem().string();
  const std::vector<TablePlace> places = ReadPlaces(table);
  std::ofstream cities(folder / (country + std::string(atlas::kCityExtension)), std::ios::binary);
  for (const TablePlace& place : places) {
    const foundation::ByteText record(Record(place, country));
    cities << atlas::EncodeText(record, atlas::kAtlasKey).Bytes() << "\r\n";
  }
  std::ofstream index(folder / (country + std::string(atlas::kIndexExtension)), std::ios::binary);
  for (const std::string& line : IndexLines(places)) index << line << '\n';
  if (!cities.flush() || !index.flush()) throw std::runtime_error(country + ": not written");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: durvela_scramble_atlas PLACES_FOLDER ATLAS_FOLDER\n", stderr);
    return 2;
  }
  try {
    fs::create_directories(argv[2]);
    for (const fs::path& table : fs::directory_iterator(argv[1])) {
      if (table.extension() == ".tsv") WriteFiles(table, argv[2]);
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "durvela_scramble_atlas: %s\n", error.what());
    return 1;
  }
  return 0;
}
