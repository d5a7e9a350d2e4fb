// One day of the list or of a page, by a place's own clock or by the session record.
#pragma once

#include <string_view>

#include "day/kept_place.h"
#include "foundation/calendar.h"
#include "foundation/session.h"
#include "words/day_row.h"

namespace report {

// At the place of the current record. Errors of the calculations.
words::DayRow RowByRecord(foundation::DateTime moment, const foundation::SessionTable& session);

struct OwnClockRow {
  words::DayRow times;  // of the day whose sun shines at the moment
  day::Sun::State sun = day::Sun::State::Rises;
  std::string_view change = {};  // "clocks go back"; empty if they do not on the row's date
};

// The row of a moment by the clock of a place, which has been copied to the current record. Gives
// the record the zone with which calculations have the same sun. They give the times if the days of
// the place are not known, and none if they fail too.
OwnClockRow RowByOwnClock(day::KeptPlace& place, foundation::DateTime moment,
                          foundation::SessionTable& session);

}  // namespace report
