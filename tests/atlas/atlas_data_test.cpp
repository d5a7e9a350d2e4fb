// The city files as the build makes them, read back and held against the tables of places.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "atlas/getCountryZone.h"
#include "atlas/modEncDec.h"
#include "engine/clsPP.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace {

namespace fs = std::filesystem;
using foundation::Split;

std::vector<std::string> Lines(const fs::path& path, std::string_view lineEnd) {
  std::ifstream file(path, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  std::vector<std::string> lines;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = text.find(lineEnd, begin);
    if (end == std::string::npos) {
      ADD_FAILURE() << path << " ends within a line";
      break;
    }
    lines.push_back(text.substr(begin, end - begin));
    begin = end + lineEnd.size();
  }
  return lines;
}

bool AllWithin(std::string_view text, unsigned char first, unsigned char last) {
  for (const unsigned char c : text) {
    if (c < first || c > last) return false;
  }
  return true;
}

std::string Decoded(const std::string& line) {
  return atlas::DecodeText(foundation::ByteText(line), atlas::kAtlasKey).Bytes();
}

// Decimal degrees of a coordinate's text, as every calculation reads it; each text decoded once.
class Coordinates {
 public:
  double Latitude(const std::string& text) {
    return Cached(latitudes_, text, [&] { return Decode("0.01E", text).ppLatitude; });
  }
  double Longitude(const std::string& text) {
    return Cached(longitudes_, text, [&] { return Decode(text, "0.00N").ppLongitude; });
  }

 private:
  static engine::clsPP Decode(std::string_view longitude, std::string_view latitude) {
    engine::clsPP place;
    place.GenHoro(1, 1, 2000, 12, 0, 0, longitude, latitude, "0.0E", 0, foundation::kFalse16, 0);
    return place;
  }

  static double Cached(std::map<std::string, double>& known, const std::string& text,
                       const auto& decode) {
    const auto found = known.find(text);
    return found != known.end() ? found->second : known[text] = decode();
  }

  std::map<std::string, double> latitudes_;
  std::map<std::string, double> longitudes_;
};

void CheckRecord(const std::string& line, const std::string& row, const std::string& country,
                 Coordinates& coordinates) {
  SCOPED_TRACE(country + ": " + row);
  ASSERT_TRUE(AllWithin(line, 0x51, 0xD5));
  const std::string record = Decoded(line);
  ASSERT_TRUE(AllWithin(record, 0x20, 0x7E)) << record;

  const auto fields = Split(record, ',');
  const auto given = Split(row, '\t');
  ASSERT_EQ(fields.size(), 8U) << record;
  ASSERT_EQ(given.size(), 7U);
  ASSERT_FALSE(given[0].empty() || given[1].empty());
  ASSERT_TRUE(given[0].ends_with(fields[0]));
  ASSERT_TRUE(fields[0].size() == 1 || (fields[0][0] != '\'' && fields[0][0] != '`'));
  ASSERT_EQ(fields[1], given[0]);
  ASSERT_EQ(fields[2], given[1]);
  ASSERT_EQ(fields[3], country);

  const auto text = [&](std::size_t i) { return std::string(fields[i]) += fields[i + 1]; };
  const double latitude = foundation::WholeNumber(given[2]).value();
  const double longitude = foundation::WholeNumber(given[3]).value();
  ASSERT_NEAR(coordinates.Latitude(text(4)) * 60, latitude * 60, 0.5001) << record;
  ASSERT_NEAR(coordinates.Longitude(text(6)) * 60, longitude * 60, 1.0001) << record;
}

TEST(AtlasData, HoldsEveryPlaceOfTheTablesAndDecodesToItsCoordinates) {
  Coordinates coordinates;
  std::size_t records = 0;
  int countries = 0;
  for (const fs::path& table : fs::directory_iterator(PLACES_FOLDER)) {
    const std::string country = table.stem().string();
    const auto rows = Lines(table, "\n");
    const auto lines = Lines(fs::path(ATLAS_FOLDER) / (country + ".city"), "\r\n");
    ASSERT_EQ(lines.size() + 1, rows.size()) << country;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      CheckRecord(lines[i], rows[i + 1], country, coordinates);
      if (HasFatalFailure()) return;
    }
    EXPECT_NE(atlas::getCountryZone(country), "") << country;
    records += lines.size();
    ++countries;
  }
  EXPECT_GE(records, 200'000U);
  EXPECT_GT(countries, 200);
}

// Published coordinates of the towns, to a tenth of a degree.
TEST(AtlasData, KnowsWhereTownsLie) {
  struct Row {
    const char* country;
    const char* placeAndState;
    double latitude;
    double longitude;
  };
  const Row rows[] = {
      {"India", "Delhi,Delhi,Delhi", 28.61, 77.23},
      {"India", "Mumbai,Mumbai,Maharashtra", 19.08, 72.88},
      {"India", "Ujjain,Ujjain,Madhya Pradesh", 23.18, 75.78},
      {"India", "Varanasi,Varanasi,Uttar Pradesh", 25.32, 83.01},
      {"Mauritius", "Port Louis,Port Louis,Port Louis", -20.16, 57.50},
      {"Nepal", "Kathmandu,Kathmandu,Bagmati Province", 27.71, 85.32},
      {"England", "London,London,England", 51.51, -0.13},
      {"USA", "New York City,New York City,New York", 40.71, -74.01},
      {"Fiji", "Nadi,Nadi,Western", -17.80, 177.42},
  };
  for (const Row& row : rows) {
    const std::string beginning = std::string(row.placeAndState) + ',' + row.country + ',';
    std::vector<std::string> found;
    for (const std::string& line :
         Lines(fs::path(ATLAS_FOLDER) / (std::string(row.country) + ".city"), "\r\n")) {
      if (const std::string record = Decoded(line); record.starts_with(beginning)) {
        found.push_back(record);
      }
    }
    ASSERT_EQ(found.size(), 1U) << beginning;
    const auto fields = Split(found[0], ',');
    Coordinates coordinates;
    EXPECT_NEAR(coordinates.Latitude(std::string(fields[4]) += fields[5]), row.latitude, 0.1)
        << found[0];
    EXPECT_NEAR(coordinates.Longitude(std::string(fields[6]) += fields[7]), row.longitude, 0.1)
        << found[0];
  }
}

}  // namespace
