// A dashboard on fakes.
#pragma once

#include "foundation/version.h"
#include "screens/dashboard_tick.h"
#include "screens/frmMain.h"
#include "support/machine_fakes.h"
#include "support/screen_fakes.h"

namespace screens {

struct Dashboard {
  support::FakeClock clock;
  support::FakeSettings settings;
  support::FakeMessageBoxes boxes;
  support::FakeBrowser browser;
  support::FakeHost host;
  foundation::SessionTable session;
  frmMain form{Services{clock, settings, session, boxes, browser, host}};

  void TickAt(int year, int month, int day, int hour, int minute, int second) {
    clock.now = foundation::DateFromParts(year, month, day) +
                foundation::TimeFromParts(hour, minute, second);
    form.Timer1_Timer();
  }

  void SaveDefault(std::string_view key, std::string_view value) {
    settings.SaveSetting(foundation::kProgramName, "settings", key, value);
  }

  // Sunrise, sunset and Durvela as they stand.
  std::string Figures() const {
    return form.lblSR.caption + " " + form.lblSS.caption + " " + form.lblDurvela.caption;
  }
};

}  // namespace screens
