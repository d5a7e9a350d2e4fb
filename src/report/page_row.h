// The heading and rows of a report page.
#pragma once

#include "forms/drawing_target.h"
#include "foundation/calendar.h"
#include "foundation/session.h"
#include "report/pk_Durvela.h"

namespace report {

// Sets the title from the month and year of the moment, and the place line from the current record.
// Right-aligns the place line by its width on `target`, which should be the one that draws it.
void FillHead(pk_Durvela& page, foundation::DateTime moment,
              const foundation::SessionTable& session, forms::DrawingTarget& target);

// Fills row 0 to 30 (Subscript outside) with the date, the sun and the three periods at the place
// of the current record. Errors of the calculations.
void FillRow(pk_Durvela& page, int row, foundation::DateTime moment,
             const foundation::SessionTable& session);

}  // namespace report
