// What the dashboard calculates once a second.
#pragma once

#include <chrono>

#include "day/kept_place.h"
#include "foundation/calendar.h"
#include "foundation/session.h"
#include "foundation/settings.h"

namespace screens {

class frmMain;

// By the country's clock. Updates the dashboard's labels to `now` at the default place of the
// settings, and copies that place to the current session record. A failing step leaves its labels
// unchanged; no error is raised.
void Tick(foundation::DateTime now, foundation::Settings& settings,
          foundation::SessionTable& session, frmMain& labels);

// By the place's own clock; the machine's, by its offset, only decides whether the time is one of
// another place. The record gets the zone of that clock.
// If the record's sunrise or sunset differs from the day of `place`, the labels show the day's,
// with words in place of a time that is missing.
void TickByOwnClock(clocks::Instant now, std::chrono::seconds machineOffset,
                    foundation::Settings& settings, foundation::SessionTable& session,
                    day::KeptPlace& place, frmMain& labels);

}  // namespace screens
