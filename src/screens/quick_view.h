// The timetable's list: one row per day with date, weekday and Durvela.
#pragma once

#include "forms/drawing_target.h"
#include "foundation/calendar.h"
#include "foundation/session.h"

namespace screens {

// Clears the page and draws a row for each day from `start`, at its time of day, as long as that is
// not after `end`. Positions are in twips. Passes on errors of the calculations and the page; rows
// drawn before stay.
void DrawQuickView(forms::DrawingTarget& page, foundation::DateTime start, foundation::DateTime end,
                   const foundation::SessionTable& session);

}  // namespace screens
