// The city files and indexes from the build, compared with the tables of places and published data.
#include <gtest/gtest.h>

#include <filesystem>

#include "atlas/clsAtlas.h"
#include "atlas/getCountryZone.h"
#include "atlas/index_file.h"
#include "atlas/zone_index.h"
#include "engine/place_decoding.h"
#include "foundation/files.h"
#include "foundation/folders.h"
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
      ASSERT_EQ(std::tuple(indexed("place"), indexed("state"), indexed("iso"), indexed("zone"),
                           indexed("population")),
                std::tuple(given[0], given[1], given[4], given[5], given[6]));
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

// By the comments in tzdata's zone.tab, which name the region of each zone. The atlas has each
// place as the picker hands it on.
TEST_F(AtlasData, KnowsTheZonesOfPlaces) {
  const struct {
    const char* country;
    std::vector<std::pair<const char*, const char*>> zones;
  } countries[] = {
      {"Australia", {{"Broken Hill(New South Wales)", "Australia/Broken_Hill"}}},
      {"Brazil",
       {{"Eirunepe(Amazonas)", "America/Eirunepe"},
        {"Fernando de Noronha (Distrito Estadual)(Pernambuco)", "America/Noronha"}}},
      {"Canada",
       {{"Antigonish(Nova Scotia)", "America/Halifax"},
        {"Creston(British Columbia)", "America/Creston"},
        {"Swift Current(Saskatchewan)", "America/Swift_Current"},
        {"Sydney(Nova Scotia)", "America/Glace_Bay"}}},
      {"Chile",
       {{"Coyhaique(Aysen)", "America/Coyhaique"}, {"Hanga Roa(Valparaiso)", "Pacific/Easter"}}},
      {"Cyprus",
       {{"Kyrenia(Keryneia)", "Asia/Famagusta"}, {"Paralimni(Ammochostos)", "Asia/Nicosia"}}},
      {"French Polynesia", {{"Atuona(Iles Marquises)", "Pacific/Marquesas"}}},
      {"Germany", {{"Busingen(Baden-Wurttemberg)", "Europe/Busingen"}}},
      {"India", {{"Ujjain(Madhya Pradesh)", "Asia/Kolkata"}}},
      {"Indonesia", {{"Ambon(Maluku)", "Asia/Jayapura"}}},
      {"Kiribati", {{"Banana Village(Line Islands)", "Pacific/Kiritimati"}}},
      {"Malaysia", {{"Kota Kinabalu(Sabah)", "Asia/Kuching"}}},
      {"Mexico",
       {{"Bucerias(Nayarit)", "America/Bahia_Banderas"},
        {"Manuel Benavides(Chihuahua)", "America/Ojinaga"},
        {"Nava(Coahuila)", "America/Matamoros"}}},
      {"Mongolia",
       {{"Ulaangom(Uvs Province)", "Asia/Hovd"}, {"Uliastay(Dzabkhan)", "Asia/Ulaanbaatar"}}},
      {"New Zealand", {{"Waitangi(Chatham Islands)", "Pacific/Chatham"}}},
      {"Portugal", {{"Ponta Delgada(Azores)", "Atlantic/Azores"}}},
      {"Russia",
       {{"Khandyga(Sakha)", "Asia/Khandyga"},
        {"Severo-Kuril'sk(Sakhalin Oblast)", "Asia/Srednekolymsk"},
        {"Ust-Nera(Sakha)", "Asia/Ust-Nera"}}},
      {"Spain", {{"Melilla(Melilla)", "Africa/Ceuta"}}},
      {"USA",
       {{"Beulah(North Dakota)", "America/North_Dakota/Beulah"},
        {"Menominee(Michigan)", "America/Menominee"},
        {"Tell City(Indiana)", "America/Indiana/Tell_City"},
        {"Vincennes(Indiana)", "America/Indiana/Vincennes"}}},
      {"Zaire", {{"Lubumbashi(Haut-Katanga)", "Africa/Lubumbashi"}}},
  };
  for (const auto& [country, zones] : countries) {
    atlas.LoadCities(country, nullptr);
    for (const auto& [label, expected] : zones) {
      std::int16_t i = 1;
      while (i <= atlas.getLength() && atlas.getCity(i) + "(" + atlas.getState(i) + ")" != label) {
        ++i;
      }
      const auto zone = ZoneOfPlace(country, label, atlas.getLat(i), atlas.getLong(i));
      ASSERT_TRUE(zone && zone->exact) << label;
      EXPECT_EQ(zone->name, expected) << label;
    }
  }
}

}  // namespace
}  // namespace atlas
