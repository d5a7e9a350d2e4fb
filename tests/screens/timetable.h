// A timetable on fakes, with a picker and a form to go back to.
#pragma once

#include "screens/dashboard.h"
#include "screens/frmDurvela.h"
#include "screens/picker.h"

namespace screens {

struct Timetable : Fakes {
  Picker picker;
  std::vector<std::string> reports;  // their places
  forms::Form dashboard{"Dashboard", "", 1000, 1000};
  frmDurvela form{services,
                  dashboard,
                  {[this]() -> frmCity& { return picker.form; },
                   [this](const report::ReportInput& of) {
                     reports.push_back(Words(of.city, of.latitude, of.longitude, of.zoneMeridian,
                                             of.zoneTime, of.country));
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
