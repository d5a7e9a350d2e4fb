// Finding places by name, in small indexes.
#include "atlas/find_place.h"

#include <gtest/gtest.h>

#include "atlas/name_key.h"
#include "support/app_folder.h"
#include "support/table.h"

namespace atlas {
namespace {

using support::Row;

TEST(NameKey, LeavesCaseMarksAndSignsAside) {
  ExpectRows([](std::string_view name) { return NameKey(name); }, Row("São Paulo", "sao paulo"),
             Row("TROMSØ", "tromso"), Row("Łódź", "lodz"), Row("Đắk Lắk", "dak lak"),
             Row("Straße", "strasse"), Row("Þórshöfn", "thorshofn"), Row("I\u0307zmir", "izmir"),
             Row("Ṭhāṇe", "thane"), Row("'Aiea", "aiea"), Row("ʻAiea", "aiea"),
             Row("St. John's", "st johns"), Row("St John’s", "st johns"),
             Row("Washington - D.C.", "washington d c"), Row("Washington, D.C.", "washington d c"),
             Row("  Edison  ", "edison"), Row("दिल्ली", "दिल्ली"), Row("7LC", "7lc"), Row("\xFF", ""),
             Row("?!", ""));
  ExpectRows([](std::string_view name) { return NameKey(name, Umlauts::Spelled); },
             Row("Köln", "koeln"), Row("Ålborg", "aalborg"), Row("MÜNCHEN", "muenchen"),
             Row("Märsta", "maersta"), Row("São Paulo", "sao paulo"));
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
                "Edison\t3\t2431\t-4465\t1\t2\t102548\n"
                "'Aiea\t4\t1283\t-9476\t1\t3\t9338\n");
    Country("Yugoslavia",
            "state\tZagreb - Croatia\tZagreb County - Croatia\tCentral Serbia\niso\tHR\tRS\n"
            "zone\tEurope/Zagreb\tEurope/Belgrade\n\n" +
                head +
                "Zagreb\t1\t2749\t959\t1\t1\t663592\n"
                "Springfield\t3\t2689\t1228\t2\t2\t5\n");
    Country("Germany", "state\tNRW\niso\tDE\nzone\tEurope/Berlin\n\n" + head +
                           "Koeln\t1\t3056\t417\t1\t1\t963395\nJulich\t1\t3055\t382\t1\t1\t1\n");
    Country("Broken", head);
  }

  void Country(const std::string& name, const std::string& index) const {
    folder.Write("atlas/" + name + ".city", "");
    folder.Write("atlas/" + name + ".index", index);
  }
  static std::string Found(const char* name, const char* state, const char* country) {
    std::string text;
    for (const Place& place : PlacesNamed({name, state, country})) {
      text += place.name + "," + place.state + "," + place.country + ";";
    }
    return text;
  }

  support::AppFolderScope folder;
};

TEST_F(FindPlace, HasTheMostPopulousFirst) {
  const std::string missouri = "Springfield,Missouri,USA;", illinois = "Springfield,Illinois,USA;";
  const std::string jersey = "Springfield,New Jersey,USA;";
  const std::string serbia = "Springfield,Central Serbia,Yugoslavia;";
  ExpectRows(Found, Row("springfield", "", "", missouri + illinois + serbia + jersey),
             Row("Springfield", "", "usa", missouri + illinois + jersey),
             Row("Springfield", "", "us", missouri + illinois + jersey),
             Row("Springfield", "", "RS", serbia), Row("Springfield", "", "Yugoslavia", serbia),
             Row("Springfield", "new jersey", "", jersey), Row("Springfield", "Jersey", "", ""),
             Row("Springfield", "", "HR", ""), Row("Springfield", "", "Atlantis", ""),
             Row("Spring", "", "", ""), Row("", "", "", ""), Row("'", "", "", ""));
}

TEST_F(FindPlace, ComparesNamesAsKeys) {
  ExpectRows(Found, Row("Köln", "", "", "Koeln,NRW,Germany;"),
             Row("KOELN", "nrw", "de", "Koeln,NRW,Germany;"),
             Row("Jülich", "", "", "Julich,NRW,Germany;"), Row("Koln", "", "", ""),
             Row("ʻAiea", "", "", "'Aiea,Hawaii,USA;"), Row("aiea", "", "", "'Aiea,Hawaii,USA;"),
             Row("Zagreb", "Croatia", "", "Zagreb,Zagreb - Croatia,Yugoslavia;"),
             Row("Zagreb", "Zagreb", "", "Zagreb,Zagreb - Croatia,Yugoslavia;"),
             Row("Zagreb", "Zagreb - Croatia", "", "Zagreb,Zagreb - Croatia,Yugoslavia;"));
  const Place edison = PlacesNamed({"Edison", "", ""}).at(0);
  EXPECT_DOUBLE_EQ(edison.latitude, 40 + 31 / 60.0);
  EXPECT_DOUBLE_EQ(edison.longitude, -(74 + 25 / 60.0));
  EXPECT_EQ(edison.zone, "America/New_York");
}

}  // namespace
}  // namespace atlas
