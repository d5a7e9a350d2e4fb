// The preferences and their list of zones, without a screen.

#include "screens/preferences.h"

#include <gtest/gtest.h>

#include "screens/zone_list.h"
#include "support/app_folder.h"
#include "support/dashboard.h"
#include "support/table.h"

namespace screens {
namespace {

using support::Row;

struct Store : support::FakeSettings {
  bool full = false;
  void SaveSettings(std::string_view application, std::string_view section,
                    std::span<const foundation::Setting> settings) override {
    if (full) throw foundation::Error(foundation::ErrorKind::FileAccess, "The disk is full");
    FakeSettings::SaveSettings(application, section, settings);
  }
};

// Latitude and longitude are minutes of arc.
constexpr const char* kIndex =
    "state\tDelhi\n"
    "zone\tAsia/Kolkata\n"
    "\n"
    "place\tstate\tlatitude\tlongitude\tzone\n"
    "Delhi\t1\t1720\t4633\t1\n";

struct PreferencesForm : testing::Test, protected Fakes {
  PreferencesForm() {
    folder.Write("atlas/India.index", kIndex);
    store.SaveSetting(foundation::kProgramName, "settings", "city", "Delhi(Delhi)");
    form.Form_Load();
  }

  // As the tick of the dashboard reads it.
  std::string Stored(std::string_view key) {
    return store.GetSetting(foundation::kProgramName, "clock", key, "");
  }

  // The rows of the window.
  std::string Shown() const {
    const forms::ItemList& choices = *form.ClockChoices.items;
    return std::string(choices.List(choices.ListIndex())) + " | " + form.Place.caption + ": " +
           form.Zone.caption + ", " + form.ZoneSource.caption +
           (form.ChooseZone.enabled ? "" : " (fixed)");
  }

  static void Press(ZoneList& list, forms::Key key) {
    forms::KeyPress press = {key};
    list.Form_KeyDown(press);
    if (!press.handled) list.Search_KeyDown(press);
  }

  // Opens the list, types the text and presses the key.
  void Search(const char* text, forms::Key key) {
    host.whileModal = [=, this] {
      SetText(zones.Search, text);
      Press(zones, key);
    };
    form.ChooseZone.onClick();
  }

