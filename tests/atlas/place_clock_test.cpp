// The clock of a place by the store's choice, a small index and the table of countries.
#include "atlas/place_clock.h"

#include <gtest/gtest.h>

#include <string>

#include "foundation/version.h"
#include "support/app_folder.h"
#include "support/machine_fakes.h"
#include "support/table.h"

namespace atlas {
namespace {

using namespace std::chrono;
using support::Row;

// Fields are minutes of arc; Atlantis has a zone that no system knows.
constexpr const char* kIndex =
    "state\tOne\n"
    "zone\tAmerica/New_York\tAmerica/Chicago\tEurope/Atlantis\n"
    "\n"
    "place\tstate\tlatitude\tlongitude\tzone\n"
    "New York\t1\t2443\t-4440\t1\n"
    "Chicago\t1\t2511\t-5259\t2\n"
    "Atlantis\t1\t1800\t-2400\t3\n";

const PlaceTexts kNewYork = {"USA", "New York(One)", "40.43N", "74.00W", "+5"};
const PlaceTexts kDelhi = {"India", "Delhi", "28.40N", "77.13E", "-5.30"};

struct PlaceClocks : testing::Test {
  PlaceClocks() { folder.Write("atlas/USA.index", kIndex); }

  void Store(std::string_view key, std::string_view value) {
    settings.SaveSetting(foundation::kProgramName, kClockSection, key, value);
  }
  std::string Clock(const PlaceTexts& place) { return Text(ClockOfPlace(settings, place)); }

  // "1 America/New_York -240": source, zone, and minutes east on 1 July 2026.
  static std::string Text(const PlaceClock& clock) {
    const auto east = clock.clock.OffsetAt(sys_days(2026y / 7 / 1)).east;
    return std::to_string(static_cast<int>(clock.source)) + " " + clock.zone + " " +
           std::to_string(duration_cast<minutes>(east).count());
  }

  support::FakeSettings settings;
  support::AppFolderScope folder;
};

TEST_F(PlaceClocks, AreTheirOwnTheirNeighboursOrTheirCountrys) {
  ExpectRows(
      [&](auto city, auto latitude, auto longitude) {
        return Clock({"USA", city, latitude, longitude, "+5"});
      },
      Row("New York(One)", "40.43N", "74.00W", "1 America/New_York -240"),
      Row("Home", "40.00N", "75.00W", "2 America/New_York -240"),
      Row("Home", "41.00N", "90.00W", "2 America/Chicago -300"),
      Row("Atlantis(One)", "30.00N", "40.00W", "3  -300"),
      Row("New York(One)", "40.43", "74.00W", "3  -300"), Row("New York(One)", "", "", "3  -300"));
  EXPECT_EQ(Clock(kDelhi), "3  330");  // has no index here
  EXPECT_EQ(Text(CountryClock(kNewYork)), "3  -300");
}

TEST_F(PlaceClocks, FollowTheZoneThatWasChosenForThem) {
  SaveChosenZone(settings, kNewYork, "Asia/Kathmandu");
  EXPECT_EQ(ChosenZone(settings, kNewYork), "Asia/Kathmandu");
  EXPECT_EQ(Clock(kNewYork), "0 Asia/Kathmandu 345");
  const auto other = [&](std::string PlaceTexts::*text, const char* value) {
    PlaceTexts place = kNewYork;
    place.*text = value;
    EXPECT_EQ(ChosenZone(settings, place), std::nullopt) << value;
    EXPECT_NE(Clock(place).front(), '0') << value;
  };
  other(&PlaceTexts::city, "New York(Two)");
  other(&PlaceTexts::latitude, "40.44N");
  other(&PlaceTexts::longitude, "74.00E");
  EXPECT_EQ(Clock(kDelhi), "3  330");

  SaveChosenZone(settings, kDelhi, "Asia/Kolkata");  // there is one choice only
  EXPECT_EQ(Clock(kDelhi), "0 Asia/Kolkata 330");
  EXPECT_EQ(Clock(kNewYork), "1 America/New_York -240");
  SaveChosenZone(settings, kDelhi, "");
  EXPECT_EQ(ChosenZone(settings, kDelhi), std::nullopt);
}

// As an older program's or an editor's store may be.
TEST_F(PlaceClocks, AreRightWhateverTheStoreHolds) {
  Store("zone", "Asia/Tokyo");  // for no place
  EXPECT_EQ(Clock(kNewYork), "1 America/New_York -240");
  for (const char* zone : {"Asia/Ujjain", "Asia", "asia/tokyo", "localtime", "/etc/localtime",
                           "file:localtime", "libc:localtime", "right/Asia/Tokyo", "zone.tab",
                           "Asia/../localtime", " Asia/Tokyo", "EDT, UTC-4", "+5"}) {
    SaveChosenZone(settings, kNewYork, zone);
    EXPECT_EQ(Clock(kNewYork), "1 America/New_York -240") << zone;
  }
}

TEST_F(PlaceClocks, OfCountriesAreThoseOfTheZoneText) {
  ExpectRows(
      [](auto country, auto zone) {
        return Text(CountryClock({country, "", "", "", zone}));
      },
      Row("India", "-5.30", "3  330"), Row("India", "+4", "3  -240"), Row("India", "3", "3  -180"),
      Row("India", "0", "3  0"), Row("India", "+0.20", "3  -20"), Row("India", "-5.45", "3  345"),
      Row("India", "-14", "3  840"), Row("India", "-23.59", "3  1439"),
      // No offset: the table's instead.
      Row("India", "", "3  330"), Row("usa", "five", "3  -360"), Row("India", "-24", "3  330"),
      Row("India", "-5.60", "3  330"), Row("India", "--5", "3  330"), Row("India", "5e9", "3  330"),
      Row("India", "-5.3.0", "3  330"), Row("India", ".", "3  330"),
      Row("India", "-123456", "3  330"), Row("Atlantis", "", "3  0"));
}

TEST_F(PlaceClocks, AreTheirOwnUnlessTheStoreSaysCountry) {
  EXPECT_EQ(ReadClockChoice(settings), ClockChoice::Own);
  SaveClockChoice(settings, ClockChoice::Country);
  EXPECT_EQ(ReadClockChoice(settings), ClockChoice::Country);
  SaveClockChoice(settings, ClockChoice::Own);
  EXPECT_EQ(ReadClockChoice(settings), ClockChoice::Own);
  Store("clock", "country");
  EXPECT_EQ(ReadClockChoice(settings), ClockChoice::Country);
  for (const char* text : {"", "own", "Delhi", "0"}) {
    Store("clock", text);
    EXPECT_EQ(ReadClockChoice(settings), ClockChoice::Own) << text;
  }
}

}  // namespace
}  // namespace atlas
