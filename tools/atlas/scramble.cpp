// Writes the city files of the atlas: converts each country's table of places to the scrambled
// records of <country>.city.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "atlas/modEncDec.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace {

namespace fs = std::filesystem;

double Degrees(std::string_view text) {
  const auto number = foundation::WholeNumber(text);
  if (!number) throw std::runtime_error("not a number of degrees: " + std::string(text));
  return *number;
}

std::int32_t LatitudeMinutes(double latitude) {
  return foundation::RoundToInt32(std::abs(latitude) * 60);
}

// A longitude of whole degrees would be read as minutes, so it is moved by one minute, toward the
// exact position.
std::int32_t LongitudeMinutes(double longitude) {
  const double exact = std::abs(longitude) * 60;
  const std::int32_t minutes = foundation::RoundToInt32(exact);
  if (minutes % 60 != 0) return minutes;
  return minutes == 0 || exact > minutes ? minutes + 1 : minutes - 1;
}

// "28.05" for 28 degrees 5 minutes.
std::string DegreesAndMinutes(std::int32_t minutes) {
  const std::string pastDegrees = std::to_string(minutes % 60);
  return std::to_string(minutes / 60) + (pastDegrees.size() < 2 ? ".0" : ".") + pastDegrees;
}

// The name to search by: nobody types the mark that starts "'Aiea".
std::string_view SearchName(std::string_view place) {
  return place.substr(std::min(place.find_first_not_of("'`"), place.size() - 1));
}

// The record for a table line: place, state, latitude, longitude. City files do not use the
// remaining fields.
std::string Record(std::string_view line, const std::string& country) {
  const auto fields = foundation::Split(line, '\t');
  if (fields.size() != 7) throw std::runtime_error("not seven fields");
  const std::string place(fields[0]);
  const std::string state(fields[1]);
  const double latitude = Degrees(fields[2]);
  const double longitude = Degrees(fields[3]);
  for (const char c : place + state) {
    if (c < ' ' || c > '~' || c == ',')
      throw std::runtime_error("a name with a comma or a character outside ASCII");
  }
  return std::string(SearchName(place)) + ',' + place + ',' + state + ',' + country + ',' +
         DegreesAndMinutes(LatitudeMinutes(latitude)) + (latitude < 0 ? ",S," : ",N,") +
         DegreesAndMinutes(LongitudeMinutes(longitude)) + (longitude < 0 ? ",W" : ",E");
}

void WriteCityFile(const fs::path& table, const fs::path& folder) {
  const std::string country = table.stem().string();
  std::ifstream places(table, std::ios::binary);
  std::ofstream cities(folder / (country + ".city"), std::ios::binary);
  std::string line;
  std::getline(places, line);  // column names
  while (std::getline(places, line)) {
    try {
      const foundation::ByteText record(Record(line, country));
      cities << atlas::EncodeText(record, atlas::kAtlasKey).Bytes() << "\r\n";
    } catch (const std::exception& error) {
      throw std::runtime_error(table.string() + ": " + line + ": " + error.what());
    }
  }
  if (!places.eof() || !cities.flush()) throw std::runtime_error(country + ": read or write error");
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
      if (table.extension() == ".tsv") WriteCityFile(table, argv[2]);
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "durvela_scramble_atlas: %s\n", error.what());
    return 1;
  }
  return 0;
}
