// The city files and indexes from the build, compared with the tables of places and published data.

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
#include "support/test.h"

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
      ASSERT_NEAR(index.Number(index.Column("latitude")), Latitude(i) * 60, 1e-6) << row;
      ASSERT_NEAR(index.Number(index.Column("longitude")), Longitude(i) * 60, 1e-6) << row;
    }
    EXPECT_FALSE(index.Next()) << country;
    EXPECT_EQ(atlas.getLength(), i) << country;
  }
  EXPECT_GE(records, 200'000);
}

// By the comments in tzdata's zone.tab, which name the region of each zone.
TEST_F(AtlasData, KnowsTheZonesOfPlaces) {
  // Of a place by its label in the picker, "Delhi(Delhi)".
  const auto zoneOf = [&](const char* country, std::string_view label) {
    atlas.LoadCities(country, nullptr);
    std::int16_t i = 1;
    while (i <= atlas.getLength() && atlas.getCity(i) + "(" + atlas.getState(i) + ")" != label) ++i;
    const PlaceZone zone = ZoneOfPlace(country, label, atlas.getLat(i), atlas.getLong(i)).value();
    EXPECT_TRUE(zone.exact) << label;
    return zone.name;
  };
  ExpectRows(
      zoneOf, Row("Australia", "Broken Hill(New South Wales)", "Australia/Broken_Hill"),
      Row("Brazil", "Fernando de Noronha (Distrito Estadual)(Pernambuco)", "America/Noronha"),
      Row("Canada", "Sydney(Nova Scotia)", "America/Glace_Bay"),
      Row("Chile", "Coyhaique(Aysen)", "America/Coyhaique"),
      Row("Chile", "Hanga Roa(Valparaiso)", "Pacific/Easter"),
      Row("Cyprus", "Kyrenia(Keryneia)", "Asia/Famagusta"),
      Row("French Polynesia", "Atuona(Iles Marquises)", "Pacific/Marquesas"),
      Row("Germany", "Busingen(Baden-Wurttemberg)", "Europe/Busingen"),
      Row("Indonesia", "Ambon(Maluku)", "Asia/Jayapura"),
      Row("Kiribati", "Banana Village(Line Islands)", "Pacific/Kiritimati"),
      Row("Mexico", "Bucerias(Nayarit)", "America/Bahia_Banderas"),
      Row("Mexico", "Manuel Benavides(Chihuahua)", "America/Ojinaga"),
      Row("Mongolia", "Ulaangom(Uvs Province)", "Asia/Hovd"),
      Row("New Zealand", "Waitangi(Chatham Islands)", "Pacific/Chatham"),
      Row("Portugal", "Ponta Delgada(Azores)", "Atlantic/Azores"),
      Row("Russia", "Severo-Kuril'sk(Sakhalin Oblast)", "Asia/Srednekolymsk"),
      Row("Spain", "Melilla(Melilla)", "Africa/Ceuta"),
      Row("USA", "Beulah(North Dakota)", "America/North_Dakota/Beulah"),
      Row("USA", "Tell City(Indiana)", "America/Indiana/Tell_City"),
      Row("Zaire", "Lubumbashi(Haut-Katanga)", "Africa/Lubumbashi"));
}

}  // namespace
}  // namespace atlas
