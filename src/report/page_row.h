// What a page of the report says of one day.
#pragma once

#include "forms/drawing_target.h"
#include "foundation/calendar.h"
#include "foundation/session.h"
#include "report/pk_Durvela.h"

namespace report {

// The title with the month and year of the moment, and the place of the current record; the line of
// the place ends at its right edge, by the measure of the target it will be drawn on.
void FillHead(pk_Durvela& page, foundation::DateTime moment,
              const foundation::SessionTable& session, forms::DrawingTarget& target);

// Row `row` of 0 to 30, Subscript outside: date, sun and the three periods at the place of the
// current record. The errors of the calculations.
void FillRow(pk_Durvela& page, int row, foundation::DateTime moment,
             const foundation::SessionTable& session);

}  // namespace report
