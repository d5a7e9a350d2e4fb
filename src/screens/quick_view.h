// The list of the timetable: a row a day with its date, weekday and Durvela.
#pragma once

#include "forms/drawing_target.h"
#include "foundation/calendar.h"
#include "foundation/session.h"

namespace screens {

// Clears the page and draws a row for each day from `start`, at its time of day, up to `end`; a
// last day whose time has passed `end` has none. Positions are twips. The errors of the
// calculations and of the page come through; rows drawn until then stay.
void DrawQuickView(forms::DrawingTarget& page, foundation::DateTime start, foundation::DateTime end,
                   const foundation::SessionTable& session);

}  // namespace screens
