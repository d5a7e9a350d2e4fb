// A dashboard with fake services, also used for other forms.
#pragma once

#include "foundation/version.h"
#include "screens/dashboard_tick.h"
#include "screens/frmMain.h"
#include "screens/place_labels.h"
#include "support/machine_fakes.h"
#include "support/screen_fakes.h"

namespace screens {

// The texts, each followed by a blank.
std::string Words(const auto&... texts) {
  return ((std::string(texts) + " ") + ...);
}

// The captions of a form's place labels, in the order of the settings.
std::string PlaceOf(auto& form) {
  std::string place;
  for (const forms::Control* label : PlaceLabelsOf(form)) place += label->caption + " ";
  return place;
}

struct Fakes {
  Fakes() { clock.now = foundation::DateFromParts(2011, 3, 5) + 0.5; }

  support::FakeClock clock;
  support::FakeSettings settings;
  support::FakeMessageBoxes boxes;
  support::FakeBrowser browser;
  support::FakeHost host;
  foundation::SessionTable session;
  Services services{clock, settings, session, boxes, browser, host};

  void SaveDefault(std::string_view key, std::string_view value) {
    settings.SaveSetting(foundation::kProgramName, "settings", key, value);
  }
};

struct Dashboard : Fakes {
  frmMain form{services};

  void TickAt(int year, int month, int day, int hour, int minute, int second) {
    clock.now = foundation::DateFromParts(year, month, day) +
                foundation::TimeFromParts(hour, minute, second);
    form.Timer1_Timer();
  }

  // Sunrise, sunset and Durvela as displayed.
  std::string Figures() const {
    return form.lblSR.caption + " " + form.lblSS.caption + " " + form.lblDurvela.caption;
  }
};

}  // namespace screens
