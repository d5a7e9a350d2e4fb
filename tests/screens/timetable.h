// A timetable on fakes, with a picker and a form to go back to.
#pragma once

#include <string>
#include <vector>

#include "foundation/version.h"
#include "screens/frmDurvela.h"
#include "screens/picker.h"

namespace screens {

struct Timetable {
  Timetable() { clock.now = foundation::DateFromParts(2011, 3, 5) + 0.4; }

  support::FakeClock clock;
  support::FakeSettings settings;
  support::FakeMessageBoxes boxes;
  support::FakeBrowser browser;
  foundation::SessionTable session;
  Picker picker;
  support::FakeHost& host = picker.host;
  std::vector<std::string> reports;  // their places
  forms::Form dashboard{"Dashboard", "", 1000, 1000};
  frmDurvela form{Services{clock, settings, session, boxes, browser, host},
                  dashboard,
                  {[this]() -> frmCity& { return picker.form; },
                   [this](const report::ReportInput& input) {
                     reports.push_back(input.city + " " + input.latitude + " " + input.longitude +
                                       " " + input.zoneMeridian + " " + input.zoneTime + " " +
                                       input.country);
                   }}};

  // What the last Quick View has drawn, the moves of the pen aside.
  std::vector<std::string> Drawn() const {
    std::vector<std::string> drawn;
    for (const std::string& call : host.target.calls) {
      if (call.starts_with("FontSize")) drawn.clear();
      if (!call.starts_with("Current")) drawn.push_back(call);
    }
    return drawn;
  }
};

}  // namespace screens
