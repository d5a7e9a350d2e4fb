// The heading and rows of a report page.
#pragma once

#include <string_view>

#include "forms/drawing_target.h"
#include "foundation/calendar.h"
#include "foundation/session.h"
#include "report/pk_Durvela.h"
#include "words/day_row.h"

namespace report {

// Sets the title from the month and year of the moment, and the place line from a record.
// Right-aligns the place line by its width on `target`, which should be the one that draws it.
void FillHead(pk_Durvela& page, foundation::DateTime moment,
              const foundation::SessionRecord& record, forms::DrawingTarget& target);

// The same with another zone in the place line. As its text may be long, a long city is cut.
void FillHead(pk_Durvela& page, foundation::DateTime moment,
              const foundation::SessionRecord& record, std::string_view zone,
              forms::DrawingTarget& target);

// Fills row 0 to 30 (Subscript outside) with the date of the moment, the sun and the three periods.
void FillRow(pk_Durvela& page, int row, foundation::DateTime moment, const words::DayRow& times);

// Notes a change of the clock beside a row, in two lines: "clocks go back". Nothing for an empty
// text.
void FillNote(pk_Durvela& page, int row, std::string_view change);

}  // namespace report
