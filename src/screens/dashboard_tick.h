// What the dashboard calculates once a second.
#pragma once

#include "foundation/calendar.h"
#include "foundation/session.h"
#include "foundation/settings.h"

namespace screens {

class frmMain;

// Updates the dashboard's labels to `now` at the default place of the settings, and copies that
// place to the current session record. A failing step leaves its labels unchanged; no error is
// raised.
void Tick(foundation::DateTime now, foundation::Settings& settings,
          foundation::SessionTable& session, frmMain& labels);

}  // namespace screens