  support::AppFolderScope folder;
  Store store;
  Services own{clock, store, session, boxes, browser, host};
  ZoneList zones{clock, host};
  Preferences form{own, zones};
};

constexpr const char* kDelhi =
    "The place's own clock | Delhi(Delhi), India: Asia/Kolkata, UTC+5:30, the place's own";

TEST_F(PreferencesForm, ShowTheZoneOfTheDefaultPlaceAndWhereItComesFrom) {
  EXPECT_EQ(Shown(), kDelhi);
  const auto shownAt = [&](auto country, auto city, auto latitude, auto zone) {
    for (const auto& [key, value] :
         {std::pair("country", country), {"city", city}, {"lat", latitude}, {"zonetime", zone}}) {
      store.SaveSetting(foundation::kProgramName, "settings", key, value);
    }
    form.Form_Load();
    return Shown();
  };
  const std::string choice = "The place's own clock | ";
  ExpectRows(
      shownAt,
      Row("India", "Home", "28.41N", "-5.30",
          choice + "Home, India: Asia/Kolkata, UTC+5:30, from the nearest place"),
      Row("Nepal", "Patan", "27.40N", "-5.45",
          choice + "Patan, Nepal: UTC+5:45, the country's; the zone of the place is not known"));
}

TEST_F(PreferencesForm, KeepTheChosenClockAtOnce) {
  Choose(form.ClockChoices, 1);
  EXPECT_EQ(Stored("clock"), "country");
  EXPECT_EQ(
      Shown(),
      "The country's one zone | Delhi(Delhi), India: UTC+5:30, the country's one zone (fixed)");
  EXPECT_NE(form.ClockMeaning.caption.find("without daylight saving"), std::string::npos);
  EXPECT_EQ(form.ClockChoices.spokenText, form.ClockMeaning.caption);
  Choose(form.ClockChoices, 0);
  EXPECT_EQ(Stored("clock"), "own");
  EXPECT_EQ(Shown(), kDelhi);
}

TEST_F(PreferencesForm, KeepTheChosenZoneForThePlaceOnly) {
  Search("york", forms::Key::Enter);
  EXPECT_EQ(host.calls,
            (std::vector<std::string>{"ShowModal ZoneList of Preferences", "Unload ZoneList"}));
  EXPECT_EQ(Stored("zone") + Stored("zonecity"), "America/New_YorkDelhi(Delhi)");
  const std::string chosen =  // on 5 March 2011
      "The place's own clock | Delhi(Delhi), India: America/New_York, UTC-5, chosen by you";
  EXPECT_EQ(Shown(), chosen);
  EXPECT_NE(form.ChooseZone.spokenText.find("America/New_York"), std::string::npos);
  Search("kolk", forms::Key::Escape);
  EXPECT_EQ(Shown(), chosen);
  Search("no such zone", forms::Key::Enter);  // finds none to choose, and is closed otherwise
  EXPECT_EQ(Shown(), chosen);
  host.whileModal = [&] { zones.PlacesZone.onClick(); };
  form.ChooseZone.onClick();
  EXPECT_EQ(Shown(), kDelhi);
}

TEST_F(PreferencesForm, GoBackToTheirDefaults) {
  Search("york", forms::Key::Enter);
  Choose(form.ClockChoices, 1);
  form.Defaults.onClick();
  EXPECT_EQ(Shown(), kDelhi);
  EXPECT_EQ(Stored("clock") + Stored("zone"), "own");
}

TEST_F(PreferencesForm, UndoWhatCannotBeSavedAndSaySo) {
  store.full = true;
  Choose(form.ClockChoices, 1);
  Search("york", forms::Key::Enter);
  form.Defaults.onClick();
  EXPECT_EQ(Shown(), kDelhi);
  ASSERT_EQ(boxes.shown.size(), 3U);
  for (const auto& box : boxes.shown) {
    EXPECT_EQ(box.text, "The setting was not saved: The disk is full");
  }
}

TEST_F(PreferencesForm, CloseByEscapeOrTheirButton) {
  forms::KeyPress press = {forms::Key::Escape};
  form.Form_KeyDown(press);
  form.Close.onClick();
  EXPECT_TRUE(press.handled);
  EXPECT_EQ(host.calls, std::vector<std::string>(2, "Unload Preferences"));
}

struct ZoneSearch : PreferencesForm {
  ZoneSearch() { zones.Load("Europe/London"); }
  std::string Selected() const {
    const int at = zones.Zones.items->ListIndex();
    return at < 0 ? "none" : std::string(zones.Zones.items->List(at));
  }
};

TEST_F(ZoneSearch, FindsAnyPartOfAName) {
  EXPECT_EQ(Selected() + ", " + zones.Offset.caption, "Europe/London, Now GMT, UTC");
  const auto found = [&](const char* text) {
    SetText(zones.Search, text);
    return Selected() + ": " + zones.Search.trailing;
  };
  ExpectRows(found, Row("york", "America/New_York: 1 zone"), Row("KOLK", "Asia/Kolkata: 1 zone"),
             Row("new  YORK ", "America/New_York: 1 zone"),
             Row("indiana knox", "America/Indiana/Knox: 1 zone"), Row("utc", "UTC: 1 zone"),
             Row("xyz", "none: no match"));
  EXPECT_FALSE(zones.Accept.enabled);
  EXPECT_EQ(zones.Offset.caption, "");
  Press(zones, forms::Key::Enter);
  EXPECT_TRUE(host.calls.empty());
  EXPECT_EQ(found("europe").substr(0, 15), "Europe/London: ");  // the zone in use, if it is found
  EXPECT_EQ(found("").substr(0, 15), "Europe/London: ");
}

TEST_F(ZoneSearch, MovesOnInTheListByArrows) {
  SetText(zones.Search, "asia/ka");
  ASSERT_EQ(Selected(), "Asia/Kabul");
  Press(zones, forms::Key::Down);
  EXPECT_EQ(zones.activeControl, &zones.Zones);
  EXPECT_EQ(Selected() + ", " + zones.Offset.caption, "Asia/Kamchatka, Now UTC+11");
  for (int i = 0; i < 5; ++i) Press(zones, forms::Key::Up);
  EXPECT_EQ(Selected(), "Asia/Kabul");
}

TEST_F(ZoneSearch, LeavesEnterToItsButtons) {
  zones.activeControl = &zones.PlacesZone;
  Press(zones, forms::Key::Enter);
  EXPECT_FALSE(zones.Answer());
  EXPECT_TRUE(host.calls.empty());
  Press(zones, forms::Key::Escape);
  EXPECT_FALSE(zones.Answer());
  zones.Load("");
  EXPECT_EQ(Selected(), "none");
  Select(zones.Zones, 0);
  zones.Zones.onDoubleClick();
  EXPECT_EQ(zones.Answer(), "Africa/Abidjan");
}

}  // namespace
}  // namespace screens
