// The clock of a place by the user's choice, a small index and the table of countries.
#include "atlas/place_clock.h"

#include <string>

#include "foundation/version.h"
#include "support/app_folder.h"
#include "support/machine_fakes.h"
#include "support/test.h"

namespace atlas {
namespace {

using namespace std::chrono;

// With a column that the reader does not know, and a zone that no system knows.
const std::string kHead =
    "state\tNorth\tSouth\n"
    "zone\tEurope/Oslo\tEurope/Moscow\tPacific/Fiji\tPacific/Apia\tAsia/Kolkata\tAsia/Atlantis\n"
    "\n"
    "place\tstate\tpeople\tlatitude\tlongitude\tzone\n";
const std::string kPlaces =
    "Kautokeino\t1\t9\t4200\t1200\t1\n"  // 70 N 20 E
    "Kem\t1\t9\t3960\t1500\t2\n"         // 66 N 25 E
    "Apia\t2\t9\t-960\t-10770\t4\n"      // 16 S 179:30 W
    "Labasa\t2\t9\t-960\t10620\t3\n"     // 16 S 177 E
    "Twin\t1\t9\t1704\t4633\t2\n"        // 28:24 N 77:13 E
    "Delhi\t1\t9\t1720\t4633\t5\n"       // 28:40 N 77:13 E
    "Twin (New)\t2\t9\t1720\t4633\t3\n"  // at the same spot
    "Zero Island\t2\t9\t0\t27\t4\n"      // 0:27 E
    "Ship\t2\t9\t0\t1619\t5\n"           // 26:59 E
    "Atlantis\t1\t9\t1800\t-2400\t6\n";  // 30 N 40 W

struct PlaceClocks : testing::Test {
  PlaceClocks() { WriteIndex(kHead + kPlaces); }

  void WriteIndex(std::string_view index) const { folder.Write("atlas/USA.index", index); }
  void Store(std::string_view key, std::string_view value) {
    settings.SaveSetting(foundation::kProgramName, kClockSection, key, value);
  }
  std::string Clock(const PlaceTexts& place) { return Text(ClockOfPlace(settings, place)); }
  std::string ClockAt(const char* city, const char* latitude, const char* longitude) {
    return Clock({"USA", city, latitude, longitude, "+5"});
  }

  // "1 Asia/Kolkata 330": source, zone, and minutes east on 1 July 2026.
  static std::string Text(const PlaceClock& clock) {
    const auto east = clock.clock.OffsetAt(sys_days(2026y / 7 / 1)).east;
    return std::to_string(static_cast<int>(clock.source)) + " " + clock.zone + " " +
           std::to_string(duration_cast<minutes>(east).count());
  }

