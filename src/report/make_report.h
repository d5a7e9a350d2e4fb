// Makes the report: a page for each month of a range of days, ready in the preview.
#pragma once

#include <string>

#include "forms/control.h"
#include "foundation/calendar.h"
#include "report/frmSPkun.h"
#include "report/report_services.h"

namespace report {

struct ReportInput {
  foundation::DateTime DT1, DT2;  // midnights of the first and the last day
  foundation::DateTime dtTime;    // time of day at which every day is reckoned
  std::string latitude, longitude, zoneMeridian, zoneTime, city, country;
  forms::Control& lblStatus;  // tells how far it has got
};

// Yields after each row. The errors of the calculations; the last day counts, whatever the time.
void MakeReport(const ReportInput& input, frmSPkun& preview, const Services& services);

}  // namespace report
