// What the dashboard works out once a second.
#pragma once

#include "foundation/calendar.h"
#include "foundation/session.h"
#include "foundation/settings.h"

namespace screens {

class frmMain;

// Brings the texts of the dashboard's labels up to `now`, from the default place in the settings,
// which also goes into the current session record. A step that fails leaves the labels that it
// would have set as they were; no error comes out.
void Tick(foundation::DateTime now, foundation::Settings& settings,
          foundation::SessionTable& session, frmMain& labels);

}  // namespace screens
