// The preferences and their list of zones, without a screen.

#include "screens/preferences.h"

#include "screens/zone_list.h"
#include "support/app_folder.h"
#include "support/dashboard.h"
#include "support/test.h"

namespace screens {
namespace {

struct Store : support::FakeSettings {
  bool full = false;
  void SaveSettings(std::string_view application, std::string_view section,
                    std::span<const foundation::Setting> settings) override {
    if (full) throw foundation::Error(foundation::ErrorKind::FileAccess, "The disk is full");
    FakeSettings::SaveSettings(application, section, settings);
  }
};

struct PreferencesForm : testing::Test, protected Fakes {
  PreferencesForm() {
    folder.Write("atlas/India.index",  // with minutes of arc
                 "state\tDelhi\nzone\tAsia/Kolkata\n\n"
                 "place\tstate\tlatitude\tlongitude\tzone\nDelhi\t1\t1720\t4633\t1\n");
    store.SaveSetting(foundation::kProgramName, "settings", "city", "Delhi(Delhi)");
    form.Form_Load();
  }

  // What the next tick of the dashboard reads, and the rows of the window.
  std::string Shown() {
    const bool own = atlas::ReadClockChoice(store) == atlas::ClockChoice::Own;
    EXPECT_EQ(form.ClockChoices.items->ListIndex(), own ? 0 : 1);
    EXPECT_EQ(form.ClockMeaning.caption.find("without daylight saving") == std::string::npos, own);
    EXPECT_EQ(form.ClockChoices.spokenText, form.ClockMeaning.caption);
    EXPECT_EQ(form.ChooseZone.enabled, own);
    return form.ChooseZone.spokenText;
  }

  static void Press(ZoneList& list, forms::Key key) {
    forms::KeyPress press = {key};
    list.Form_KeyDown(press);
    if (!press.handled) list.Search_KeyDown(press);
  }

  // Opens the list, types the text and presses the key.
  std::string Search(const char* text, forms::Key key) {
    host.whileModal = [=, this] {
      SetText(zones.Search, text);
      Press(zones, key);
    };
    form.ChooseZone.onClick();
    return Shown();
  }

  support::AppFolderScope folder;
  Store store;
  Services stored{clock, store, session, boxes, browser, host};
  ZoneList zones{clock, host};
  Preferences form{stored, zones};
};

constexpr const char* kDelhi = "Delhi(Delhi), India: Asia/Kolkata, UTC+5:30, the place's own";
constexpr const char* kChosen =  // on 5 March 2011
    "Delhi(Delhi), India: America/New_York, UTC-5, chosen by you";

TEST_F(PreferencesForm, KeepTheChosenClockAtOnce) {
  EXPECT_EQ(Shown(), kDelhi);
  Choose(form.ClockChoices, 1);
  EXPECT_EQ(Shown(), "Delhi(Delhi), India: UTC+5:30, the country's one zone");
  Search("york", forms::Key::Enter);
  form.Defaults.onClick();
  EXPECT_EQ(Shown(), kDelhi);
}

TEST_F(PreferencesForm, KeepTheChosenZoneForThePlaceOnly) {
  EXPECT_EQ(Search("york", forms::Key::Enter), kChosen);
  EXPECT_EQ(Search("kolk", forms::Key::Escape), kChosen);
  EXPECT_EQ(Search("no such zone", forms::Key::Enter), kChosen);
  const auto shownAt = [&](auto country, auto city) {
    store.SaveSetting(foundation::kProgramName, "settings", "country", country);
    store.SaveSetting(foundation::kProgramName, "settings", "city", city);
    form.Form_Load();
    return Shown();
  };
  ExpectRows(shownAt,
             Row("India", "Home", "Home, India: Asia/Kolkata, UTC+5:30, from the nearest place"),
             Row("Nepal", "Patan",
                 "Patan, Nepal: UTC+5:30, the country's; the zone of the place is not known"),
             Row("India", "Delhi(Delhi)", kChosen));
  host.whileModal = [&] { zones.PlacesZone.onClick(); };
  form.ChooseZone.onClick();
  EXPECT_EQ(Shown(), kDelhi);
}

TEST_F(PreferencesForm, UndoWhatCannotBeSavedAndSaySo) {
  store.full = true;
  Choose(form.ClockChoices, 1);
  EXPECT_EQ(Search("york", forms::Key::Enter), kDelhi);
  form.Defaults.onClick();
  ASSERT_EQ(boxes.shown.size(), 3U);
  EXPECT_EQ(boxes.shown[0].text, "The setting was not saved: The disk is full");
}

TEST_F(PreferencesForm, CloseByEscapeOrTheirButton) {
  forms::KeyPress press = {forms::Key::Escape};
  form.Form_KeyDown(press);
  form.Close.onClick();
  EXPECT_EQ(host.calls, std::vector<std::string>(2, "Unload Preferences"));
}

struct ZoneSearch : PreferencesForm {
  ZoneSearch() { zones.Load("Europe/London"); }
  std::string Found(const char* text) {
    SetText(zones.Search, text);
    return Selected() + zones.Search.trailing;
  }
  std::string Selected() const {
    const forms::ItemList& list = *zones.Zones.items;
    return (list.ListIndex() < 0 ? "none" : std::string(list.List(list.ListIndex()))) + "; " +
           zones.Offset.caption + "; ";
  }
};

TEST_F(ZoneSearch, FindsAnyPartOfAName) {
  EXPECT_EQ(Selected(), "Europe/London; Now GMT, UTC; ");
  ExpectRows([&](const char* text) { return Found(text); },
             Row("KOLK", "Asia/Kolkata; Now IST, UTC+5:30; 1 zone"),
             Row("indiana  KNOX ", "America/Indiana/Knox; Now CST, UTC-6; 1 zone"),
             Row("xyz", "none; ; no match"));
  EXPECT_FALSE(zones.Accept.enabled);
  EXPECT_EQ(Found("europe").substr(0, 14), "Europe/London;");  // the zone in use, if it is found
}

TEST_F(ZoneSearch, GoesOnInTheListByArrowsAndLeavesEnterToItsButtons) {
  SetText(zones.Search, "asia/ka");
  Press(zones, forms::Key::Down);
  EXPECT_EQ(zones.activeControl, &zones.Zones);
  EXPECT_EQ(Selected(), "Asia/Kamchatka; Now UTC+11; ");
  for (int i = 0; i < 5; ++i) Press(zones, forms::Key::Up);
  EXPECT_EQ(Selected().substr(0, 11), "Asia/Kabul;");
  zones.activeControl = &zones.PlacesZone;
  Press(zones, forms::Key::Enter);
  EXPECT_TRUE(host.calls.empty());
  zones.Load("");
  EXPECT_EQ(Selected(), "none; ; ");
  Select(zones.Zones, 0);
  zones.Zones.onDoubleClick();
  EXPECT_EQ(zones.Answer(), "Africa/Abidjan");
}

}  // namespace
}  // namespace screens
