#include "tools/atlas/place_table.h"

#include <cmath>
#include <fstream>
#include <stdexcept>
#include <string_view>

#include "foundation/numbers.h"
#include "foundation/text.h"

namespace {

double Degrees(std::string_view text) {
  const auto number = foundation::WholeNumber(text);
  if (!number) throw std::runtime_error("no number of degrees: " + std::string(text));
  return *number;
}

// The columns are place, state, latitude, longitude, iso, zone, population.
TablePlace PlaceOf(std::string_view line) {
  const auto fields = foundation::Split(line, '\t');
  if (fields.size() != 7) throw std::runtime_error("not seven fields");
  TablePlace place = {std::string(fields[0]), std::string(fields[1]), Degrees(fields[2]),
                      Degrees(fields[3]),     std::string(fields[4]), std::string(fields[5]),
                      std::string(fields[6])};
  for (const char c : place.name + place.state) {
    if (c < ' ' || c > '~' || c == ',') throw std::runtime_error("a name with a comma or no ASCII");
  }
  return place;
}

}  // namespace

std::vector<TablePlace> ReadPlaces(const std::filesystem::path& table) {
  std::ifstream file(table, std::ios::binary);
  std::vector<TablePlace> places;
  std::string line;
  std::getline(file, line);  // the names of the columns
  while (std::getline(file, line)) {
    try {
      places.push_back(PlaceOf(line));
    } catch (const std::exception& error) {
      throw std::runtime_error(table.string() + ": " + line + ": " + error.what());
    }
  }
  if (!file.eof()) throw std::runtime_error(table.string() + ": not read");
  return places;
}

std::int32_t LatitudeMinutes(const TablePlace& place) {
  return foundation::RoundToInt32(std::abs(place.latitude) * 60);
}

std::int32_t LongitudeMinutes(const TablePlace& place) {
  const double exact = std::abs(place.longitude) * 60;
  const std::int32_t minutes = foundation::RoundToInt32(exact);
  if (minutes % 60 != 0) return minutes;
  return minutes == 0 || exact > minutes ? minutes + 1 : minutes - 1;
}
