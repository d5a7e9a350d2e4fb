// The timetable's clock: whose it is, and the row that names it.

#include <algorithm>
#include <chrono>

#include "atlas/place_clock.h"
#include "foundation/resume.h"
#include "screens/clock_row.h"
#include "screens/frmDurvela.h"
#include "screens/place_labels.h"
#include "words/clock_changes.h"

namespace screens {
namespace {

std::chrono::local_days DateOf(foundation::DateTime moment) {
  return std::chrono::floor<std::chrono::days>(foundation::CivilTimeOf(moment));
}

}  // namespace

// Settings that cannot be read leave the clock as it was.
void frmDurvela::ReadClock() {
  foundation::Resume([&] {
    ownClock_ = atlas::ReadClockChoice(services_.settings) == atlas::ClockChoice::Own;
    place_.Set(services_.settings, TextsOf(PlaceLabelsOf(*this)));
  });
}

foundation::DateTime frmDurvela::PlaceNow() const {
  if (!ownClock_) return services_.clock.Now();
  return foundation::DateTimeOf(place_.Clock().clock.CivilAt(services_.clock.InstantNow()));
}

// Its name stands in place of the country's zone.
void frmDurvela::ShowClock() {
  for (forms::Control* label : {&ZoneCaption, &lblZone, &ZoneTimeCaption, &lblZoneTime}) {
    label->visible = !ownClock_;
  }
  for (forms::Control* label : {&ClockCaption, &lblClock, &ClockNote}) label->visible = ownClock_;
  const atlas::PlaceClock& clock = place_.Clock();
  const std::chrono::local_days first = DateOf(DT1.moment);
  lblClock.caption = words::ClockOfDays(clock.clock, first, std::max(first, DateOf(DT2.moment)));
  lblClock.toolTip = clock.zone;
  ClockNote.caption = screens::ClockNote(clock.source);
}

void frmDurvela::InputsChanged() {
  ReadClock();
  ShowClock();
  MarkOldList();
}

}  // namespace screens
