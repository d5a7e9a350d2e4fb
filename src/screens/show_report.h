// Makes a report and opens it in the preview.
#pragma once

#include "forms/control.h"
#include "report/make_report.h"
#include "screens/frmSPkun.h"

namespace screens {

// Closes the preview, fills it anew and shows the first page. `status` shows the progress. Errors
// of the calculations.
void ShowReport(const report::ReportInput& input, forms::Control& status, frmSPkun& preview,
                const PreviewServices& services);

}  // namespace screens
