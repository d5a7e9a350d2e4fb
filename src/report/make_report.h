// Makes the report, one page per month of a date range, and opens it in the preview.
#pragma once

#include <string>

#include "forms/control.h"
#include "foundation/calendar.h"
#include "report/frmSPkun.h"
#include "report/report_services.h"

namespace report {

struct ReportInput {
  foundation::DateTime DT1, DT2;  // midnights of the first and last day
  foundation::DateTime dtTime;    // time of day at which each day is calculated
  std::string latitude, longitude, zoneMeridian, zoneTime, city, country;
  forms::Control& lblStatus;  // shows the progress
};

// Includes the last day, whatever the time of day. Yields after each row. Errors of the
// calculations.
void MakeReport(const ReportInput& input, frmSPkun& preview, const Services& services);

}  // namespace report
