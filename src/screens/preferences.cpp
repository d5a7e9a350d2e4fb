#include "screens/preferences.h"

#include <array>
#include <string>

#include "atlas/place_texts.h"
#include "foundation/error.h"
#include "words/clock_text.h"

namespace screens {
namespace {

using atlas::ClockChoice;
using atlas::PlaceClock;

// In the order of ClockChoice.
struct Choice {
  const char* name;
  const char* meaning;
};
constexpr std::array<Choice, 2> kClockChoices = {
    {{"The place's own clock",
      "Times follow the time zone of the place, with its daylight saving and its history."},
     {"The country's one zone",
      "Times follow one zone for the whole country, without daylight saving."}}};

std::string_view SourceOf(const PlaceClock& clock) {
  switch (clock.source) {
    case PlaceClock::Source::Chosen:
      return "chosen by you";
    case PlaceClock::Source::Place:
      return "the place's own";
    case PlaceClock::Source::Neighbour:
      return "from the nearest place";
    case PlaceClock::Source::Country:
      break;
  }
  return "the country's; the zone of the place is not known";
}

}  // namespace

Preferences::Preferences(Services services, ZoneList& zones)
    : ScaledForm("Preferences", "Preferences", preferences_layout::kWidth,
                 preferences_layout::kHeight),
      services_(services),
      zones_(zones) {
  backColour = palette::kPaper;
  for (const Choice& choice : kClockChoices) ClockChoices.items->AddItem(choice.name);
  ClockChoices.onClick = [this] { ClockChoices_Click(); };
  ChooseZone.onClick = [this] { ChooseZone_Click(); };
  Defaults.onClick = [this] { Defaults_Click(); };
  Close.onClick = [this] { Close_Click(); };
}

void Preferences::Form_Load() {
  ScaledForm::Form_Load();
  activeControl = &ClockChoices;
  ShowSettings();
}

void Preferences::Form_KeyDown(forms::KeyPress& press) {
  press.handled = press.key == forms::Key::Escape;
  if (press.handled) Close_Click();
}

void Preferences::ClockChoices_Click() {
  const auto choice = static_cast<ClockChoice>(ClockChoices.items->ListIndex());
  Save([&] { atlas::SaveClockChoice(services_.settings, choice); });
}

void Preferences::ChooseZone_Click() {
  const atlas::PlaceTexts place = atlas::DefaultPlace(services_.settings);
  zones_.Load(atlas::ClockOfPlace(services_.settings, place).zone);
  services_.host.ShowModal(zones_, *this);
  if (!zones_.Answer()) return;
  Save([&] { atlas::SaveChosenZone(services_.settings, place, *zones_.Answer()); });
}

void Preferences::Defaults_Click() {
  Save([&] {
    atlas::SaveClockChoice(services_.settings, ClockChoice::Own);
    atlas::SaveChosenZone(services_.settings, atlas::DefaultPlace(services_.settings), "");
  });
}

void Preferences::Close_Click() {
  services_.host.Unload(*this);
}

void Preferences::Save(const std::function<void()>& save) {
  try {
    save();
  } catch (const foundation::Error& error) {
    ShowSettings();
    services_.boxes.Show(std::string("The setting was not saved: ") + error.what(),
                         foundation::MessageIcon::Critical);
    return;
  }
  ShowSettings();
}

void Preferences::ShowSettings() {
  const ClockChoice choice = atlas::ReadClockChoice(services_.settings);
  ClockChoices.items->SetListIndex(static_cast<int>(choice));
  ClockMeaning.caption = kClockChoices.at(static_cast<std::size_t>(choice)).meaning;
  ClockChoices.spokenText = ClockMeaning.caption;

  const atlas::PlaceTexts place = atlas::DefaultPlace(services_.settings);
  Place.caption = place.city + ", " + place.country;
  ChooseZone.enabled = choice == ClockChoice::Own;
  if (choice == ClockChoice::Country) {
    ShowZone(atlas::CountryClock(place), "the country's one zone");
  } else {
    const PlaceClock clock = atlas::ClockOfPlace(services_.settings, place);
    ShowZone(clock, SourceOf(clock));
  }
}

void Preferences::ShowZone(const PlaceClock& clock, std::string_view source) {
  const std::string utc = words::UtcText(clock.clock.OffsetAt(services_.clock.InstantNow()).east);
  Zone.caption = clock.zone.empty() || clock.zone == utc ? utc : clock.zone + ", " + utc;
  ZoneSource.caption = source;
  ChooseZone.spokenText = Place.caption + ": " + Zone.caption + ", " + ZoneSource.caption;
}

}  // namespace screens
