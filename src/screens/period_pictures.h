// Pictures that explain the periods: a sample day in eight parts, and the parts by weekday.
#pragma once

#include <vector>

#include "day/day.h"
#include "forms/picture.h"

namespace screens {

using day::PeriodKind;

// The daylight of 5 March 2011 in Delhi as an arc of eight parts, each period in its colour with
// its times. 328 by 208.
forms::PicturePtr SampleDay(const std::vector<PeriodKind>& periods);

// The part that each period takes from Sunday to Saturday. 328 wide; 30 per row, with one row for
// the weekdays.
forms::PicturePtr WeekdayTable(const std::vector<PeriodKind>& periods);

}  // namespace screens