  const PlaceTexts delhi = {"USA", "Delhi(North)", "28.40N", "77.13E", "+5"};
  support::FakeSettings settings;
  support::AppFolderScope folder;
};

TEST_F(PlaceClocks, AreTheirOwnTheirNeighboursOrTheirCountrys) {
  ExpectRows(
      [&](auto... texts) { return ClockAt(texts...); },
      Row("Delhi(North)", "28.40N", "77.13E", "1 Asia/Kolkata 330"),
      Row("Twin (New)(South)", "28.40N", "77.13E", "1 Pacific/Fiji 720"),
      Row("Apia(South)", "16.00S", "179.30W", "1 Pacific/Apia 780"),
      Row("Delhi(South)", "28.40N", "77.13E", "2 Asia/Kolkata 330"),
      Row("Delhi", "28.45N", "77.13E", "1 Asia/Kolkata 330"),
      Row("Delhi", "28.46N", "77.13E", "2 Asia/Kolkata 330"),
      Row("Delh", "28.40N", "77.13E", "2 Asia/Kolkata 330"),
      Row("Delhi(Northx", "28.40N", "77.13E", "2 Asia/Kolkata 330"),
      Row("Delhi(North))", "28.40N", "77.13E", "2 Asia/Kolkata 330"),
      // The namesake counts, though another place is nearer.
      Row("Twin (New)(South)", "28.38N", "77.13E", "1 Pacific/Fiji 720"),
      Row("Twin", "28.26N", "77.13E", "1 Europe/Moscow 180"),
      // Minutes are no decimals: 28:30 is nearer to 28:24 than to 28:40.
      Row("", "28.30N", "77.13E", "2 Europe/Moscow 180"),
      // Eight degrees of longitude at 70 north are 2.7 of arc, but four of latitude are four.
      Row("", "70.00N", "28.00E", "2 Europe/Oslo 120"),
      Row("", "16.00S", "179.50E", "2 Pacific/Apia 780"),  // over the date line
      Row("", "0.00N", "27.00E", "2 Asia/Kolkata 330"),    // not 27 minutes
      Row("Atlantis(North)", "30.00N", "40.00W", "3  -300"),
      Row("Delhi(North)", "28.40", "77.13E", "3  -300"), Row("Delhi(North)", "", "", "3  -300"));
  EXPECT_EQ(Text(CountryClock(delhi)), "3  -300");
}

TEST_F(PlaceClocks, AreTheirCountrysIfTheIndexIsBrokenOrMissing) {
  for (const std::string& broken :
       {std::string(), kHead, kHead.substr(0, 20), "\n" + kPlaces, kHead + "\n",
        kHead + "Delhi\t1\t9\t1720\t4633\t7\n", kHead + "Delhi\t1\t9\tx\t4633\t5\n",
        kHead + "Delhi\t1\t9\t1720\t4633\t5\t5\n", kHead + "Delhi\t1\t9\t1720\t4633\t5"}) {
    WriteIndex(broken);
    EXPECT_EQ(Clock(delhi), "3  -300") << broken;
  }
  EXPECT_EQ(Clock({"Nepal", "Delhi(North)", "28.40N", "77.13E", "-5.45"}), "3  345");
}

TEST_F(PlaceClocks, FollowTheZoneThatWasChosenForThem) {
  SaveChosenZone(settings, delhi, "Asia/Kathmandu");
  ExpectRows([&](auto... texts) { return ClockAt(texts...).substr(0, 7); },
             Row("Delhi(North)", "28.40N", "77.13E", "0 Asia/"),
             Row("Delhi(South)", "28.40N", "77.13E", "2 Asia/"),
             Row("Delhi(North)", "28.41N", "77.13E", "1 Asia/"),
             Row("Delhi(North)", "28.40N", "77.14E", "1 Asia/"));
  EXPECT_EQ(Clock(delhi), "0 Asia/Kathmandu 345");
  SaveChosenZone(settings, {"USA", "Home", "1.00N", "1.00E", ""}, "Asia/Tokyo");
  EXPECT_EQ(Clock(delhi), "1 Asia/Kolkata 330");  // there is one choice only
  SaveChosenZone(settings, delhi, "");
  EXPECT_EQ(ChosenZone(settings, delhi), std::nullopt);
}

// As an older program's or an editor's store may be.
TEST_F(PlaceClocks, AreRightWhateverTheStoreHolds) {
  Store("zone", "Asia/Tokyo");  // for no place
  EXPECT_EQ(Clock(delhi), "1 Asia/Kolkata 330");
  for (const char* zone : {"Asia/Ujjain", "Asia", "localtime", "EDT, UTC-4", "+5"}) {
    SaveChosenZone(settings, delhi, zone);
    EXPECT_EQ(Clock(delhi), "1 Asia/Kolkata 330") << zone;
  }
  const auto choice = [&](const char* text) {
    Store("clock", text);
    return ReadClockChoice(settings);
  };
  ExpectRows(choice, Row("country", ClockChoice::Country), Row("", ClockChoice::Own),
             Row("Delhi", ClockChoice::Own));
}

TEST_F(PlaceClocks, OfCountriesAreThoseOfTheZoneText) {
  const auto clock = [](auto country, auto zone) {
    return Text(CountryClock({country, "", "", "", zone}));
  };
  ExpectRows(clock, Row("India", "-5.45", "3  345"), Row("India", "3", "3  -180"),
             Row("India", "+0.20", "3  -20"), Row("India", "-23.59", "3  1439"),
             // No offset: the table's instead.
             Row("India", "", "3  330"), Row("usa", "five", "3  -360"),
             Row("India", "-24", "3  330"), Row("India", "-5.60", "3  330"),
             Row("India", "--5", "3  330"), Row("India", "5e9", "3  330"),
             Row("India", "-5.3.0", "3  330"), Row("India", "-12345678901", "3  330"),
             Row("Atlantis", "", "3  0"));
}

}  // namespace
}  // namespace atlas
