// The city files as the build makes them, read back and held against the tables of places.
#include <gtest/gtest.h>

#include <algorithm>
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
    EXPECT_NE(end, std::string::npos) << path << " ends within a line";
    if (end == std::string::npos) break;
    lines.push_back(text.substr(begin, end - begin));
    begin = end + lineEnd.size();
  }
  return lines;
}

bool AllWithin(std::string_view text, unsigned char first, unsigned char last) {
  return std::ranges::all_of(text, [&](unsigned char c) { return c >= first && c <= last; });
}

std::string Decoded(const std::string& line) {
  return atlas::DecodeText(foundation::ByteText(line), atlas::kAtlasKey).Bytes();
}

// Decimal degrees of a latitude or longitude, as every calculation reads its text; each text is
// decoded once.
double Degrees(const std::string& text) {
  static std::map<std::string, double> known;
  if (const auto found = known.find(text); found != known.end()) return found->second;
  const bool isLatitude = text.ends_with('N') || text.ends_with('S');
  engine::clsPP place;
  place.GenHoro(1, 1, 2000, 12, 0, 0, isLatitude ? "0.01E" : text, isLatitude ? text : "0.00N",
                "0.0E", 0, foundation::kFalse16, 0);
  return known[text] = isLatitude ? place.ppLatitude : place.ppLongitude;
}

void CheckRecord(const std::string& line, const std::string& row, const std::string& country) {
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
  ASSERT_TRUE(fields[5] == "N" || fields[5] == "S") << record;
  ASSERT_TRUE(fields[7] == "E" || fields[7] == "W") << record;
  ASSERT_NEAR(Degrees(text(4)) * 60, latitude * 60, 0.5001) << record;
  ASSERT_NEAR(Degrees(text(6)) * 60, longitude * 60, 1.0001) << record;
}

TEST(AtlasData, HoldsEveryPlaceOfTheTablesAndDecodesToItsCoordinates) {
  std::size_t records = 0;
  int countries = 0;
  for (const fs::path& table : fs::directory_iterator(PLACES_FOLDER)) {
    const std::string country = table.stem().string();
    const auto rows = Lines(table, "\n");
    const auto lines = Lines(fs::path(ATLAS_FOLDER) / (country + ".city"), "\r\n");
    ASSERT_EQ(lines.size() + 1, rows.size()) << country;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      CheckRecord(lines[i], rows[i + 1], country);
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
  const struct {
    std::string country, placeAndState;
    double latitude, longitude;
  } towns[] = {
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
  for (const auto& [country, placeAndState, latitude, longitude] : towns) {
    int found = 0;
    for (const std::string& line : Lines(fs::path(ATLAS_FOLDER) / (country + ".city"), "\r\n")) {
      const std::string record = Decoded(line);
      if (!record.starts_with(placeAndState + ',' + country + ',')) continue;
      const auto fields = Split(record, ',');
      EXPECT_NEAR(Degrees(std::string(fields[4]) += fields[5]), latitude, 0.1) << record;
      EXPECT_NEAR(Degrees(std::string(fields[6]) += fields[7]), longitude, 0.1) << record;
      ++found;
    }
    EXPECT_EQ(found, 1) << placeAndState;
  }
}

}  // namespace
