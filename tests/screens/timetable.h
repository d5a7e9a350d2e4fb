// The timetable with fakes, by one of the two clocks.
#pragma once

#include "screens/frmDurvela.h"
#include "screens/picker.h"
#include "support/test.h"

namespace screens {

using Calls = std::vector<std::string>;

struct TimetableByClock : testing::Test, Fakes {
  explicit TimetableByClock(atlas::ClockChoice choice) {
    atlas::SaveClockChoice(settings, choice);
    form.Form_Load();
  }

  // What Quick View draws, without pen moves.
  Calls QuickView() {
    Calls& drawn = host.target.calls;
    drawn.clear();
    form.cmdShow.onClick();
    std::erase_if(drawn, [](const std::string& call) { return call.starts_with("Current"); });
    return drawn;
  }

  Picker picker;
  std::string reported;  // the place of the last report, and whose clock it keeps
  frmMain dashboard{services};
  frmDurvela form{services,
                  dashboard,
                  {[this]() -> frmCity& { return picker.form; },
                   [this](const report::ReportInput& of, forms::Control&) {
                     reported =
                         Words(of.city, of.latitude, of.longitude, of.zoneMeridian, of.zoneTime,
                               of.country, of.ownClock ? of.ownClock->Clock().zone : "country's");
                   }}};
};

}  // namespace screens
