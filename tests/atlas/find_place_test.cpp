// Places by name, in small indexes, and by their texts.
#include "atlas/find_place.h"

#include <cmath>

#include "atlas/name_key.h"
#include "atlas/place_texts.h"
#include "support/app_folder.h"
#include "support/test.h"

namespace atlas {
namespace {

TEST(NameKey, LeavesCaseMarksAndSignsAside) {
  ExpectRows([](std::string_view name) { return NameKey(name); }, Row("São Paulo", "sao paulo"),
             Row("ŁÓDŹ", "lodz"), Row("Straße", "strasse"), Row("Þórshöfn", "thorshofn"),
             Row("I\u0307zmir", "izmir"), Row("Ṭhāṇe", "thane"), Row("St. John’s", "st johns"),
             Row("  Washington - D.C.", "washington d c"), Row("दिल्ली", "दिल्ली"), Row("7LC", "7lc"),
             Row("\xFF", ""));
}

struct FindPlace : testing::Test {
  FindPlace() {
    const std::string head = "place\tstate\tlatitude\tlongitude\tiso\tzone\tpopulation\n";
    Country("USA",
            "state\tMissouri\tIllinois\tNew Jersey\tHawaii\niso\tUS\n"
            "zone\tAmerica/Chicago\tAmerica/New_York\tPacific/Honolulu\n\n" +
                head +
                "Springfield\t2\t2387\t-5379\t1\t1\t116565\n"
                "Springfield\t1\t2233\t-5597\t1\t1\t166810\n"
                "Springfield\t3\t2400\t-4440\t1\t2\t0\n"
                "'Aiea\t4\t1283\t-9476\t1\t3\t9338\n");
    Country("Yugoslavia",
            "state\tZagreb - Croatia\tCentral Serbia\niso\tHR\tRS\n"
            "zone\tEurope/Zagreb\tEurope/Belgrade\n\n" +
                head +
                "Zagreb\t1\t2749\t959\t1\t1\t663592\n"
                "Springfield\t2\t2689\t1228\t2\t2\t5\n");
    Country("Germany", "state\tNRW\niso\tDE\nzone\tEurope/Berlin\n\n" + head +
                           "Koeln\t1\t3056\t417\t1\t1\t963395\nJulich\t1\t3055\t382\t1\t1\t1\n");
    Country("Broken", head);
  }

  void Country(const std::string& name, const std::string& index) const {
    folder.Write("atlas/" + name + ".city", "");
    folder.Write("atlas/" + name + ".index", index);
  }
  // The states, or the names of places that have no namesake.
  static std::string Found(const char* name, const char* state, const char* country) {
    std::string text;
    for (const Place& place : PlacesNamed({name, state, country})) {
      text += (place.name == "Springfield" ? place.state : place.name + ", " + place.country) + ";";
    }
    return text;
  }

  support::AppFolderScope folder;
};

TEST_F(FindPlace, HasTheMostPopulousFirst) {
  ExpectRows(Found, Row("springfield", "", "", "Missouri;Illinois;Central Serbia;New Jersey;"),
             Row("Springfield", "", "usa", "Missouri;Illinois;New Jersey;"),
             Row("Springfield", "", "us", "Missouri;Illinois;New Jersey;"),
             Row("Springfield", "", "RS", "Central Serbia;"),
             Row("Springfield", "", "Yugoslavia", "Central Serbia;"),
             Row("Springfield", "new jersey", "", "New Jersey;"),
             Row("Springfield", "Jersey", "", ""), Row("Springfield", "", "Atlantis", ""),
             Row("Spring", "", "", ""));
}

TEST_F(FindPlace, ComparesNamesAsKeys) {
  ExpectRows(Found, Row("Köln", "", "", "Koeln, Germany;"), Row("KOELN", "", "", "Koeln, Germany;"),
             Row("Jülich", "", "", "Julich, Germany;"), Row("Koln", "", "", ""),
             Row("ʻAiea", "", "", "'Aiea, USA;"), Row("aiea", "", "", "'Aiea, USA;"),
             Row("Zagreb", "Croatia", "", "Zagreb, Yugoslavia;"),
             Row("Zagreb", "zagreb", "", "Zagreb, Yugoslavia;"),
             Row("Zagreb", "Zagreb - Croatia", "", "Zagreb, Yugoslavia;"));
}

// "Delhi|Delhi|1720|4633", in minutes of arc; "none" for texts that are no place.
TEST(PlaceTexts, AreReadAsDegreesAndMinutesAndWrittenAgain) {
  const auto described = [](const char* city, const char* latitude, const char* longitude) {
    const PlaceTexts texts = {"India", city, latitude, longitude, "-5.30"};
    const auto place = PlaceOfTexts(texts);
    if (!place) return std::string("none");
    EXPECT_EQ(TextsOfPlace(*place), texts) << city;
    return place->name + "|" + place->state + "|" +
           std::to_string(std::lround(place->latitude * 60)) + "|" +
           std::to_string(std::lround(place->longitude * 60));
  };
  ExpectRows(
      described, Row("Delhi(Delhi)", "28.40N", "77.00E", "Delhi|Delhi|1720|4620"),
      Row("Lima", "12.03S", "77.02W", "Lima||-723|-4622"), Row("", "0.30S", "0.01W", "||-30|-1"),
      Row("4 Arm (Kharwali)(Rajasthan)", "90.00N", "180.00W",
          "4 Arm (Kharwali)|Rajasthan|5400|-10800"),
      Row("Chita(Zabaykalskiy (Transbaikal) Kray)", "52.02N", "113.30E",
          "Chita|Zabaykalskiy (Transbaikal) Kray|3122|6810"),
      Row("Odd)", "1.00N", "1.00E", "Odd)||60|60"),
      Row("(Delhi)", "1.00N", "1.00E", "(Delhi)||60|60"), Row("Delhi", "28.40", "77.13E", "none"),
      Row("Delhi", "28.40E", "77.13E", "none"), Row("Delhi", "-28.40N", "77.13E", "none"),
      Row("Delhi", "90.01N", "77.13E", "none"), Row("Delhi", "28.40N", "180.01E", "none"),
      Row("Delhi", "28.40N", "E", "none"), Row("Delhi", "nanN", "77.13E", "none"),
      Row("Delhi", "28.40N", "1E999E", "none"), Row("Delhi", "28.40N", "99999999999E", "none"));
}

}  // namespace
}  // namespace atlas
