// The timetable's list: one row per day with date, weekday and Durvela.
#pragma once

#include "day/kept_place.h"
#include "forms/drawing_target.h"
#include "foundation/calendar.h"
#include "foundation/session.h"

namespace screens {

// Clears the page and draws a row for each day from `start`, at its time of day, as long as that is
// not after `end`. Positions are in twips. Passes on errors of the calculations and the page; rows
// drawn before stay.
void DrawQuickView(forms::DrawingTarget& page, foundation::DateTime start, foundation::DateTime end,
                   const foundation::SessionTable& session);

// The same by the place's own clock, with a dash for a time that a day does not have and a note
// beside a row where the clock changes or the sun stays away. The place must have been copied to
// the current record, which gets the zone of each row. Returns the width that all rows need, if any
// has a note; otherwise 0. Errors of the page only.
double DrawQuickView(forms::DrawingTarget& page, foundation::DateTime start,
                     foundation::DateTime end, foundation::SessionTable& session,
                     day::KeptPlace& place);

}  // namespace screens
