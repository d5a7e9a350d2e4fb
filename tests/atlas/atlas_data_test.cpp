// The city files and indexes from the build, compared with the tables of places and published data.
#include <gtest/gtest.h>

#include <filesystem>

#include "atlas/clsAtlas.h"
#include "atlas/getCountryZone.h"
#include "atlas/index_file.h"
#include "engine/place_decoding.h"
#include "foundation/files.h"
#include "foundation/modFileFx.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "support/machine_fakes.h"

namespace atlas {
namespace {

namespace fs = std::filesystem;

struct AtlasData : testing::Test {
  AtlasData() { foundation::SetAppFolder(fs::path(ATLAS_FOLDER).parent_path()); }

  // Decimal degrees, as calculations read the texts.
  double Latitude(std::int16_t index) const {
    return engine::DecimalDegrees(engine::LatitudeParts(atlas.getLat(index)), "S");
  }
  double Longitude(std::int16_t index) const {
    return engine::DecimalDegrees(engine::LongitudeParts(atlas.getLong(index)), "W");
  }

  support::FakeYielder yielder;
  clsAtlas atlas{yielder};
};

TEST_F(AtlasData, ContainsEveryPlaceInTheTables) {
  int records = 0;
  for (const fs::path& table : fs::directory_iterator(PLACES_FOLDER)) {
    const std::string country = table.stem().string();
    EXPECT_NE(getCountryZone(country), "") << country;
    atlas.LoadCities(country, nullptr);
    const std::string text = foundation::ReadFile(table);
    std::string_view rows = text;
    foundation::TakeLine(rows);  // column names
    IndexFile index(country);
    const auto indexed = [&](const char* column) { return index.Text(index.Column(column)); };
    const auto minutes = [&](const char* column) { return index.Number(index.Column(column)); };
    std::int16_t i = 0;
    for (; !rows.empty(); ++records) {
      const std::string_view row = foundation::TakeLine(rows);
      const auto given = foundation::Split(row, '\t');
      const std::string city = atlas.getCity(++i), place = atlas.getPlace(i);
      ASSERT_EQ(std::tuple(city, atlas.getState(i), atlas.getCountry(i)),
                std::tuple(given[0], given[1], country));
      ASSERT_TRUE(city.ends_with(place) && place.find_first_not_of("'`") == 0) << row;
      // To the minute of arc; whole degrees of longitude are moved by one minute.
      ASSERT_NEAR(Latitude(i), foundation::LeadingNumber(given[2]), 0.5001 / 60) << row;
      ASSERT_NEAR(Longitude(i), foundation::LeadingNumber(given[3]), 1.0001 / 60) << row;
      ASSERT_TRUE(index.Next());
      ASSERT_EQ(std::tuple(indexed("place"), indexed("state"), indexed("zone")),
                std::tuple(given[0], given[1], given[5]));
      ASSERT_NEAR(minutes("latitude"), Latitude(i) * 60, 1e-6) << row;
      ASSERT_NEAR(minutes("longitude"), Longitude(i) * 60, 1e-6) << row;
    }
    EXPECT_FALSE(index.Next()) << country;
    EXPECT_EQ(atlas.getLength(), i) << country;
  }
  EXPECT_GE(records, 200'000);
}

// Published coordinates, to a tenth of a degree.
TEST_F(AtlasData, LocatesKnownTowns) {
  const struct {
    const char *country, *city, *state;
    double latitude, longitude;
  } towns[] = {
      {"India", "Delhi", "Delhi", 28.61, 77.23},
      {"Mauritius", "Port Louis", "Port Louis", -20.16, 57.50},
      {"USA", "New York City", "New York", 40.71, -74.01},
  };
  for (const auto& [country, city, state, latitude, longitude] : towns) {
    atlas.LoadCities(country, nullptr);
    std::int16_t i = 1;
    while (i <= atlas.getLength() && (atlas.getCity(i) != city || atlas.getState(i) != state)) ++i;
    EXPECT_NEAR(Latitude(i), latitude, 0.1) << city;
    EXPECT_NEAR(Longitude(i), longitude, 0.1) << city;
  }
}

}  // namespace
}  // namespace atlas
