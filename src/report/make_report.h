// Makes the report, one page per month of a date range.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "day/kept_place.h"
#include "forms/drawing_target.h"
#include "foundation/calendar.h"
#include "foundation/machine.h"
#include "foundation/session.h"
#include "report/pk_Durvela.h"

namespace report {

struct ReportInput {
  foundation::DateTime DT1, DT2;  // midnights of the first and last day
  foundation::DateTime dtTime;    // time of day at which each day is calculated
  std::string latitude, longitude, zoneMeridian, zoneTime, city, country;
  std::optional<day::KeptPlace> ownClock =
      {};  // the same place by its own clock, if it is to keep it
};

// Receives a report while it is being made.
class PageReceiver {
 public:
  virtual ~PageReceiver() = default;

  // Called once, before anything is drawn. All pages have the size of this one.
  virtual void Begin(const pk_Durvela& page) = 0;
  // The surface for each page in turn. Requested anew for every row and page, since yielding may
  // replace it.
  virtual forms::DrawingTarget& Target() = 0;
  // Page `number`, counted from 1, is on the target.
  virtual void TakePage(std::int16_t number, const std::string& title) = 0;
  // "Loading.. 6 March 2011" after each row; after the last, empty or what there is to say about
  // the report.
  virtual void ShowProgress(const std::string& text) = 0;
};

// Includes the last day, whatever the time of day. Makes a single empty page if DT1 is after DT2.
// Writes the place to the current record, and yields after each row. By the country's clock, errors
// of the calculations; by the place's own, a row that has no times has dashes, and the progress
// says on how many days the sun does not rise or set.
void MakeReport(const ReportInput& input, foundation::SessionTable& session,
                foundation::Yielder& yielder, PageReceiver& receiver);

}  // namespace report
